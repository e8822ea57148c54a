// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/journal_reader.h"

#include <stdexcept>

/// The parts of a journal as they are written, before they are balanced.
namespace kiv::interchange::internal {

/// A number of some commodity: a currency's code where it is one, else the name
/// that the journal has for it; empty where none is written.
struct Quantity {
    numira::Decimal number;
    QString commodity;
};

[[nodiscard]] QString presentationText(const Quantity &quantity);

enum class PostingKind { Real, BalancedVirtual, Virtual };

struct Posting {
    Place place;
    QString account = {};
    PostingKind kind = PostingKind::Real;
    accounting::TransactionStatuses status = accounting::TransactionStatuses::None;
    std::optional<Quantity> amount = {};
    /// What all of the amount cost, with the amount's sign.
    std::optional<Quantity> cost = {};
    std::optional<Quantity> assertion = {};
    bool isAssigned = false; ///< whether the amount is what leads to the assertion
    QStringList comments = {};

    /// The amount, once a posting without one has got it from the others.
    [[nodiscard]] const Quantity &known() const
    {
        if (!amount)
            throw std::logic_error("A posting's amount is asked for before it is known.");
        return *amount;
    }
    /// What it adds to the balance of its transaction.
    [[nodiscard]] const Quantity &weight() const { return cost ? *cost : known(); }
};

struct Entry {
    Place place;
    QDate date = {};
    accounting::TransactionStatuses status = accounting::TransactionStatuses::None;
    QString description = {};
    QStringList comments = {};
    std::vector<Posting> postings = {};
};

/// A transaction that is added to each posting whose account fits the pattern.
struct AutomatedEntry {
    QString pattern;
    Entry entry;
};

/// What directives say of the amounts behind them.
struct AmountSettings {
    std::optional<DecimalMark> mark = {};
    QString commodity = {};  ///< of amounts without one
    bool usesDefault = true; ///< whether such get one; multipliers do not
};

/// Reads amounts and remembers how the journal writes its commodities.
class QuantityReader {
public:
    QuantityReader(const JournalOptions &options, const AmountSettings &settings)
        : m_options(options), m_settings(settings)
    {
    }

    /// Takes the mark from a sample like "1.000,00 EUR", and gives the commodity.
    QString declare(QStringView sample, const Place &place);

    /// Reads an amount from the beginning of `rest`, which then holds what comes
    /// behind it.
    Quantity read(QStringView &rest, const Place &place);

private:
    struct Written {
        QString number;
        QString commodity;
        bool isNegative = false;
    };
    static Written split(QStringView &rest, const Place &place);
    [[nodiscard]] QString named(const QString &commodity) const;

    const JournalOptions &m_options;
    const AmountSettings &m_settings;
    std::map<QString, DecimalMark> m_marks;
    std::set<QString> m_withComma; ///< commodities whose amounts had a decimal comma
};

/// Moves behind the blanks.
void skipBlanks(QStringView &rest);

/// The text behind a semicolon, which is taken off with it.
QString takeComment(QString &text);

} // namespace kiv::interchange::internal

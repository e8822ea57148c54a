// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/journal_parser.h"

#include <QtCore/QRegularExpression>

namespace kiv::interchange::internal {

/// Balances the entries of a journal and splits them into transactions between
/// two accounts.
class JournalBooks final : public JournalSink {
public:
    explicit JournalBooks(const JournalOptions &options) : m_options(options) {}

    void add(Entry entry) override;
    void add(AutomatedEntry automated) override;
    void declare(const QString &account, const std::map<QString, QString> &tags,
                 const Place &place) override;
    void notice(const QString &sentence) override;

    /// Checks the assertions that did not hold in the order of the file, and
    /// gives what was read.
    [[nodiscard]] Draft finish();

private:
    /// What one posting does to one account of the draft.
    struct Booking {
        std::size_t account;
        numira::Money amount; ///< debits are positive
        accounting::TransactionStatuses status = accounting::TransactionStatuses::None;
        QStringList comments = {};
    };
    struct Rule {
        QRegularExpression pattern;
        Entry entry;
        std::map<QString, bool> fits = {}; ///< by the names that were asked for
    };
    /// A posting, for the assertions: they may hold in the order of the days.
    struct Movement {
        QDate date;
        QString account;
        Quantity amount;
        std::optional<Quantity> assertion;
        Place place;
    };
    using Balances = std::map<std::pair<QString, QString>, numira::Decimal>;

    void fill(std::vector<Posting> &postings, const Place &place);
    void checkBalance(std::vector<Posting *> &group, const Place &place);
    void inferCost(std::vector<Posting *> &group, const std::map<QString, numira::Decimal> &rest);
    void applyRules(const Entry &entry);
    void assign(Entry &entry);
    void move(const Entry &entry);
    void book(const Entry &entry);
    [[nodiscard]] Booking bookingOf(const Posting &posting);
    void addConversions(std::vector<Booking> &bookings);
    void settle(const Entry &entry, std::vector<Booking> bookings);
    void addTransaction(const Entry &entry, const Booking &debit, const Booking &credit,
                        const numira::Money &amount);

    [[nodiscard]] std::size_t accountOf(const QString &name, const numira::Currency &currency,
                                        const Place &place);
    [[nodiscard]] std::size_t indexOf(DraftAccount account);
    [[nodiscard]] accounting::AccountTypes typeOf(const QString &name, const QString &root,
                                                  const Place &place) const;

    const JournalOptions &m_options;
    Draft m_draft;
    std::map<std::tuple<accounting::AccountTypes, QStringList, numira::Currency>, std::size_t>
        m_indexes;
    std::map<QString, accounting::AccountTypes> m_declaredTypes;
    std::map<QString, accounting::AccountNumber> m_declaredNumbers;
    /// Accounts that are declared with their currency are wanted without a
    /// posting, too.
    std::vector<std::tuple<QString, numira::Currency, Place>> m_wanted;
    std::vector<Rule> m_rules;
    Balances m_balances;
    std::vector<Movement> m_movements;
    std::optional<ImportError> m_failedAssertion;
};

} // namespace kiv::interchange::internal

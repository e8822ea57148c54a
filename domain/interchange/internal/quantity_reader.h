// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/journal_entry.h"
#include "interchange/journal_options.h"

namespace kiv::interchange::internal {

/// As sentences show it: "1.5 USD".
[[nodiscard]] QString presentationText(const Quantity &quantity);

/// How directives set the form of amounts after them.
struct AmountSettings {
    std::optional<DecimalMark> mark = {};
    QString commodity = {};  ///< of amounts without one
    bool usesDefault = true; ///< whether amounts without one get it; multipliers do not
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

/// Skips blanks at the beginning.
void skipBlanks(QStringView &rest);

} // namespace kiv::interchange::internal

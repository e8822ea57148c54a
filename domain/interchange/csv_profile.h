// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/written_values.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

namespace kiv::interchange {

/// Chooses the counter-account of entries whose text contains `contains`, ignoring case.
struct AccountRule {
    QString contains; ///< a part of the text, not empty
    QString account;  ///< by number, name or path
};

/// How a bank writes its CSV statements, and which accounts their entries go to.
///
/// A column is named by its heading, or by its number from 1. Instead of one column of
/// amounts there may be two, for money in and money out. A column of signs makes an entry
/// negative when its cell is among the negative signs.
struct CsvProfile {
    /// The most lines that can be skipped above or below.
    static constexpr int skippedMax = 1000;

    QString encoding = QStringLiteral("UTF-8");    ///< any name that ICU knows
    std::optional<QChar> delimiter = std::nullopt; ///< guessed from the first line otherwise
    int skippedLines = 0;                          ///< above the headings
    int skippedLast = 0;                           ///< rows below the entries, such as totals
    bool hasHeadings = true;                       ///< whether the first line has them
    QString dateColumn = {};                       ///< the day
    QString amountColumn = {};                     ///< the amount, with its sign
    QString inColumn = {};                         ///< what came in
    QString outColumn = {};                        ///< what went out, all with a minus or none
    QString signColumn = {};                       ///< whether it came in or went out
    QStringList negativeSigns = {};                ///< the words there that mean money out
    QStringList textColumns = {};                  ///< together they make the description
    QString idColumn = {};                         ///< the bank's identifier
    QString currencyColumn = {};                   ///< of the currency, as a code or a sign
    QString statusColumn = {};                     ///< whether the bank has booked it
    QString balanceColumn = {};                    ///< the balance after it; "-" for none
    DateFormat dateFormat = {};                    ///< how days are written
    /// Found from each number otherwise.
    std::optional<DecimalMark> decimalMark = std::nullopt;
    bool isNegated = false;              ///< whether money out is positive
    std::vector<AccountRule> rules = {}; ///< the first that matches counts
};

/// Reads a profile from a JSON object as toJson() writes it; missing keys get their
/// defaults. Throws ImportError for anything else, also for unknown keys.
[[nodiscard]] KIV_INTERCHANGE_EXPORT CsvProfile readProfile(const QByteArray &json,
                                                            const QString &file);
/// The profile as a JSON object with all keys.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QByteArray toJson(const CsvProfile &profile);

} // namespace kiv::interchange

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
/// What is empty is found in each file. A column is named by its heading, or by its number
/// from 1. Instead of one column of amounts there may be two, for money in and money out. A
/// column of signs makes an entry negative when its cell is among the negative signs.
struct CsvProfile {
    /// The most lines that can be skipped above or below.
    static constexpr int skippedMax = 1000;

    QString encoding = {};                          ///< any name that ICU knows; empty: found
    std::optional<QChar> delimiter = std::nullopt;  ///< between cells
    std::optional<int> skippedLines = std::nullopt; ///< above the headings
    int skippedLast = 0;                            ///< rows below the entries, such as totals
    std::optional<bool> hasHeadings = std::nullopt; ///< whether the table has them
    QString dateColumn = {};                        ///< the day
    QString valueDateColumn = {};                   ///< the day from which it bears interest
    QString amountColumn = {};                      ///< the amount, with its sign
    QString inColumn = {};                          ///< what came in
    QString outColumn = {};                         ///< what went out, all with a minus or none
    QString signColumn = {};                        ///< whether it came in or went out
    /// The words there that mean money out; an empty one means that the others are marked.
    QStringList negativeSigns = {};
    QString feeColumn = {};       ///< what is taken beside the amount; "-" for none
    QString payeeColumn = {};     ///< who got the money, or gave it; "-" for none
    QStringList textColumns = {}; ///< together they make the description
    QString idColumn = {};        ///< the bank's identifier
    QString currencyColumn = {};  ///< of the currency, as a code or a sign
    QString statusColumn = {};    ///< whether the bank has booked it
    QString balanceColumn = {};   ///< the balance after it; "-" for none
    QString accountColumn = {};   ///< the number of the account; "-" for none
    std::optional<DateFormat> dateFormat = std::nullopt;   ///< how days are written
    std::optional<DecimalMark> decimalMark = std::nullopt; ///< of all amounts
    bool isNegated = false;                                ///< whether money out is positive
    std::vector<AccountRule> rules = {};                   ///< the first that matches counts
};

/// Reads a profile from a JSON object as toJson() writes it; missing keys get their
/// defaults. Throws ImportError for anything else, also for unknown keys.
[[nodiscard]] KIV_INTERCHANGE_EXPORT CsvProfile readProfile(const QByteArray &json,
                                                            const QString &file);
/// The profile as a JSON object with all keys.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QByteArray toJson(const CsvProfile &profile);

} // namespace kiv::interchange

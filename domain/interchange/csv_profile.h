// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/written_values.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

namespace kiv::interchange {

/// Sends what a statement says about to an account: the other side of entries
/// whose text holds `contains`, in any case.
struct AccountRule {
    QString contains; ///< a part of the text, not empty
    QString account;  ///< by number, name or path
};

/// How a bank writes its statements as CSV, and where their entries go.
///
/// A column is named by its heading, or by its number from 1. Without the
/// column of amounts, money that came in and money that went out stand in two;
/// with a column of signs, an entry counts as negative when that cell is among
/// the negative signs.
struct CsvProfile {
    /// The most lines that are left out above or below.
    static constexpr int skippedMax = 1000;

    QString encoding = QStringLiteral("UTF-8");    ///< any name that ICU knows
    std::optional<QChar> delimiter = std::nullopt; ///< the line's most frequent otherwise
    int skippedLines = 0;                          ///< above the headings
    int skippedLast = 0;                           ///< records below the entries, as of totals
    bool hasHeadings = true;                       ///< whether the first line has them
    QString dateColumn = {};                       ///< the day
    QString amountColumn = {};                     ///< the amount, with its sign
    QString inColumn = {};                         ///< what came in
    QString outColumn = {};                        ///< what went out, all with a minus or none
    QString signColumn = {};                       ///< whether it came in or went out
    QStringList negativeSigns = {};                ///< what stands there when it went out
    QStringList textColumns = {};                  ///< what makes the description
    QString idColumn = {};                         ///< the bank's identifier
    QString currencyColumn = {};                   ///< a code or a sign
    QString statusColumn = {};                     ///< whether the bank has booked it
    QString balanceColumn = {};                    ///< the balance after it; "-" for none
    DateFormat dateFormat = {};                    ///< how days are written
    /// Found out from each number otherwise.
    std::optional<DecimalMark> decimalMark = std::nullopt;
    bool isNegated = false;              ///< what went out is positive
    std::vector<AccountRule> rules = {}; ///< the first that fits counts
};

/// Reads a profile from the JSON object that toJson writes; what is left out
/// has its default. Throws ImportError for anything else, unknown keys too.
[[nodiscard]] KIV_INTERCHANGE_EXPORT CsvProfile readProfile(const QByteArray &json,
                                                            const QString &file);
/// The profile as a JSON object with all keys.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QByteArray toJson(const CsvProfile &profile);

} // namespace kiv::interchange

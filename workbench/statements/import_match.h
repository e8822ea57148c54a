// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/statements/statement_books.h"

#include "interchange/statement.h"

namespace kiv::workbench {

/// Why transactions of the books are taken for an entry of a statement.
enum class MatchGrounds : std::uint8_t {
    Identifier = 1, ///< they have the bank's identifier
    Content,        ///< day, amount and text are the same
    Told,           ///< another file of the same account told the same day and amount
    Text,           ///< the amount, within days, and a word of both texts
    Amount,         ///< the amount, within days
    ByHand,         ///< the user said so
};

/// Transactions that stand for an entry: one, or the lines of a split.
struct ImportMatch {
    std::vector<accounting::TransactionNumber> numbers; ///< in their order
    MatchGrounds grounds = MatchGrounds::Amount;        ///< why
    QDate day = {};                                     ///< of the transactions
    /// Whether another one would do as well.
    bool isOneOfSeveral = false;

    friend bool operator==(const ImportMatch &, const ImportMatch &) = default;
};

/// The entries as they are recognised again: each with the bank's identifier, or else with one
/// made from day, amount and text, "~20260105-3f2a1c". Equal entries of a day are counted.
KIV_WORKBENCH_EXPORT void giveIdentifiers(std::vector<interchange::StatementEntry> &entries);

/// Whether the identifier was made by giveIdentifiers().
[[nodiscard]] KIV_WORKBENCH_EXPORT bool isMadeUp(const QString &bankId);

/// Bank days between two days, weekends apart; never negative.
[[nodiscard]] KIV_WORKBENCH_EXPORT int bankDaysBetween(QDate one, QDate other);

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"

#include "numira/money.h"

#include <QtCore/QDate>

#include <optional>
#include <vector>

namespace kiv::interchange::internal {

/// What an entry tells about the account's balance.
struct BalanceStep {
    Place place;
    std::optional<numira::Money> amount;  ///< empty while the bank may still change it
    std::optional<numira::Money> balance; ///< after the entry, if the file has it
    QDate day = {};
};

/// The balances that a statement begins and ends with, where it tells them.
struct StatementBalances {
    std::optional<numira::Money> opening = std::nullopt;
    std::optional<numira::Money> closing = std::nullopt;
    QDate closingOn = {};
    /// Whether balances follow from the amounts, or there are none.
    bool fit = true;
};

/// The balances of the steps, read from first to last or from last to first: each must be the
/// one before plus the amounts since. With `mayBeOwed`, balances of what is owed fit too:
/// amounts lower them.
///
/// Balances none of which follows from an amount are of something else: they do not fit.
/// Where only some follow, or all would if each amount had the other sign, an amount is
/// wrong: throws ImportError with the line.
[[nodiscard]] StatementBalances balancesOf(const std::vector<BalanceStep> &steps, bool mayBeOwed);

} // namespace kiv::interchange::internal

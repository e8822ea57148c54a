// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"

#include "numira/money.h"

#include <optional>
#include <vector>

namespace kiv::interchange::internal {

/// What an entry tells about the account's balance.
struct BalanceStep {
    Place place;
    std::optional<numira::Money> amount;  ///< empty while the bank may still change it
    std::optional<numira::Money> balance; ///< after the entry, if the file has it
};

/// Refuses a balance that is not the one before plus the amounts since, read neither from
/// first to last nor from last to first. With `mayBeOwed`, balances of what is owed fit
/// too: amounts lower them.
void requireRunningBalance(std::vector<BalanceStep> steps, bool mayBeOwed);

} // namespace kiv::interchange::internal

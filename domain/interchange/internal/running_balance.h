// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"

#include "numira/money.h"

#include <optional>
#include <vector>

namespace kiv::interchange::internal {

/// What a statement's entry says of the account's balance.
struct BalanceStep {
    Place place;
    std::optional<numira::Money> amount;  ///< nothing where the bank may still change it
    std::optional<numira::Money> balance; ///< after it, where it is told
};

/// Refuses entries of which one's balance is not the former one with the amounts added
/// since then, neither from the first to the last nor from the last to the first. It
/// may be what is owed, from which the amounts are taken.
void requireRunningBalance(std::vector<BalanceStep> steps, bool mayBeOwed);

} // namespace kiv::interchange::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigator_desk.h"

namespace kiv::test {

using Request = std::function<void(Navigator &)>;
using Rows = std::vector<std::pair<QByteArray, Request>>;

/// Requests to every slot, accepted and refused, under "topic: what is special".
/// What they name is what Desk::furnish() made.
[[nodiscard]] Rows allRequests();

/// What makes a furnished desk into each of the states in which a budget can be,
/// under the state's name.
[[nodiscard]] Rows allStates();

/// Whether debits equal credits over all accounts, in the amounts as entered.
[[nodiscard]] bool isBalanced(const accounting::GeneralLedger &ledger);

} // namespace kiv::test

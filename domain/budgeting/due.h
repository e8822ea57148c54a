// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/budget.h"

#include "foundation/clock.h"
#include "foundation/debug_stream.h"

#include <chrono>
#include <vector>

namespace kiv::budgeting {

/// An item that is due, with the amount: the item's own amount, once, however
/// long it is overdue.
struct KIV_BUDGETING_EXPORT BudgetItemAmountDue {
    /// Which item, and when it is due.
    BudgetItemDueIdentifier id;
    /// The amount that is due.
    numira::Money amount;

    friend bool operator==(const BudgetItemAmountDue &, const BudgetItemAmountDue &) = default;
};

/// The items whose next date is at most `within` days after `today`, the
/// earliest first (so overdue ones lead), then by kind and source. Items that
/// are not scheduled are never due.
[[nodiscard]] KIV_BUDGETING_EXPORT std::vector<BudgetItemAmountDue>
budgetItemsDue(std::chrono::days within, const Budget &budget, QDate today = foundation::today());

KIV_BUDGETING_EXPORT std::ostream &operator<<(std::ostream &out, const BudgetItemAmountDue &due);
using foundation::operator<<;

} // namespace kiv::budgeting

Q_DECLARE_METATYPE(kiv::budgeting::BudgetItemAmountDue)
Q_DECLARE_METATYPE(std::vector<kiv::budgeting::BudgetItemAmountDue>)

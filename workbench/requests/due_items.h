// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/budget_view.h"

/// What is due, and what can be done about it.
namespace kiv::workbench {

/// The items that are due within `within` days of `today`, overdue ones too. Without
/// `within` the user's settings have the days; without `today` it is the real day. Throws
/// what the Navigator's slots throw.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<budgeting::BudgetItemAmountDue>
dueItems(Requests &requests, std::optional<std::chrono::days> within, std::optional<QDate> today);

/// The item with its amount, due on its next date.
[[nodiscard]] KIV_WORKBENCH_EXPORT budgeting::BudgetItemAmountDue
dueOf(const budgeting::BudgetedMoney &item);

/// Throws a Refusal when an item of a kind that comes first has the same name. The
/// Navigator posts and skips items by name alone, and takes the first kind that has it.
KIV_WORKBENCH_EXPORT void refuseShadowed(const budgeting::Budget &budget,
                                         const budgeting::BudgetItemDueIdentifier &id);

} // namespace kiv::workbench

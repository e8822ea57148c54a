// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/history/deed.h"
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

/// The day after its next date on which the item is expected; nothing if there is none.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<QDate>
dayAfterNext(const budgeting::BudgetedMoney &item);

/// "3 days late", "today", "tomorrow" or "in 3 days".
[[nodiscard]] KIV_WORKBENCH_EXPORT QString whenText(QDate due, QDate today);

/// Throws a Refusal when an item of a kind that comes first has the same name. The
/// Navigator posts and skips items by name alone, and takes the first kind that has it.
KIV_WORKBENCH_EXPORT void refuseShadowed(const budgeting::Budget &budget,
                                         const budgeting::BudgetItemDueIdentifier &id);

/// An item that was posted, with the number of its transaction.
struct PostedItem {
    budgeting::BudgetItemDueIdentifier id;  ///< the item
    accounting::TransactionNumber number{}; ///< of the transaction
};

/// Posts what is due from or to the account; the item moves on to its next date. Throws a
/// Refusal as refuseShadowed() does, and when the Navigator refuses it.
KIV_WORKBENCH_EXPORT PostedItem payDue(Requests &requests, const budgeting::Budget &budget,
                                       const budgeting::BudgetItemAmountDue &due,
                                       const accounting::AccountCode &account, QDate day);
/// Whether the amount is zero when it is rounded. Such an item cannot be posted; among several
/// it is skipped, so that it does not stop the others.
[[nodiscard]] KIV_WORKBENCH_EXPORT bool comesToNothing(const budgeting::BudgetItemAmountDue &due);
/// "'Power' has an amount of zero and was skipped."
[[nodiscard]] KIV_WORKBENCH_EXPORT QString
skippedAsNothing(const budgeting::BudgetItemAmountDue &due);
/// Posts an amount that was not expected; the item keeps its date. Throws a Refusal when
/// the Navigator refuses it.
KIV_WORKBENCH_EXPORT PostedItem payExtra(Requests &requests,
                                         const budgeting::BudgetItemDueIdentifier &id,
                                         const numira::Money &amount,
                                         const accounting::AccountCode &account, QDate day);
/// Moves the item on to its next date and posts nothing. Throws as payDue() does.
KIV_WORKBENCH_EXPORT void skipDue(Requests &requests, const budgeting::Budget &budget,
                                  const budgeting::BudgetItemDueIdentifier &id);

/// "Paid Rent.", "Received Salary.", or a line that names all of several items.
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed
paidDeed(const std::vector<budgeting::BudgetItemIdentifier> &items);
/// The same for items that were skipped.
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed
skippedDeed(const std::vector<budgeting::BudgetItemIdentifier> &items);

} // namespace kiv::workbench

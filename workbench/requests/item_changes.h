// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/values.h"
#include "workbench/requests/budget_view.h"

#include "budgeting/item_traits.h"

/// Adding and changing budget items by the values that a user gives.
namespace kiv::workbench {

/// The given values of an item besides its name.
struct ItemValues {
    std::optional<Amount> amount;                    ///< each time
    std::optional<budgeting::EventFrequency> every;  ///< how often
    std::optional<QDate> next;                       ///< the next due date
    std::optional<Amount> extra;                     ///< the borrowed amount, or the target
    std::optional<tagging::Tags> tags;               ///< all tags, possibly none
    std::optional<banking::BankAccount> bankAccount; ///< of a debt or goal
    bool isUntied = false;                           ///< removes the link to the bank account
    /// The day of the month on which it is due, where the month of `next` is too short for it.
    std::optional<int> dayOfMonth = {};
};

/// Adds an item, and returns its kind and name. What is missing is an amount of zero in the
/// preferred currency, monthly, due on `day`. Moves the openings of its accounts to
/// `openedOn`, if that is given. Throws a Refusal, and an EntryError for an amount with too
/// many decimals. If moving an opening is refused, the item stays.
template <budgeting::BudgetItem Item>
KIV_WORKBENCH_EXPORT budgeting::BudgetItemIdentifier
addItem(Requests &requests, navigation::GuiElementIdentifier caller, const QString &name,
        const ItemValues &given, QDate day, const std::optional<QDate> &openedOn);

/// Changes an item; what is missing stays as it is. A debt with another bank moves its
/// account there. Throws a Refusal, and an EntryError for an amount with too many decimals. A
/// debt that the other bank refuses has lost its link then, so revert the document.
template <budgeting::BudgetItem Item>
KIV_WORKBENCH_EXPORT void updateItem(Requests &requests, navigation::GuiElementIdentifier caller,
                                     const BudgetView &view, const Item &present,
                                     const ItemValues &given);

/// addItem() for an item of this kind.
KIV_WORKBENCH_EXPORT void addItem(Requests &requests, navigation::GuiElementIdentifier caller,
                                  const budgeting::BudgetItemIdentifier &id,
                                  const ItemValues &given, QDate day,
                                  const std::optional<QDate> &openedOn);
/// updateItem() for the item of this kind and name. Throws a Refusal also if there is none.
KIV_WORKBENCH_EXPORT void updateItem(Requests &requests, navigation::GuiElementIdentifier caller,
                                     const BudgetView &view,
                                     const budgeting::BudgetItemIdentifier &id,
                                     const ItemValues &given);
/// Lets a goal that is reached or a debt that is paid off recur no longer, so that it is not
/// due again. Throws as updateItem() does.
KIV_WORKBENCH_EXPORT void endItem(Requests &requests, navigation::GuiElementIdentifier caller,
                                  const BudgetView &view,
                                  const budgeting::BudgetItemIdentifier &id);
/// Gives an item another name. Throws a Refusal.
KIV_WORKBENCH_EXPORT void renameItem(Requests &requests, navigation::GuiElementIdentifier caller,
                                     const budgeting::BudgetItemIdentifier &id,
                                     const budgeting::BudgetSource &name);
/// Removes an item. Throws a Refusal.
KIV_WORKBENCH_EXPORT void removeItem(Requests &requests, navigation::GuiElementIdentifier caller,
                                     const budgeting::BudgetItemIdentifier &id);

} // namespace kiv::workbench

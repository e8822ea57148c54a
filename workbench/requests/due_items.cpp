// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/due_items.h"

#include "workbench/internal/faults.h"

#include "foundation/clock.h"

namespace kiv::workbench {

using budgeting::BudgetedMoney;
using budgeting::BudgetItemAmountDue;
using navigation::Navigator;

std::vector<BudgetItemAmountDue>
dueItems(Requests &requests, std::optional<std::chrono::days> within, std::optional<QDate> today)
{
    auto answer = requests.ask(&Navigator::showProcessBudgetItems,
                               &Navigator::onPrepareShowProcessBudgetItems);
    if (!within && !today)
        return std::get<std::vector<BudgetItemAmountDue>>(std::move(answer));
    return budgeting::budgetItemsDue(within.value_or(std::get<std::chrono::days>(answer)),
                                     BudgetView(requests).budget(),
                                     today.value_or(foundation::today()));
}

BudgetItemAmountDue dueOf(const BudgetedMoney &item)
{
    return {{budgeting::toBudgetItemTypes(item), item.source(), item.nextOccurOn()}, item.amount()};
}

void refuseShadowed(const budgeting::Budget &budget, const budgeting::BudgetItemDueIdentifier &id)
{
    budget.forEach([&id](const BudgetedMoney &item) {
        const budgeting::BudgetItemTypes kind = budgeting::toBudgetItemTypes(item);
        if (kind < id.type && item.source() == id.source)
            throw internal::shadowedItem(id.type, kind, id.source.name());
    });
}

} // namespace kiv::workbench

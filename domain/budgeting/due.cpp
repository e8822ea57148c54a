// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/due.h"

#include "foundation/streams.h"

#include <algorithm>

namespace kiv::budgeting {

std::vector<BudgetItemAmountDue> budgetItemsDue(std::chrono::days within, const Budget &budget,
                                                QDate today)
{
    std::vector<BudgetItemAmountDue> due;
    budget.forEach([&](const BudgetedMoney &item) {
        if (item.period() != EventFrequency::None &&
            today.daysTo(item.nextOccurOn()) <= within.count()) {
            due.push_back(
                {{toBudgetItemTypes(item), item.source(), item.nextOccurOn()}, item.amount()});
        }
    });
    // The budget gives them by kind and source already, which a stable sort keeps.
    std::ranges::stable_sort(
        due, {}, [](const BudgetItemAmountDue &item) { return item.id.dueOn.toJulianDay(); });
    return due;
}

std::ostream &operator<<(std::ostream &out, const BudgetItemAmountDue &due)
{
    return out << due.id << ' ' << due.amount;
}

} // namespace kiv::budgeting

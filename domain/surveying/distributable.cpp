// SPDX-License-Identifier: GPL-3.0-or-later
#include "surveying/distributable.h"

#include "surveying/internal/faults.h"

namespace kiv::surveying {

bool isDistributable(budgeting::BudgetItemTypes type, budgeting::EventFrequency period)
{
    using budgeting::BudgetItemTypes;
    const bool isRare = budgeting::isRarerThanMonthly(period);
    switch (type) {
    case BudgetItemTypes::Goal:
        return true;
    case BudgetItemTypes::Bill:
    case BudgetItemTypes::Debt:
    case BudgetItemTypes::Nontrack:
        return isRare;
    case BudgetItemTypes::Wage:
    case BudgetItemTypes::None:
        return false;
    }
    throw internal::itemTypeUnknown();
}

} // namespace kiv::surveying

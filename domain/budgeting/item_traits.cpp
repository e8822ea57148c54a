// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/item_traits.h"

namespace kiv::budgeting {

BudgetItemTypes toBudgetItemTypes(const BudgetedMoney &item)
{
    return toBudgetItemTypes(std::type_index(typeid(item)));
}

BudgetItemTypes toBudgetItemTypes(std::type_index type)
{
    BudgetItemTypes kind = BudgetItemTypes::None;
    anyItemClass([&]<typename Item>(std::type_identity<Item>) {
        if (type != typeid(Item))
            return false;
        kind = ItemTraits<Item>::type;
        return true;
    });
    return kind;
}

} // namespace kiv::budgeting

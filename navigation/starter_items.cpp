// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/starter_items.h"

#include "navigation/internal/budget_item_generator.h"

namespace kiv::navigation {

std::vector<StarterItem> starterItems(BudgetWizardTemplates household,
                                      const numira::Currency &currency)
{
    std::vector<StarterItem> items;
    const auto generator = internal::makeBudgetItemGenerator(household, currency);
    for (const auto &[item, isAtBank] : generator->generate()) {
        items.push_back({{budgeting::toBudgetItemTypes(*item), item->source()},
                         item->amount(),
                         item->period(),
                         item->nextOccurOn(),
                         isAtBank});
    }
    return items;
}

} // namespace kiv::navigation

// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/budget.h"

#include "foundation/streams.h"

namespace kiv::budgeting {
namespace {

template <BudgetItem T>
const BudgetedMoney *findIn(const BudgetedMoneyMap<T> &items, const BudgetSource &source)
{
    const auto found = items.find(source);
    return found == items.end() ? nullptr : &found->second;
}

} // namespace

bool Budget::isEmpty() const noexcept
{
    return bills.isEmpty() && debts.isEmpty() && goals.isEmpty() && nontracks.isEmpty() &&
           wages.isEmpty();
}

std::map<BudgetItemTypes, std::set<BudgetSource>> Budget::sources() const
{
    std::map<BudgetItemTypes, std::set<BudgetSource>> sources;
    forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        sources.emplace(ItemTraits<Item>::type, items<Item>().sources());
    });
    return sources;
}

const BudgetedMoney *findBudgetItem(const BudgetItemIdentifier &id, const Budget &budget)
{
    const BudgetedMoney *item = nullptr;
    anyItemClass([&]<typename Item>(std::type_identity<Item>) {
        if (ItemTraits<Item>::type != id.type)
            return false;
        item = findIn(budget.items<Item>(), id.source);
        return true;
    });
    return item;
}

std::set<numira::Currency> containedCurrencies(const Budget &budget)
{
    std::set<numira::Currency> currencies;
    budget.forEach([&](const BudgetedMoney &item) { currencies.insert(item.amount().code()); });
    for (const auto &[source, debt] : budget.debts)
        currencies.insert(debt.borrowed().code());
    for (const auto &[source, goal] : budget.goals)
        currencies.insert(goal.final().code());
    currencies.erase(numira::Currency());
    return currencies;
}

std::ostream &operator<<(std::ostream &out, const Budget &budget)
{
    return out << "bills " << budget.bills << ", debts " << budget.debts << ", goals "
               << budget.goals << ", nontracks " << budget.nontracks << ", wages " << budget.wages;
}

} // namespace kiv::budgeting

// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/budgeted_money_map.h"

#include "budgeting/internal/faults.h"

namespace kiv::budgeting {

template <BudgetItem T>
void BudgetedMoneyMap<T>::add(T item)
{
    const BudgetSource source = item.source();
    if (source.isEmpty())
        throw internal::newSourceEmpty(source);
    if (m_items.contains(source))
        throw internal::newSourceExists(source);
    m_items.emplace(source, std::move(item));
}

template <BudgetItem T>
void BudgetedMoneyMap<T>::remove(const BudgetSource &source)
{
    if (m_items.erase(source) == 0)
        throw internal::cannotRemoveMissing(source);
}

template <BudgetItem T>
void BudgetedMoneyMap<T>::update(T item)
{
    const auto stored = m_items.find(item.source());
    if (stored == m_items.end())
        throw internal::cannotUpdateMissing(item.source());
    if (stored->second.amount().code() != item.amount().code()) {
        remove(item.source());
        add(std::move(item));
    } else {
        stored->second = std::move(item);
    }
}

template <BudgetItem T>
void BudgetedMoneyMap<T>::rename(const BudgetSource &from, BudgetSource to)
{
    const auto stored = m_items.find(from);
    if (stored == m_items.end())
        throw internal::cannotRenameMissing(from);
    T copy = stored->second;
    if (m_items.contains(to))
        throw internal::cannotRenameOnto(copy.source(), to);
    copy.rename(to);
    m_items.emplace(std::move(to), std::move(copy));
    remove(from);
}

template class BudgetedMoneyMap<Bill>;
template class BudgetedMoneyMap<Debt>;
template class BudgetedMoneyMap<Goal>;
template class BudgetedMoneyMap<Nontrack>;
template class BudgetedMoneyMap<Wage>;

} // namespace kiv::budgeting

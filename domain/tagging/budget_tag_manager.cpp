// SPDX-License-Identifier: GPL-3.0-or-later
#include "tagging/budget_tag_manager.h"

#include "foundation/streams.h"

namespace kiv::tagging {

BudgetTagManager::BudgetTagManager(BudgetItemTags associations)
    : m_associations(std::move(associations)), m_possible(m_associations.allTags())
{
}

BudgetItemTags BudgetTagManager::associated(budgeting::BudgetItemTypes type) const
{
    return m_associations.ofType(type);
}

bool BudgetTagManager::hasAssociation(const budgeting::BudgetItemIdentifier &item) const
{
    return m_associations.contains(item);
}

BudgetTagManager::Memory
BudgetTagManager::remember(std::vector<budgeting::BudgetItemIdentifier> items,
                           const Tags &coming) const
{
    Memory memory{std::move(items), {}, {}};
    memory.associations = m_associations.of(memory.items);
    for (const Tag &tag : coming) {
        if (!m_possible.contains(tag))
            memory.unknown.insert(tag);
    }
    return memory;
}

void BudgetTagManager::restore(Memory &&memory) noexcept
{
    m_associations.restore(memory.items, std::move(memory.associations));
    m_possible.remove(memory.unknown);
}

void BudgetTagManager::changeAssociation(const BudgetItemTags::ItemTags &item)
{
    static_cast<void>(budgeting::known(item.type()));
    m_possible.insert(item.tags());
    m_associations.set(item);
}

void BudgetTagManager::renameAssociation(const budgeting::BudgetItemIdentifier &item,
                                         const budgeting::BudgetSource &to)
{
    m_associations.rename(item, to);
}

void BudgetTagManager::removeAssociation(const budgeting::BudgetItemIdentifier &item)
{
    m_associations.remove(item);
}

void BudgetTagManager::remove(const Tags &tags)
{
    m_associations.remove(tags);
    m_possible = m_possible.without(tags);
}

std::ostream &operator<<(std::ostream &out, const BudgetTagManager &manager)
{
    return out << manager.associations() << ", possible " << manager.possible();
}

} // namespace kiv::tagging

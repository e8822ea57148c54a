// SPDX-License-Identifier: GPL-3.0-or-later
#include "tagging/budget_item_tags.h"

#include "foundation/streams.h"

#include <algorithm>
#include <ranges>

namespace kiv::tagging {

BudgetItemTags::ItemTags::ItemTags(budgeting::BudgetItemIdentifier identifier, Tags tags)
    : m_identifier(std::move(identifier)), m_tags(std::move(tags))
{
}

bool BudgetItemTags::contains(const budgeting::BudgetItemIdentifier &item) const
{
    return m_tags.contains(item);
}

Tags BudgetItemTags::tags(const budgeting::BudgetItemIdentifier &item) const
{
    const auto found = m_tags.find(item);
    return found == end() ? Tags() : found->second;
}

Tags BudgetItemTags::allTags() const
{
    Tags all;
    for (const Tags &tags : m_tags | std::views::values)
        all.insert(tags);
    return all;
}

BudgetItemTags BudgetItemTags::ofType(budgeting::BudgetItemTypes type) const
{
    BudgetItemTags chosen;
    static_cast<void>(known(type));
    std::ranges::copy_if(m_tags, std::inserter(chosen.m_tags, chosen.m_tags.end()),
                         [type](const auto &entry) { return entry.first.type == type; });
    return chosen;
}

BudgetItemTags BudgetItemTags::of(std::span<const budgeting::BudgetItemIdentifier> items) const
{
    BudgetItemTags chosen;
    for (const budgeting::BudgetItemIdentifier &item : items)
        chosen.set(ItemTags(item, tags(item)));
    return chosen;
}

void BudgetItemTags::set(const ItemTags &item)
{
    if (item.tags().isEmpty())
        m_tags.erase(item.identifier());
    else
        m_tags.insert_or_assign(item.identifier(), item.tags());
}

void BudgetItemTags::rename(const budgeting::BudgetItemIdentifier &item,
                            const budgeting::BudgetSource &to)
{
    auto entry = m_tags.extract(item);
    if (entry.empty())
        return;
    entry.key().source = to;
    m_tags.erase(entry.key());
    m_tags.insert(std::move(entry));
}

void BudgetItemTags::remove(const budgeting::BudgetItemIdentifier &item)
{
    m_tags.erase(item);
}

void BudgetItemTags::remove(const Tags &tags)
{
    for (Tags &kept : m_tags | std::views::values)
        kept = kept.without(tags);
    std::erase_if(m_tags, [](const auto &entry) { return entry.second.isEmpty(); });
}

void BudgetItemTags::restore(std::span<const budgeting::BudgetItemIdentifier> items,
                             BudgetItemTags &&former) noexcept
{
    for (const budgeting::BudgetItemIdentifier &item : items)
        m_tags.erase(item);
    m_tags.merge(former.m_tags);
}

std::ostream &operator<<(std::ostream &out, const BudgetItemTags::ItemTags &item)
{
    return out << item.identifier() << "=>" << item.tags();
}

std::ostream &operator<<(std::ostream &out, const BudgetItemTags &tags)
{
    return foundation::streamRange(out, tags | std::views::transform([](const auto &entry) {
                                            return BudgetItemTags::ItemTags(entry.first,
                                                                            entry.second);
                                        }));
}

} // namespace kiv::tagging

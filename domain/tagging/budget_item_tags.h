// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tagging/tags.h"

#include "budgeting/identifiers.h"
#include "foundation/debug_stream.h"

#include <map>
#include <span>

namespace kiv::tagging {

/// The tags of budget items. An item without tags has no entry.
class KIV_TAGGING_EXPORT BudgetItemTags {
public:
    /// A budget item with its tags.
    class KIV_TAGGING_EXPORT ItemTags {
    public:
        ItemTags() = default;
        /// The item with these tags.
        explicit ItemTags(budgeting::BudgetItemIdentifier identifier, Tags tags = {});

        /// The item's kind.
        [[nodiscard]] budgeting::BudgetItemTypes type() const noexcept { return m_identifier.type; }
        /// The item's name among those of its kind.
        [[nodiscard]] const budgeting::BudgetSource &source() const noexcept
        {
            return m_identifier.source;
        }
        /// The item.
        [[nodiscard]] const budgeting::BudgetItemIdentifier &identifier() const noexcept
        {
            return m_identifier;
        }
        /// Its tags.
        [[nodiscard]] const Tags &tags() const noexcept { return m_tags; }

        friend bool operator==(const ItemTags &, const ItemTags &) = default;

    private:
        budgeting::BudgetItemIdentifier m_identifier;
        Tags m_tags;
    };

    /// Goes over pairs of item and tags.
    using const_iterator = std::map<budgeting::BudgetItemIdentifier, Tags>::const_iterator;

    /// Whether no item has tags.
    [[nodiscard]] bool isEmpty() const noexcept { return m_tags.empty(); }
    /// How many items have tags.
    [[nodiscard]] std::size_t size() const noexcept { return m_tags.size(); }
    /// Pairs of identifier and tags: kinds in their order, sources in theirs.
    [[nodiscard]] const_iterator begin() const noexcept { return m_tags.begin(); }
    /// Behind the last item.
    [[nodiscard]] const_iterator end() const noexcept { return m_tags.end(); }
    /// Whether the item has tags.
    [[nodiscard]] bool contains(const budgeting::BudgetItemIdentifier &item) const;
    /// The item's tags; none when it has no entry.
    [[nodiscard]] Tags tags(const budgeting::BudgetItemIdentifier &item) const;
    /// All tags of all items.
    [[nodiscard]] Tags allTags() const;
    /// The items of one kind. Throws std::logic_error for an unknown one.
    [[nodiscard]] BudgetItemTags ofType(budgeting::BudgetItemTypes type) const;
    /// Those of the items that have tags.
    [[nodiscard]] BudgetItemTags of(std::span<const budgeting::BudgetItemIdentifier> items) const;

    /// Replaces the item's tags; without any its entry goes.
    void set(const ItemTags &item);
    /// The tags follow the item's new name and replace those that stand there.
    /// Does nothing when the item has no entry.
    void rename(const budgeting::BudgetItemIdentifier &item, const budgeting::BudgetSource &to);
    /// Does nothing when the item has no entry.
    void remove(const budgeting::BudgetItemIdentifier &item);
    /// Takes the tags from every item.
    void remove(const Tags &tags);
    /// The items have the tags that they have in `former`, or none.
    void restore(std::span<const budgeting::BudgetItemIdentifier> items,
                 BudgetItemTags &&former) noexcept;

    friend bool operator==(const BudgetItemTags &, const BudgetItemTags &) = default;

private:
    std::map<budgeting::BudgetItemIdentifier, Tags> m_tags;
};

/// "Rent (bill)=>(home)".
KIV_TAGGING_EXPORT std::ostream &operator<<(std::ostream &out,
                                            const BudgetItemTags::ItemTags &item);
/// The items' forms between parentheses, ", " between them.
KIV_TAGGING_EXPORT std::ostream &operator<<(std::ostream &out, const BudgetItemTags &tags);
using foundation::operator<<;

} // namespace kiv::tagging

Q_DECLARE_METATYPE(kiv::tagging::BudgetItemTags)
Q_DECLARE_METATYPE(kiv::tagging::BudgetItemTags::ItemTags)

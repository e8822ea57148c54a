// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tagging/budget_item_tags.h"

namespace kiv::tagging {

/// The tags on the budget's items, and every tag that can be chosen: those in
/// use and those that were since this began, until they are removed by name.
class KIV_TAGGING_EXPORT BudgetTagManager {
public:
    BudgetTagManager() = default;
    /// With these tags on the items; they are the possible ones.
    explicit BudgetTagManager(BudgetItemTags associations);

    /// Every tag that can be chosen.
    [[nodiscard]] const Tags &possible() const noexcept { return m_possible; }
    /// The tags of the items of one kind.
    [[nodiscard]] BudgetItemTags associated(budgeting::BudgetItemTypes type) const;
    /// The tags of all items.
    [[nodiscard]] const BudgetItemTags &associations() const noexcept { return m_associations; }
    /// Whether the item has a tag.
    [[nodiscard]] bool hasAssociation(const budgeting::BudgetItemIdentifier &item) const;

    /// Replaces the item's tags and makes new ones possible.
    void changeAssociation(const BudgetItemTags::ItemTags &item);
    /// The item's tags follow its new name. Does nothing when it has none.
    void renameAssociation(const budgeting::BudgetItemIdentifier &item,
                           const budgeting::BudgetSource &to);
    /// Takes all tags from the item; they stay possible.
    void removeAssociation(const budgeting::BudgetItemIdentifier &item);
    /// Takes the tags from every item and from the possible ones.
    void remove(const Tags &tags);

    friend bool operator==(const BudgetTagManager &, const BudgetTagManager &) = default;

private:
    BudgetItemTags m_associations;
    Tags m_possible;
};

KIV_TAGGING_EXPORT std::ostream &operator<<(std::ostream &out, const BudgetTagManager &manager);
KIV_TAGGING_EXPORT QDebug operator<<(QDebug debug, const BudgetTagManager &manager);

} // namespace kiv::tagging

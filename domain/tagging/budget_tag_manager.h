// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tagging/budget_item_tags.h"

#include "foundation/debug_stream.h"

#include <vector>

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

    /// The tags of some items as they were, and the tags that were not possible.
    struct Memory {
        std::vector<budgeting::BudgetItemIdentifier> items; ///< those that it is about
        BudgetItemTags associations;                        ///< the tags that they had
        Tags unknown;                                       ///< what was not possible
    };
    /// What it takes to undo changes of these items' tags, whose tags come to
    /// be among `coming` or those that they have. Its cost does not grow with
    /// the other items.
    [[nodiscard]] Memory remember(std::vector<budgeting::BudgetItemIdentifier> items,
                                  const Tags &coming = {}) const;
    /// Undoes what was done to the items since; it cannot fail.
    void restore(Memory &&memory) noexcept;

    /// Replaces the item's tags and makes new ones possible. Throws
    /// std::logic_error for an item of an unknown kind; then nothing has changed.
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
using foundation::operator<<;

} // namespace kiv::tagging

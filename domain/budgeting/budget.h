// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/budgeted_money_map.h"

#include "foundation/debug_stream.h"

#include <map>
#include <set>

namespace kiv::budgeting {

/// All budget items.
struct KIV_BUDGETING_EXPORT Budget {
    /// What must be paid.
    BillMap bills;
    /// What is paid back.
    DebtMap debts;
    /// What is saved for.
    GoalMap goals;
    /// What is spent freely, within a limit.
    NontrackMap nontracks;
    /// What comes in.
    WageMap wages;

    /// The map of one kind: items<Bill>() is bills.
    template <BudgetItem T>
    [[nodiscard]] auto &items() noexcept
    {
        return select<T>(*this);
    }
    /// The same, to be read only.
    template <BudgetItem T>
    [[nodiscard]] const auto &items() const noexcept
    {
        return select<T>(*this);
    }

    /// Whether there is no item of any kind.
    [[nodiscard]] bool isEmpty() const noexcept;
    /// Every kind with its sources; a kind without items has an empty set.
    [[nodiscard]] std::map<BudgetItemTypes, std::set<BudgetSource>> sources() const;
    /// All items: kinds in their order, sources in theirs.
    template <typename Visitor>
    void forEach(Visitor &&visitor) const
    {
        forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
            for (const auto &[source, item] : items<Item>())
                visitor(static_cast<const BudgetedMoney &>(item));
        });
    }

    friend bool operator==(const Budget &, const Budget &) = default;

private:
    template <typename T, typename Self>
    static auto &select(Self &self) noexcept
    {
        if constexpr (std::same_as<T, Bill>)
            return self.bills;
        else if constexpr (std::same_as<T, Debt>)
            return self.debts;
        else if constexpr (std::same_as<T, Goal>)
            return self.goals;
        else if constexpr (std::same_as<T, Nontrack>)
            return self.nontracks;
        else
            return self.wages;
    }
};

/// A copy of the item as it stands, if there is one.
template <BudgetItem T>
[[nodiscard]] std::optional<T> findBudgetItem(const BudgetSource &source, const Budget &budget)
{
    const auto &items = budget.items<T>();
    const auto found = items.find(source);
    return found == items.end() ? std::nullopt : std::optional<T>(found->second);
}

/// The item, or null when there is none of that kind and source, or no such
/// kind.
[[nodiscard]] KIV_BUDGETING_EXPORT const BudgetedMoney *
findBudgetItem(const BudgetItemIdentifier &id, const Budget &budget);

/// The currencies of all amounts, borrowed sums and targets, without "no
/// currency".
[[nodiscard]] KIV_BUDGETING_EXPORT std::set<numira::Currency>
containedCurrencies(const Budget &budget);

KIV_BUDGETING_EXPORT std::ostream &operator<<(std::ostream &out, const Budget &budget);
using foundation::operator<<;

} // namespace kiv::budgeting

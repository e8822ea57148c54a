// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/budget_items.h"

#include "accounting/account_types.h"

#include <concepts>
#include <type_traits>

namespace kiv::budgeting {

/// What differs between the five kinds of item: the enumerator, the kind of
/// ledger account that such an item owns, and its word in messages.
template <typename Item>
struct ItemTraits;

template <>
struct ItemTraits<Bill> {
    static constexpr BudgetItemTypes type = BudgetItemTypes::Bill;
    static constexpr accounting::AccountTypes accountType = accounting::AccountTypes::Expense;
    static constexpr const char *word = "bill";
};
template <>
struct ItemTraits<Debt> {
    static constexpr BudgetItemTypes type = BudgetItemTypes::Debt;
    static constexpr accounting::AccountTypes accountType = accounting::AccountTypes::Liability;
    static constexpr const char *word = "debt";
};
template <>
struct ItemTraits<Goal> {
    static constexpr BudgetItemTypes type = BudgetItemTypes::Goal;
    static constexpr accounting::AccountTypes accountType = accounting::AccountTypes::Asset;
    static constexpr const char *word = "goal";
};
template <>
struct ItemTraits<Nontrack> {
    static constexpr BudgetItemTypes type = BudgetItemTypes::Nontrack;
    static constexpr accounting::AccountTypes accountType = accounting::AccountTypes::Expense;
    static constexpr const char *word = "nontrack";
};
template <>
struct ItemTraits<Wage> {
    static constexpr BudgetItemTypes type = BudgetItemTypes::Wage;
    static constexpr accounting::AccountTypes accountType = accounting::AccountTypes::Income;
    static constexpr const char *word = "wage";
};

/// One of the five kinds.
template <typename T>
concept BudgetItem = std::derived_from<T, BudgetedMoney> && requires
{
    ItemTraits<T>::type;
};

/// A kind that a bank can hold.
template <typename T>
concept BankTiedItem = std::same_as<T, Debt> || std::same_as<T, Goal>;

/// Calls `visitor.operator()<Item>(std::type_identity<Item>)` for the class of the kind. Throws
/// what `unknownType` makes for None and for values above the known ones.
template <typename UnknownType, typename Visitor>
decltype(auto) visitItemClass(BudgetItemTypes type, UnknownType &&unknownType, Visitor &&visitor)
{
    switch (type) {
    case BudgetItemTypes::Bill:
        return visitor(std::type_identity<Bill>{});
    case BudgetItemTypes::Debt:
        return visitor(std::type_identity<Debt>{});
    case BudgetItemTypes::Goal:
        return visitor(std::type_identity<Goal>{});
    case BudgetItemTypes::Nontrack:
        return visitor(std::type_identity<Nontrack>{});
    case BudgetItemTypes::Wage:
        return visitor(std::type_identity<Wage>{});
    case BudgetItemTypes::None:
        break;
    }
    throw unknownType();
}

/// Calls the visitor for all five classes in their order.
template <typename Visitor>
void forEachItemClass(Visitor &&visitor)
{
    visitor(std::type_identity<Bill>{});
    visitor(std::type_identity<Debt>{});
    visitor(std::type_identity<Goal>{});
    visitor(std::type_identity<Nontrack>{});
    visitor(std::type_identity<Wage>{});
}

/// Calls the visitor for the five classes in their order until it answers
/// true, and tells whether it did.
template <typename Visitor>
bool anyItemClass(Visitor &&visitor)
{
    return visitor(std::type_identity<Bill>{}) || visitor(std::type_identity<Debt>{}) ||
           visitor(std::type_identity<Goal>{}) || visitor(std::type_identity<Nontrack>{}) ||
           visitor(std::type_identity<Wage>{});
}

} // namespace kiv::budgeting

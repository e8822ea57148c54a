// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"

#include "budgeting/budget.h"

namespace kiv::workbench {

/// The Navigator's signal and slot that show the items of one kind.
template <typename Item>
struct ItemView;
template <>
struct ItemView<budgeting::Bill> {
    static constexpr auto signal = &navigation::Navigator::showBills;
    static constexpr auto slot = &navigation::Navigator::onPrepareShowBills;
};
template <>
struct ItemView<budgeting::Debt> {
    static constexpr auto signal = &navigation::Navigator::showDebts;
    static constexpr auto slot = &navigation::Navigator::onPrepareShowDebts;
};
template <>
struct ItemView<budgeting::Goal> {
    static constexpr auto signal = &navigation::Navigator::showGoals;
    static constexpr auto slot = &navigation::Navigator::onPrepareShowGoals;
};
template <>
struct ItemView<budgeting::Nontrack> {
    static constexpr auto signal = &navigation::Navigator::showNontracks;
    static constexpr auto slot = &navigation::Navigator::onPrepareShowNontracks;
};
template <>
struct ItemView<budgeting::Wage> {
    static constexpr auto signal = &navigation::Navigator::showWages;
    static constexpr auto slot = &navigation::Navigator::onPrepareShowWages;
};

/// The budget's items with their tags and bank accounts, as the Navigator's
/// five views show them at one time.
class KIV_WORKBENCH_EXPORT BudgetView {
public:
    explicit BudgetView(Requests &requests);

    [[nodiscard]] const budgeting::Budget &budget() const noexcept { return m_budget; }
    [[nodiscard]] tagging::Tags tags(const budgeting::BudgetItemIdentifier &id) const;
    /// The bank account to which a debt or goal is tied.
    [[nodiscard]] std::optional<banking::BankAccount>
    bankAccount(const budgeting::BudgetItemIdentifier &id) const;
    /// The item with this name, of the kind that is given if one is. Throws a
    /// Refusal when there is none, and when several kinds have one.
    [[nodiscard]] const budgeting::BudgetedMoney &
    find(const QString &name, std::optional<budgeting::BudgetItemTypes> kind) const;
    /// The item with this name, with the word of its kind and a colon before it
    /// where names repeat: "Rent", "bill:Rent". Throws as find() does.
    [[nodiscard]] budgeting::BudgetItemIdentifier findTyped(const QString &text) const;

private:
    budgeting::Budget m_budget;
    std::map<budgeting::BudgetItemTypes, tagging::BudgetItemTags> m_tags;
    std::set<navigation::BudgetBankAccount> m_bankAccounts;
};

[[nodiscard]] KIV_WORKBENCH_EXPORT budgeting::BudgetItemIdentifier
identify(const budgeting::BudgetedMoney &item);

} // namespace kiv::workbench

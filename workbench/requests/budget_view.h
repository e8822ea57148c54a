// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"

#include "budgeting/budget.h"

namespace kiv::workbench {

/// The budget's items with their tags and bank accounts, as the Navigator's
/// five views show them at one time.
class KIV_WORKBENCH_EXPORT BudgetView {
public:
    /// Asks for all five kinds. Throws what the slots throw, such as the want of an
    /// exchange rate.
    explicit BudgetView(Requests &requests);

    /// All items.
    [[nodiscard]] const budgeting::Budget &budget() const noexcept { return m_budget; }
    /// The item's tags.
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

/// The item's kind and name.
[[nodiscard]] KIV_WORKBENCH_EXPORT budgeting::BudgetItemIdentifier
identify(const budgeting::BudgetedMoney &item);

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"

#include "budgeting/budget.h"
#include "storage/budget_storage.h"

namespace kiv::workbench {

/// The items of the budget with their tags and bank accounts.
class KIV_WORKBENCH_EXPORT BudgetView {
public:
    /// Those of the budget in memory. It takes no exchange rate.
    explicit BudgetView(Requests &requests);
    /// Those of this budget.
    explicit BudgetView(const storage::BudgetStorage::Data &data);

    /// All items.
    [[nodiscard]] const budgeting::Budget &budget() const noexcept { return m_budget; }
    /// The item's tags.
    [[nodiscard]] tagging::Tags tags(const budgeting::BudgetItemIdentifier &id) const;
    /// The bank account that a debt or goal is linked to.
    [[nodiscard]] std::optional<banking::BankAccount>
    bankAccount(const budgeting::BudgetItemIdentifier &id) const;
    /// The item with this name, of this kind if one is given. Throws a Refusal if there
    /// is none, or if several kinds have the name.
    [[nodiscard]] const budgeting::BudgetedMoney &
    find(const QString &name, std::optional<budgeting::BudgetItemTypes> kind) const;
    /// The item with this name; its kind can stand before it, as in "bill:Rent". Throws
    /// as find() does.
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

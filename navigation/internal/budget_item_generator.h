// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/budget_wizard_templates.h"
#include "navigation/export.h"

#include "budgeting/budgeted_money.h"
#include "numira/currency.h"

#include <memory>
#include <vector>

namespace kiv::navigation::internal {

/// An item of a starter budget.
struct GeneratedBudgetItem {
    std::unique_ptr<budgeting::BudgetedMoney> item;
    /// Whether it goes with the bank account that the wizard made.
    bool isTiedToBankAccount = false;
};

/// Makes the items of a starter budget: named and scheduled, with amounts of
/// zero in one currency for the user to fill in.
class KIV_NAVIGATION_EXPORT BudgetItemGenerator {
public:
    explicit BudgetItemGenerator(const numira::Currency &currency);
    BudgetItemGenerator(const BudgetItemGenerator &) = delete;
    BudgetItemGenerator &operator=(const BudgetItemGenerator &) = delete;
    virtual ~BudgetItemGenerator();
    [[nodiscard]] virtual std::vector<GeneratedBudgetItem> generate() const = 0;

    [[nodiscard]] const numira::Currency &currency() const noexcept { return m_currency; }

private:
    numira::Currency m_currency;
};

/// The generator of a household's starter budget. Throws std::logic_error for a
/// child and for an unknown value.
[[nodiscard]] KIV_NAVIGATION_EXPORT std::unique_ptr<BudgetItemGenerator>
makeBudgetItemGenerator(BudgetWizardTemplates household, const numira::Currency &currency);

} // namespace kiv::navigation::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/budget_bank_account.h"

#include "foundation/streams.h"

namespace kiv::navigation {

std::optional<banking::BankAccount> lookUpBankAccount(const budgeting::BudgetSource &source,
                                                      const std::set<BudgetBankAccount> &accounts)
{
    const auto found = std::ranges::find(accounts, source, &BudgetBankAccount::source);
    return found == accounts.end() ? std::nullopt : std::optional(found->bankAccount);
}

std::ostream &operator<<(std::ostream &out, const BudgetBankAccount &account)
{
    return out << budgeting::BudgetItemIdentifier{account.type, account.source} << " at "
               << account.bankAccount;
}

} // namespace kiv::navigation

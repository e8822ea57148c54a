// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/export.h"

#include "accounting/errors.h"
#include "banking/bank_account.h"
#include "banking/errors.h"
#include "budgeting/errors.h"
#include "budgeting/item_traits.h"

#include <stdexcept>
#include <string>

/// Everything that the navigation layer itself finds fault with: one function
/// for each, which gives the exception to throw. All sentences stand in
/// faults.cpp.
namespace kiv::navigation::internal::faults {

using accounting::AccountCode;
using accounting::AccountError;
using accounting::AccountNumber;
using banking::BankAccountTypes;
using banking::BankError;
using banking::BankName;
using budgeting::BudgetItemError;
using budgeting::BudgetItemTypes;
using budgeting::BudgetSource;
using foundation::Error;

// ---- records -------------------------------------------------------------------

Error bankAccountIsNotAccount(AccountNumber bankAccount, const AccountCode &account);

// ---- budget items and their accounts -------------------------------------------

Error unknownCodeType();
Error codeWithoutItem(BudgetItemTypes type, const BudgetSource &source);
Error codeWithoutAccount(AccountNumber number);
KIV_NAVIGATION_EXPORT BudgetItemError cannotUpdateMissing(BudgetItemTypes type,
                                                          const BudgetSource &source);
KIV_NAVIGATION_EXPORT BudgetItemError cannotRemoveMissing(BudgetItemTypes type,
                                                          const BudgetSource &source);
KIV_NAVIGATION_EXPORT BudgetItemError cannotRemoveWithBalance(BudgetItemTypes type,
                                                              const BudgetSource &source);
Error notBudgetedMoney(const budgeting::BudgetItemIdentifier &id);
std::logic_error unknownItemType(BudgetItemTypes type);

} // namespace kiv::navigation::internal::faults

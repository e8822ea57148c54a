// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/internal/bank_ledgers.h"
#include "navigation/internal/budget_ledgers.h"

#include "surveying/completed_surveys.h"

namespace kiv::navigation::internal {

/// Removes a budget item with its account (see BudgetLedgers::remove), and the
/// association that the account has with a bank.
///
/// Refused with a BudgetItemError while a completed survey sets money aside for
/// the item, also when that is zero. Throws std::logic_error for a type that is
/// not one of the five. Either leaves everything as it was.
KIV_NAVIGATION_EXPORT void removeItem(const budgeting::BudgetItemIdentifier &id,
                                      BudgetLedgers &budgetLedgers, BankLedgers &bankLedgers,
                                      const surveying::CompletedSurveys &surveys);

} // namespace kiv::navigation::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/internal/budget_ledgers.h"

#include "banking/bank_map.h"
#include "surveying/completed_surveys.h"
#include "surveying/mapping_survey.h"

namespace kiv::navigation::internal {

/// What a household goes through to reconcile a bank account on a day: every
/// change since the last reconciliation, the balance that it should show, and a
/// proposal of what to set aside for each budget item. Only reads.
///
/// Refused: a bank that does not exist (BankError), a date after `today`
/// (SurveyError), an account that does not exist (AccountError).
[[nodiscard]] KIV_NAVIGATION_EXPORT surveying::MappingSurvey
generateMapSurvey(const banking::BankAccount &account, const QDate &date,
                  const banking::BankMap &banks, const surveying::CompletedSurveys &surveys,
                  const BudgetLedgers &ledgers, QDate today = foundation::today());

} // namespace kiv::navigation::internal

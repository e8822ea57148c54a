// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/internal/budget_ledgers.h"

#include "banking/bank_map.h"
#include "surveying/completed_surveys.h"
#include "surveying/mapping_survey.h"

namespace kiv::navigation::internal {

/// Proposes a survey of a bank account on a day: every change since the last
/// reconciliation, the expected balance, and what to set aside for each budget
/// item. Only reads.
///
/// Refused: a bank that does not exist (BankError), a date after `today`
/// (SurveyError), an account that does not exist (AccountError).
[[nodiscard]] KIV_NAVIGATION_EXPORT surveying::MappingSurvey
generateMapSurvey(const banking::BankAccount &account, const QDate &date,
                  const banking::BankMap &banks, const surveying::CompletedSurveys &surveys,
                  const BudgetLedgers &ledgers, QDate today = foundation::today());

} // namespace kiv::navigation::internal

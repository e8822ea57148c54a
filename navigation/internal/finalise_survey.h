// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/internal/bank_ledgers.h"
#include "navigation/internal/budget_ledgers.h"

#include "foundation/percentage.h"
#include "surveying/completed_surveys.h"
#include "surveying/indexed_increase_decreases.h"

namespace kiv::navigation::internal {

/// Completes the survey of a bank account with what the household found on its
/// statement of a day: checks that it adds up, posts what was missing, records
/// the survey, and reconciles what was posted and ticked.
///
/// `balance` is the statement's; `reconciled` was ticked. The changes are what the
/// statement shows and the ledger lacks. `distribution` is set aside and
/// `nonDistributed` left over. An asset's balance may differ from the statement's
/// by `window`.
///
/// Refused before anything has changed, as SurveyErrors: a ticked transaction
/// that is neither in the account nor in one under it, or is later than the day;
/// an account that is neither asset nor liability; an asset that misses the
/// statement by more than the window (or, where that shows zero, by one major
/// unit); a distribution to an item that takes none, or to a goal other than
/// what its account holds.
///
/// What is refused only while posting (a change of an item without an account,
/// a posting that the ledger refuses) leaves what was posted before it. What
/// fails later leaves all postings, but no survey and nothing reconciled.
KIV_NAVIGATION_EXPORT surveying::CompletedSurvey finaliseSurvey(
    const QDate &date, const banking::BankAccount &account, const numira::Money &balance,
    const std::set<accounting::TransactionNumber> &reconciled,
    const surveying::IndexedIncreaseDecreases<budgeting::BudgetItemIdentifier> &budgetChanges,
    const surveying::IndexedIncreaseDecreases<accounting::AccountNumber> &accountChanges,
    const surveying::Distribution &distribution, const numira::Money &nonDistributed,
    const foundation::Percentage &window, const BudgetLedgers &budgetLedgers,
    const BankLedgers &bankLedgers, surveying::CompletedSurveys &surveys,
    accounting::GeneralLedger &ledger);

} // namespace kiv::navigation::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surveying/completed_surveys.h"

#include "accounting/general_ledger.h"
#include "budgeting/budget.h"
#include "budgeting/due.h"
#include "foundation/percentage.h"

/// The rules by which a survey proposes what to set aside.
namespace kiv::surveying {

/// The day from which a survey on `date` counts: that of the last reconciliation; else the
/// day before the account was opened with a balance; else the first of the month before.
[[nodiscard]] KIV_SURVEYING_EXPORT QDate
countsFrom(const banking::ReconciledBankAccount &reconciled, QDate date,
           const accounting::GeneralLedger &ledger);

/// What the item will want by then: the target of a goal, the amount of all others, for each
/// time that it occurs until then, at least once.
[[nodiscard]] KIV_SURVEYING_EXPORT numira::Money expectedBy(QDate date,
                                                            const budgeting::BudgetedMoney &item);

/// The other bank accounts whose last survey sets money aside for the item, also of zero.
[[nodiscard]] KIV_SURVEYING_EXPORT std::vector<banking::BankAccount>
otherHolders(const budgeting::BudgetItemIdentifier &item, const banking::BankAccount &account,
             const CompletedSurveys &surveys);

/// The monthly payments that are due within so many days after `today` as the month of
/// `date` still has after it, in the order of budgetItemsDue().
[[nodiscard]] KIV_SURVEYING_EXPORT std::vector<budgeting::BudgetItemAmountDue>
monthlyPaymentsDue(QDate date, const budgeting::Budget &budget, QDate today);

/// By how much the books may differ from the balance of a statement: the window's part of it, to
/// the last digit of an amount. Of a balance of zero it is one major unit, which itself is too
/// much.
[[nodiscard]] KIV_SURVEYING_EXPORT numira::Money toleranceOf(const numira::Money &statement,
                                                             const foundation::Percentage &window);

/// Whether a survey accepts the balance of a statement: what the books come to differs from it
/// by at most the window, or from a balance of zero by less than one major unit. Throws what a
/// missing exchange rate throws.
[[nodiscard]] KIV_SURVEYING_EXPORT bool agrees(const numira::Money &calculated,
                                               const foundation::Percentage &window,
                                               const numira::Money &statement);

} // namespace kiv::surveying

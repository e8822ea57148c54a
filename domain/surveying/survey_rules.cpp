// SPDX-License-Identifier: GPL-3.0-or-later
#include "surveying/survey_rules.h"

#include "accounting/balances.h"
#include "foundation/dates.h"

#include <QtCore/QDebug>

#include <algorithm>
#include <cmath>

namespace kiv::surveying {

using budgeting::BudgetedMoney;
using budgeting::BudgetItemAmountDue;
using budgeting::BudgetItemTypes;

namespace {

/// Whether such an item is paid from a bank account.
bool isExpense(BudgetItemTypes type)
{
    switch (type) {
    case BudgetItemTypes::Bill:
    case BudgetItemTypes::Debt:
    case BudgetItemTypes::Goal:
    case BudgetItemTypes::Nontrack:
        return true;
    case BudgetItemTypes::None:
    case BudgetItemTypes::Wage:
        return false;
    }
    qCritical("Unknown budget item type present in `isExpense` function.");
    return false;
}

} // namespace

QDate countsFrom(const banking::ReconciledBankAccount &reconciled, QDate date,
                 const accounting::GeneralLedger &ledger)
{
    if (const std::optional<QDate> &reconciledOn = reconciled.reconciledOn())
        return *reconciledOn;
    if (const auto opening = ledger.openingTransaction(reconciled.bankAccount().account.number))
        return opening->occurredOn().addDays(-1);
    return foundation::firstOfMonth(date).addMonths(-1);
}

numira::Money expectedBy(QDate date, const BudgetedMoney &item)
{
    const auto *goal = dynamic_cast<const budgeting::Goal *>(&item);
    const double occurrences =
        std::abs(budgeting::occurrencesIn(item.period(), date, item.nextOccurOn()));
    return (goal ? goal->final() : item.amount()) * std::max(1.0, occurrences);
}

std::vector<banking::BankAccount> otherHolders(const budgeting::BudgetItemIdentifier &item,
                                               const banking::BankAccount &account,
                                               const CompletedSurveys &surveys)
{
    std::vector<banking::BankAccount> holders;
    for (const auto &[other, survey] : surveys) {
        if (other != account && survey.distribution().contains(item))
            holders.push_back(other);
    }
    return holders;
}

std::vector<BudgetItemAmountDue> monthlyPaymentsDue(QDate date, const budgeting::Budget &budget,
                                                    QDate today)
{
    const std::chrono::days days(foundation::daysBetween(date, foundation::lastOfMonth(date)));
    std::vector<BudgetItemAmountDue> due = budgeting::budgetItemsDue(days, budget, today);
    std::erase_if(due, [&](const BudgetItemAmountDue &one) {
        const BudgetedMoney *item = budgeting::findBudgetItem(one.id.item(), budget);
        return !isExpense(one.id.type) || item == nullptr ||
               item->period() != budgeting::EventFrequency::Monthly;
    });
    return due;
}

numira::Money toleranceOf(const numira::Money &statement, const foundation::Percentage &window)
{
    if (statement == 0)
        return {statement.code(), 1, 0};
    return {statement.code(), statement.amount().abs() * window.fraction()};
}

bool agrees(const numira::Money &calculated, const foundation::Percentage &window,
            const numira::Money &statement)
{
    // A part of zero is zero, so there the window is one major unit.
    const numira::Money unit = toleranceOf(numira::Money(calculated.code()), window);
    return statement == 0 ? -unit < calculated && calculated < unit
                          : accounting::isWithinWindow(calculated, window, statement,
                                                       accounting::ByMajorUnit(true));
}

} // namespace kiv::surveying

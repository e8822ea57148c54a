// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/map_survey.h"

#include "navigation/internal/faults.h"
#include "navigation/internal/surveyed_changes.h"

#include "budgeting/due.h"
#include "foundation/dates.h"
#include "foundation/presentation.h"
#include "surveying/distributable.h"

#include <QtCore/QLoggingCategory>

#include <cmath>

namespace kiv::navigation::internal {
namespace {

using accounting::AccountNumber;
using banking::BankAccount;
using budgeting::BudgetedMoney;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using budgeting::EventFrequency;
using numira::Money;

/// The day from which changes are counted.
QDate startOf(const banking::ReconciledBankAccount &reconciled, const QDate &date,
              const accounting::GeneralLedger &ledger)
{
    if (const std::optional<QDate> &reconciledOn = reconciled.reconciledOn())
        return *reconciledOn;
    if (const auto opening = ledger.openingTransaction(reconciled.bankAccount().account.number))
        return opening->occurredOn().addDays(-1);
    return foundation::firstOfMonth(date).addMonths(-1);
}

/// The number of times that an item occurs until then, at least 1.
double occurrencesUntil(const QDate &date, const BudgetedMoney &item)
{
    return std::max(1.0,
                    std::abs(budgeting::occurrencesIn(item.period(), date, item.nextOccurOn())));
}

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

/// The monthly payments that are still due until the end of the date's month.
Money dueUntilMonthEnd(const QDate &date, const budgeting::Budget &budget,
                       const numira::Currency &currency, const QDate &today)
{
    const std::chrono::days days(foundation::daysBetween(date, foundation::lastOfMonth(date)));
    return numira::math::sum(
        currency, budgeting::budgetItemsDue(days, budget, today), [&](const auto &due) {
            const BudgetedMoney *item = budgeting::findBudgetItem(due.id.item(), budget);
            const bool counts = isExpense(due.id.type) && item != nullptr &&
                                item->period() == EventFrequency::Monthly;
            return counts ? due.amount : Money(currency);
        });
}

/// Builds one proposal.
class Generation {
public:
    Generation(SurveyedAccounts accounts, const QDate &date,
               const surveying::CompletedSurveys &surveys, const BudgetLedgers &ledgers)
        : m_accounts(std::move(accounts)),
          m_date(date),
          m_surveys(surveys),
          m_ledgers(ledgers),
          m_last(surveys.lookUpSurvey(m_accounts.bankAccount.bank, m_accounts.number())),
          m_reconciled(m_last ? m_last->reconciled()
                              : banking::ReconciledBankAccount(
                                    m_accounts.bankAccount,
                                    ledger().ledger(m_accounts.number()).balance().code())),
          m_start(startOf(m_reconciled, date, ledger())),
          m_changes(m_accounts, ledgers, m_reconciled.balance())
    {
    }

    void run();
    [[nodiscard]] surveying::MappingSurvey result(const QDate &today) const;

private:
    [[nodiscard]] const accounting::GeneralLedger &ledger() const { return m_ledgers.ledgers(); }
    void propose(const BudgetedMoney &item, int months);
    void markElsewhere(const BudgetItemIdentifier &id);
    void walk(AccountNumber number, const char *sentence);

    SurveyedAccounts m_accounts;
    QDate m_date;
    const surveying::CompletedSurveys &m_surveys;
    const BudgetLedgers &m_ledgers;
    std::optional<surveying::CompletedSurvey> m_last;
    banking::ReconciledBankAccount m_reconciled;
    QDate m_start;
    SurveyedChanges m_changes;
    /// Items whose money lies elsewhere.
    std::set<BudgetItemIdentifier> m_elsewhere;
};

void Generation::run()
{
    qInfo() << "Calculating expected balance from" << m_start;
    const int months = foundation::monthsBetween(m_start, m_date);
    qInfo() << "It has been" << months << "since the last reconciliation calculation.";
    qInfo() << "There are" << m_accounts.children.size() << "children under the bank account.";
    m_ledgers.budget().forEach([&](const BudgetedMoney &item) { propose(item, months); });

    qInfo() << "Processing bank ledger transactions.";
    walk(m_accounts.number(), "Processing ledger transaction #");
    for (const AccountNumber child : m_accounts.children) {
        qInfo() << "Processing child ledger" << child;
        walk(child, "Processing child ledger transaction #");
        // The balance of an item's own account under the bank account is set aside.
        if (const auto item = m_ledgers.lookUpBudgetId(child))
            m_changes.distribution[*item] = ledger().ledger(child).balance();
    }
    for (const BudgetItemIdentifier &id : m_elsewhere)
        m_changes.distribution.erase(id);
}

void Generation::propose(const BudgetedMoney &item, int months)
{
    const BudgetItemIdentifier id{budgeting::toBudgetItemTypes(item), item.source()};
    m_changes.budgetItemChanges[id];
    if (!surveying::isDistributable(id.type, item.period())) {
        qInfo() << "Ignoring non-distributable budget item" << id;
        return;
    }
    markElsewhere(id);
    Money before(item.amount().code());
    if (m_last) {
        const auto entry = m_last->distribution().find(id);
        if (entry != m_last->distribution().end())
            before = entry->second.distributed();
    }
    const auto *goal = dynamic_cast<const budgeting::Goal *>(&item);
    const Money expected = (goal ? goal->final() : item.amount()) * occurrencesUntil(m_date, item);
    surveying::DistributedAmount &proposed = m_changes.distribution[id];
    proposed = surveying::DistributedAmount(before, item.nextOccurOn(), expected);
    if (months <= 0)
        return;
    const Money monthly =
        budgeting::accumulateOver(EventFrequency::Monthly, item.amount(), item.period());
    for (int month = 0; month < months; ++month)
        proposed += monthly;
}

void Generation::markElsewhere(const BudgetItemIdentifier &id)
{
    const auto code = m_ledgers.lookUpAccountCode(id);
    if (code && code->parent() && !m_accounts.children.contains(code->number())) {
        qInfo() << "Will remove distributable budget item" << id << "it's a child account" << *code;
        m_elsewhere.insert(id);
    }
    for (const auto &[account, survey] : m_surveys) {
        if (account != m_accounts.bankAccount && survey.distribution().contains(id)) {
            qInfo() << "Will remove distributable budget item" << id
                    << "as it's already distributed in another bank account.";
            m_elsewhere.insert(id);
        }
    }
}

void Generation::walk(AccountNumber number, const char *sentence)
{
    // Looked up once, since a ledger may hold tens of thousands of transactions.
    const bool isLogged = QLoggingCategory::defaultCategory()->isDebugEnabled();
    const accounting::TransactionList transactions = ledger().ledger(number).transactions();
    for (const accounting::Transaction &transaction : transactions) {
        if (isLogged)
            qDebug() << sentence << transaction.number().value_or(accounting::TransactionNumber());
        if (transaction.status() != accounting::TransactionStatuses::Reconciled &&
            transaction.occurredOn() <= m_date)
            m_changes.add(transaction, number);
    }
}

surveying::MappingSurvey Generation::result(const QDate &today) const
{
    surveying::Distribution distribution;
    std::optional<Money> due;
    if (m_accounts.isAsset()) {
        distribution = m_changes.distribution;
        due = dueUntilMonthEnd(m_date, m_ledgers.budget(), m_reconciled.balance().code(), today);
    }
    return {m_reconciled,
            m_changes.expectedBalance(),
            m_start,
            m_changes.budgetItemChanges,
            std::move(distribution),
            m_changes.accountChanges,
            due};
}

} // namespace

surveying::MappingSurvey generateMapSurvey(const BankAccount &account, const QDate &date,
                                           const banking::BankMap &banks,
                                           const surveying::CompletedSurveys &surveys,
                                           const BudgetLedgers &ledgers, QDate today)
{
    qInfo() << "Generating mapping survey for" << account << "on" << date;
    const AccountNumber number = account.account.number;
    if (!banks.hasBank(account.bank))
        throw faults::surveyedBankDoesNotExist(account.bank);
    if (today < date)
        throw faults::surveyInFuture(account, date);
    if (!ledgers.ledgers().hasLedger(number))
        throw faults::surveyedBankAccountDoesNotExist(number);
    Generation generation(
        {account, ledgers.ledgers().lookUpChildren(number, accounting::OpenStates::Either)}, date,
        surveys, ledgers);
    generation.run();
    return generation.result(today);
}

} // namespace kiv::navigation::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/map_survey.h"

#include "navigation/internal/faults.h"
#include "navigation/internal/surveyed_changes.h"

#include "foundation/dates.h"
#include "foundation/presentation.h"
#include "surveying/distributable.h"
#include "surveying/survey_rules.h"

#include <QtCore/QLoggingCategory>

#include <functional>

namespace kiv::navigation::internal {
namespace {

using accounting::AccountNumber;
using banking::BankAccount;
using budgeting::BudgetedMoney;
using budgeting::BudgetItemIdentifier;
using budgeting::EventFrequency;
using numira::Money;

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
          m_start(surveying::countsFrom(m_reconciled, date, ledger())),
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
    surveying::DistributedAmount &proposed = m_changes.distribution[id];
    proposed = surveying::DistributedAmount(before, item.nextOccurOn(),
                                            surveying::expectedBy(m_date, item));
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
    for ([[maybe_unused]] const BankAccount &holder :
         surveying::otherHolders(id, m_accounts.bankAccount, m_surveys)) {
        qInfo() << "Will remove distributable budget item" << id
                << "as it's already distributed in another bank account.";
        m_elsewhere.insert(id);
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
        due = numira::math::sum(m_reconciled.balance().code(),
                                surveying::monthlyPaymentsDue(m_date, m_ledgers.budget(), today),
                                std::mem_fn(&budgeting::BudgetItemAmountDue::amount));
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

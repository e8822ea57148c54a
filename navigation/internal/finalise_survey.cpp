// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/finalise_survey.h"

#include "navigation/internal/faults.h"
#include "navigation/internal/surveyed_changes.h"
#include "navigation/internal/undo.h"

#include "accounting/balances.h"
#include "foundation/presentation.h"
#include "surveying/distributable.h"
#include "surveying/survey_rules.h"

namespace kiv::navigation::internal {
namespace {

using accounting::AccountCode;
using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionNumber;
using banking::BankAccount;
using banking::BankAccountTypes;
using budgeting::BudgetItemIdentifier;
using numira::Money;

using BudgetChanges = surveying::IndexedIncreaseDecreases<BudgetItemIdentifier>;
using AccountChanges = surveying::IndexedIncreaseDecreases<AccountNumber>;

// ---- checks, which change nothing ----------------------------------------------

/// The ticked transactions, which must be in the surveyed accounts.
class TickedTransactions {
public:
    TickedTransactions(const SurveyedAccounts &accounts, const accounting::GeneralLedger &ledger)
        : m_accounts(accounts)
    {
        m_ledgers.push_back(ledger.ledger(accounts.number()));
        for (const AccountNumber child : accounts.children)
            m_ledgers.push_back(ledger.ledger(child));
    }

    /// The balance after those transactions.
    [[nodiscard]] Money balanceAfter(const std::set<TransactionNumber> &ticked, Money balance,
                                     const QDate &date) const
    {
        for (const TransactionNumber number : ticked) {
            const auto &[account, transaction] = find(number);
            if (transaction.occurredOn() > date) {
                throw faults::tickedAfterSurvey(m_accounts.bankAccount, number,
                                                transaction.occurredOn(), date);
            }
            if (!m_accounts.isWithin(transaction))
                balance = adjusted(account, balance, transaction);
        }
        return balance;
    }

private:
    struct Found {
        AccountCode account;
        Transaction transaction;
    };

    [[nodiscard]] Found find(TransactionNumber number) const
    {
        for (const accounting::LedgerAccount &ledger : m_ledgers) {
            if (auto transaction = ledger.transactions().find(number))
                return {ledger.code(), *std::move(transaction)};
        }
        throw faults::tickedElsewhere(m_accounts.bankAccount, number);
    }

    [[nodiscard]] Money adjusted(const AccountCode &account, const Money &balance,
                                 const Transaction &transaction) const
    {
        const BankAccountTypes type = m_accounts.bankAccount.account.type;
        if (banking::isAssetAccount(type))
            return accounting::adjustAssetBalance(account, balance, transaction);
        if (banking::isLiabilityAccount(type))
            return accounting::adjustLiabilityBalance(account, balance, transaction);
        throw faults::surveyedTypeUnknown(m_accounts.bankAccount);
    }

    const SurveyedAccounts &m_accounts;
    std::vector<accounting::LedgerAccount> m_ledgers;
};

template <typename Key>
void apply(const surveying::IndexedIncreaseDecreases<Key> &changes, Money &balance)
{
    for (const auto &[key, amount] : changes.increases())
        balance += amount;
    for (const auto &[key, amount] : changes.decreases())
        balance -= amount;
}

void checkBalance(const BankAccount &account, const Money &calculated, const Money &balance,
                  const foundation::Percentage &window)
{
    if (!surveying::agrees(calculated, window, balance))
        throw faults::balanceOutsideWindow(account, calculated, window, balance);
}

void checkDistribution(const BankAccount &account, const surveying::Distribution &distribution,
                       const BudgetLedgers &ledgers)
{
    for (const auto &[id, amount] : distribution) {
        if (!surveying::isDistributable(id.type, ledgers.budgetedMoney(id).period()))
            throw faults::cannotBeDistributed(account, id);
        if (id.type != budgeting::BudgetItemTypes::Goal)
            continue;
        const auto code = ledgers.lookUpAccountCode(id);
        if (code && amount.distributed() != ledgers.ledgers().ledger(*code).balance())
            throw faults::goalDistributedByHand(account, id);
    }
}

// ---- posting -------------------------------------------------------------------

/// Posts what the statement shows and the ledger lacks.
class Postings {
public:
    Postings(const BankAccount &account, const QDate &date, const BudgetLedgers &budgetLedgers,
             accounting::GeneralLedger &ledger)
        : m_account(account),
          m_isAsset(banking::isAssetAccount(account.account.type)),
          m_date(date),
          m_budgetLedgers(budgetLedgers),
          m_ledger(ledger),
          m_bank(ledger.accountCode(account.account.number))
    {
    }

    void post(const BudgetChanges &changes)
    {
        const auto codeOf = [this](const BudgetItemIdentifier &id) {
            const auto code = m_budgetLedgers.lookUpAccountCode(id);
            if (!code)
                throw faults::changedItemHasNoAccount(m_account, id);
            return *code;
        };
        post(changes, codeOf,
             m_isAsset ? QObject::tr("Additional surveyed income.")
                       : QObject::tr("Additional surveyed charges."),
             m_isAsset ? QObject::tr("Additional surveyed expense.")
                       : QObject::tr("Additional surveyed payments."));
    }

    void post(const AccountChanges &changes)
    {
        const auto codeOf = [this](AccountNumber number) { return m_ledger.ledger(number).code(); };
        post(changes, codeOf,
             m_isAsset ? QObject::tr("Extra-budget surveyed income.")
                       : QObject::tr("Extra-budget surveyed charges."),
             m_isAsset ? QObject::tr("Extra-budget surveyed expense.")
                       : QObject::tr("Extra-budget surveyed payments."));
    }

    [[nodiscard]] const std::set<TransactionNumber> &posted() const noexcept { return m_posted; }

private:
    template <typename Changes, typename CodeOf>
    void post(const Changes &changes, const CodeOf &codeOf, const QString &onIncrease,
              const QString &onDecrease)
    {
        // An asset rises when it is debited, a liability when it is credited.
        for (const auto &[key, amount] : changes.increases())
            post(amount, m_isAsset, key, codeOf, onIncrease);
        for (const auto &[key, amount] : changes.decreases())
            post(amount, !m_isAsset, key, codeOf, onDecrease);
    }

    template <typename Key, typename CodeOf>
    void post(const Money &amount, bool isBankDebited, const Key &key, const CodeOf &codeOf,
              const QString &description)
    {
        const Money rounded = amount.rounded();
        if (rounded.isZero())
            return;
        const AccountCode other = codeOf(key);
        m_posted.insert(m_ledger.post(
            isBankDebited ? Transaction(m_date, m_bank, other, rounded, description)
                          : Transaction(m_date, other, m_bank, rounded, description)));
    }

    const BankAccount &m_account;
    bool m_isAsset;
    QDate m_date;
    const BudgetLedgers &m_budgetLedgers;
    accounting::GeneralLedger &m_ledger;
    AccountCode m_bank;
    std::set<TransactionNumber> m_posted;
};

// ---- reconciling ---------------------------------------------------------------

/// Whether the account is another bank account that gets a survey of its own.
bool isSurveyedByItself(AccountNumber number, const BankLedgers &banks)
{
    const auto bank = banks.lookUpBankName(number);
    if (!bank || banks.ledgers().accountCode(number).parent())
        return false;
    const BankAccountTypes type = banks.banks().bank(*bank).accounts().at(number);
    return banking::isAssetAccount(type) || banking::isLiabilityAccount(type);
}

void reconcile(const std::set<TransactionNumber> &numbers, const SurveyedAccounts &accounts,
               const BankLedgers &banks, accounting::GeneralLedger &ledger)
{
    std::set<TransactionNumber> whole;
    std::map<TransactionNumber, AccountNumber> oneSided;
    for (const TransactionNumber number : numbers) {
        const auto transaction = ledger.lookUpTransaction(number);
        if (!transaction)
            throw faults::reconciledTransactionMissing(number);
        const AccountNumber debit = transaction->debiting().number();
        const AccountNumber credit = transaction->crediting().number();
        const bool isOwnDebited = accounts.contains(debit);
        if (!accounts.isWithin(*transaction) &&
            isSurveyedByItself(isOwnDebited ? credit : debit, banks))
            oneSided.emplace(number, isOwnDebited ? debit : credit);
        else
            whole.insert(number);
    }
    ledger.reconcile(whole);
    for (const auto &[number, own] : oneSided)
        ledger.reconcile(number, own);
}

} // namespace

surveying::CompletedSurvey
finaliseSurvey(const QDate &date, const BankAccount &account, const Money &balance,
               const std::set<TransactionNumber> &reconciled, const BudgetChanges &budgetChanges,
               const AccountChanges &accountChanges, const surveying::Distribution &distribution,
               const Money &nonDistributed, const foundation::Percentage &window,
               const BudgetLedgers &budgetLedgers, const BankLedgers &bankLedgers,
               surveying::CompletedSurveys &surveys, accounting::GeneralLedger &ledger)
{
    qInfo() << "Finalising bank account survey for" << account;
    const AccountNumber number = account.account.number;
    const std::optional<surveying::CompletedSurvey> last = surveys.lookUpSurvey(account);
    const numira::Currency currency = ledger.ledger(number).balance().code();
    const SurveyedAccounts accounts{account,
                                    ledger.lookUpChildren(number, accounting::OpenStates::Either)};

    Money calculated =
        TickedTransactions(accounts, ledger)
            .balanceAfter(reconciled, last ? last->reconciled().balance() : Money(currency), date);
    if (accounts.isAsset()) {
        apply(budgetChanges, calculated);
        apply(accountChanges, calculated);
        checkBalance(account, calculated, balance, window);
    } else if (!banking::isLiabilityAccount(account.account.type)) {
        throw faults::surveyedTypeUnknown(account);
    }
    checkDistribution(account, distribution, budgetLedgers);

    Postings postings(account, date, budgetLedgers, ledger);
    postings.post(budgetChanges);
    postings.post(accountChanges);

    // After a failure the postings stay, since the statement shows them. The survey
    // does not, since the next one would begin from its balance.
    Restore surveysBefore(surveys);
    Restore ledgerBefore(ledger);
    surveying::CompletedSurvey completed =
        last.value_or(surveying::CompletedSurvey(account, currency));
    completed.completed(date, balance, distribution, nonDistributed, window);
    surveys.upsert(completed);

    reconcile(postings.posted(), accounts, bankLedgers, ledger);
    reconcile(reconciled, accounts, bankLedgers, ledger);
    surveysBefore.dismiss();
    ledgerBefore.dismiss();
    return completed;
}

} // namespace kiv::navigation::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/budget_bank_ledgers.h"

#include "navigation/internal/faults.h"
#include "navigation/internal/finalise_survey.h"
#include "navigation/internal/logging.h"
#include "navigation/internal/map_survey.h"

#include "accounting/number_handout.h"
#include "budgeting/item_account.h"

namespace kiv::navigation::internal {

using accounting::AccountCode;
using accounting::AccountNumber;
using banking::BankAccount;
using banking::BankName;
using budgeting::BudgetItemTypes;

// ---- recoding and adding -------------------------------------------------------

bool BudgetBankLedgers::hasReconciled(const AccountNumber &number) const
{
    return std::ranges::any_of(m_generalLedger.ledger(number).transactions(),
                               [](const accounting::Transaction &transaction) {
                                   return transaction.status() ==
                                          accounting::TransactionStatuses::Reconciled;
                               });
}

void BudgetBankLedgers::verifyParentOf(const AccountCode &from, const AccountCode &to) const
{
    const std::optional<BankAccount> account = lookUpBankAccount(from.number());
    if (!account || from.parent() == to.parent())
        return;
    const std::optional<AccountNumber> &parent = to.parent();
    if (!parent)
        throw faults::cannotLeaveParent(account->bank);
    if (!isBankAccount(*parent))
        throw faults::parentIsNoBankAccount(account->bank);
    if (hasReconciled(from.number()))
        throw faults::cannotMoveReconciled(account->bank);
}

void BudgetBankLedgers::recode(const AccountCode &from, const AccountCode &to)
{
    qInfo() << "Recoding" << from << "to" << to;
    verifyParentOf(from, to);
    verifyAccountCodeName(to);
    const BudgetSource source(from.name());
    const BudgetSource renamed(to.name());
    const bool isItem = visitOwner(source, [&]<typename T>(std::type_identity<T>) {
        verifyAccountCodeName(AccountCode(budgeting::itemAccountName(renamed), std::nullopt));
        m_budgetLedgers.rename<T>(source, renamed, to.number());
    });
    if (!isItem)
        m_generalLedger.recode(from, to);
    if (const std::optional<BankName> bank = m_bankLedgers.lookUpBankName(from.number())) {
        const BankAccount recoded = m_bankLedgers.recode(from.number(), to.number());
        logDone("Updating bank account after recode", recoded);
        m_surveys.renamedAccount(*bank, from.number(), to.number());
    }
}

AccountCode BudgetBankLedgers::addAccount(const QString &name, const BankAccountTypes &types,
                                          const Money &openingBalance)
{
    accounting::NumberHandout number(*m_generator, m_generalLedger);
    AccountCode code(number.number(), name, std::nullopt);
    const std::optional<TransactionNumber> opening =
        add(accounting::Account(banking::toAccountTypes(types), code, openingBalance, false));
    number.keep();
    logDone("Added account", name, "opening balance in",
            opening.value_or(TransactionNumber()).integer());
    return code;
}

// ---- bank accounts -------------------------------------------------------------

bool BudgetBankLedgers::isBankAccount(const AccountNumber &number) const
{
    return m_banks.find(number).has_value();
}

std::optional<BankAccount> BudgetBankLedgers::lookUpBankAccount(const AccountNumber &number) const
{
    const std::optional<BankName> bank = m_banks.find(number);
    if (!bank)
        return std::nullopt;
    return BankAccount{*bank, {number, m_banks.bank(*bank).accounts().at(number)}};
}

std::set<BankAccountCode> BudgetBankLedgers::bankAccounts() const
{
    std::set<BankAccountCode> accounts;
    for (const auto &[name, bank] : m_banks) {
        for (const auto &[number, type] : bank.accounts()) {
            const accounting::LedgerAccount account = m_generalLedger.ledger(number);
            accounts.emplace(BankAccount{name, {number, type}}, account.code(),
                             account.balance().code());
        }
    }
    return accounts;
}

std::map<budgeting::BudgetSource, AccountCode>
BudgetBankLedgers::itemAccounts(const BudgetItemTypes &type) const
{
    std::map<BudgetSource, AccountCode> codes;
    if (type == BudgetItemTypes::None)
        return codes;
    budgeting::visitItemClass(
        type, faults::bankAccountsOfUnknownType, [&]<typename T>(std::type_identity<T>) {
            for (const auto &[source, item] : m_budget.items<T>()) {
                try {
                    codes.emplace(source, m_budgetLedgers.budgetAccountCode<T>(source));
                } catch (const foundation::Error &error) {
                    // One item that lost its account must not hide all others.
                    logWarning("A budget item has no account.", error);
                }
            }
        });
    return codes;
}

std::set<BudgetBankAccount> BudgetBankLedgers::budgetBankAccounts(const BudgetItemTypes &type) const
{
    std::set<BudgetBankAccount> accounts;
    for (const auto &[source, code] : itemAccounts(type)) {
        const std::optional<BankAccount> own = lookUpBankAccount(code.number());
        std::optional<BankAccount> parent;
        if (const std::optional<AccountNumber> &number = code.parent())
            parent = lookUpBankAccount(*number);
        // A bank has a goal under its own number too, but shows it at its parent.
        const bool showsParent = type == BudgetItemTypes::Goal ? parent.has_value() : !own;
        if (const std::optional<BankAccount> &shown = showsParent ? parent : own)
            accounts.insert({type, source, *shown});
    }
    return accounts;
}

std::optional<BudgetBankAccount>
BudgetBankLedgers::findBudgetBankAccount(const BudgetItemTypes &type,
                                         const BudgetSource &source) const
{
    const std::set<BudgetBankAccount> accounts = budgetBankAccounts(type);
    const auto found = std::ranges::find(accounts, source, &BudgetBankAccount::source);
    return found == accounts.end() ? std::nullopt : std::optional(*found);
}

// ---- surveys -------------------------------------------------------------------

banking::ReconciledBalance BudgetBankLedgers::lastReconciliation(const AccountNumber &number) const
{
    const accounting::LedgerAccount account = m_generalLedger.ledger(number);
    const numira::Currency currency = account.balance().code();
    const std::optional<BankName> bank = m_bankLedgers.lookUpBankName(number);
    if (!bank)
        throw faults::neverReconcilable(account.code());
    const auto survey = m_surveys.lookUpSurvey(*bank, number);
    if (survey && survey->reconciled().reconciledOn()) {
        const banking::ReconciledBalance last{survey->reconciled().balance(),
                                              survey->reconciled().reconciledOn(), currency};
        qInfo() << "Account" << account.code() << "Last Reconciled:" << last;
        return last;
    }
    qInfo() << "Account" << account.code() << "Never Reconciled";
    return {Money(currency), std::nullopt, currency};
}

surveying::MappingSurvey BudgetBankLedgers::createMapSurvey(const BankName &bank,
                                                            const AccountNumber &number,
                                                            const QDate &date) const
{
    if (!m_banks.hasBank(bank))
        throw faults::surveyedBankDoesNotExist(bank);
    if (!m_generalLedger.hasLedger(number))
        throw faults::surveyedAccountDoesNotExist(number);
    const BankAccountTypes type = m_banks.bank(bank).accounts().at(number);
    return generateMapSurvey({bank, {number, type}}, date, m_banks, m_surveys, m_budgetLedgers);
}

surveying::CompletedSurvey BudgetBankLedgers::completedSurvey(
    const QDate &date, const BankAccount &account, const Money &balance,
    const std::set<TransactionNumber> &reconciled,
    const surveying::IndexedIncreaseDecreases<BudgetItemIdentifier> &budgetChanges,
    const surveying::IndexedIncreaseDecreases<AccountNumber> &accountChanges,
    const surveying::Distribution &distribution, const Money &nonDistributed,
    const foundation::Percentage &window)
{
    return finaliseSurvey(date, account, balance, reconciled, budgetChanges, accountChanges,
                          distribution, nonDistributed, window, m_budgetLedgers, m_bankLedgers,
                          m_surveys, m_generalLedger);
}

} // namespace kiv::navigation::internal

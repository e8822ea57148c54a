// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/budget_bank_ledgers.h"

#include "navigation/internal/faults.h"
#include "navigation/internal/remove_item.h"
#include "navigation/internal/undo.h"

namespace kiv::navigation::internal {

using accounting::AccountCode;
using accounting::Transaction;
using accounting::TransactionNumber;
using banking::BankAccount;
using banking::BankName;

// ---- accounts and transactions -------------------------------------------------

void BudgetBankLedgers::open(const AccountCode &code)
{
    m_generalLedger.open(code);
}

void BudgetBankLedgers::close(const AccountCode &code)
{
    m_generalLedger.close(code.number());
}

std::optional<TransactionNumber> BudgetBankLedgers::add(const accounting::Account &account)
{
    verifyAccountCodeName(account.code());
    return m_generalLedger.add(account, *m_generator);
}

void BudgetBankLedgers::remove(const AccountCode &code)
{
    const BudgetSource source(code.name());
    Restore before(*this);
    const bool wasItem = visitOwner(
        source, [&]<typename T>(std::type_identity<T>) { m_budgetLedgers.remove<T>(source); });
    if (!wasItem)
        m_generalLedger.remove(code.number());
    if (const std::optional<BankName> bank = m_bankLedgers.lookUpBankName(code.number()))
        m_bankLedgers.removeAssociation(*bank, code.number());
    before.dismiss();
}

TransactionNumber BudgetBankLedgers::post(const Transaction &transaction)
{
    return m_generalLedger.post(transaction);
}

void BudgetBankLedgers::repost(const TransactionNumber &number, const Transaction &transaction)
{
    m_generalLedger.repost(number, transaction);
}

void BudgetBankLedgers::remove(const TransactionNumber &number)
{
    m_generalLedger.remove(number);
}

void BudgetBankLedgers::reconcile(const TransactionNumber &number)
{
    m_generalLedger.reconcile(number);
}

void BudgetBankLedgers::unreconcile(const TransactionNumber &number)
{
    m_generalLedger.unreconcile(number);
}

void BudgetBankLedgers::clear(const TransactionNumber &number,
                              const std::optional<AccountNumber> &account)
{
    if (account)
        m_generalLedger.clear(number, *account);
    else
        m_generalLedger.clear(number);
}

TransactionNumber BudgetBankLedgers::postRefund(const TransactionNumber &number,
                                                const Money &amount)
{
    return m_generalLedger.refund(number, amount);
}

// ---- banks ---------------------------------------------------------------------

const banking::Bank &BudgetBankLedgers::add(const banking::Bank &bank)
{
    return m_bankLedgers.add(bank);
}

void BudgetBankLedgers::update(const banking::Bank &bank)
{
    m_bankLedgers.update(bank);
}

BankAccount BudgetBankLedgers::addAssociation(const BankName &bank, const AccountNumber &number,
                                              const BankAccountTypes &types)
{
    return m_bankLedgers.addAssociation(bank, number, types);
}

void BudgetBankLedgers::open(const BankName &name)
{
    m_bankLedgers.open(name);
}

void BudgetBankLedgers::close(const BankName &name)
{
    m_bankLedgers.close(name);
}

void BudgetBankLedgers::remove(const BankName &name)
{
    m_bankLedgers.remove(name);
}

void BudgetBankLedgers::rename(const BankName &from, const BankName &to)
{
    Restore before(*this);
    m_bankLedgers.rename(from, to);
    m_surveys.renamedBank(from, to);
    before.dismiss();
}

std::optional<BankAccount> BudgetBankLedgers::lookUpBankAccount(const BankName &bank,
                                                                const AccountNumber &number) const
{
    return m_bankLedgers.lookUpBankAccount(bank, number);
}

// ---- budget items --------------------------------------------------------------

void BudgetBankLedgers::remove(const BudgetItemIdentifier &id)
{
    Restore before(*this);
    removeItem(id, m_budgetLedgers, m_bankLedgers, m_surveys);
    before.dismiss();
}

TransactionNumber BudgetBankLedgers::process(const BudgetItemIdentifier &id, const Money &amount,
                                             const AccountCode &bank, const QDate &date)
{
    return m_budgetLedgers.processUnexpected(id, amount, bank, date);
}

TransactionNumber BudgetBankLedgers::process(const budgeting::BudgetItemAmountDue &due,
                                             const AccountCode &bank, const QDate &date)
{
    const BudgetSource &source = due.id.source;
    TransactionNumber number;
    const bool isKnown = visitOwner(source, [&]<typename T>(std::type_identity<T>) {
        number = m_budgetLedgers.process<T>(source, bank, due.amount, date);
    });
    if (!isKnown)
        throw faults::cannotProcessUnknownType(source);
    return number;
}

void BudgetBankLedgers::skip(const BudgetItemIdentifier &id)
{
    const bool isKnown = visitOwner(
        id.source, [&]<typename T>(std::type_identity<T>) { m_budgetLedgers.skip<T>(id.source); });
    if (!isKnown)
        throw faults::cannotSkipUnknownType(id.source);
}

std::optional<AccountCode>
BudgetBankLedgers::lookUpAccountCode(const BudgetItemIdentifier &id) const
{
    return m_budgetLedgers.lookUpAccountCode(id);
}

std::set<Transaction>
BudgetBankLedgers::nonReconciledTransactions(const BudgetItemIdentifier &id) const
{
    std::set<Transaction> transactions;
    for (const Transaction &transaction : m_budgetLedgers.transactions(id)) {
        if (transaction.status() != accounting::TransactionStatuses::Reconciled)
            transactions.insert(transactions.end(), transaction);
    }
    return transactions;
}

} // namespace kiv::navigation::internal

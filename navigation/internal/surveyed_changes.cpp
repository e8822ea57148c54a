// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/surveyed_changes.h"

#include "navigation/internal/faults.h"

#include "accounting/balances.h"
#include "surveying/distributable.h"

namespace kiv::navigation::internal {

using accounting::AccountCode;
using accounting::AccountNumber;
using accounting::Transaction;
using budgeting::BudgetItemIdentifier;

bool SurveyedAccounts::contains(AccountNumber account) const
{
    return account == number() || children.contains(account);
}

bool SurveyedAccounts::isWithin(const Transaction &transaction) const
{
    return contains(transaction.debiting().number()) && contains(transaction.crediting().number());
}

bool SurveyedAccounts::isInternal(const Transaction &transaction) const
{
    return isWithin(transaction) && transaction.involves(number());
}

/// A transaction as it moves the surveyed balance.
struct SurveyedChanges::Movement {
    const Transaction &transaction;
    AccountNumber walked;
    bool isInternal;
    /// Whether the bank account is on neither side, so that it was found only
    /// through an account under it.
    bool isByChild;
    bool isIncrease;
    /// The account on the other side of the one that moves the balance.
    AccountNumber counterpart;

    [[nodiscard]] surveying::BalanceChange change() const { return {isIncrease, transaction}; }
};

SurveyedChanges::SurveyedChanges(const SurveyedAccounts &accounts, const BudgetLedgers &ledgers,
                                 const numira::Money &balance)
    : m_accounts(accounts), m_ledgers(ledgers), m_balance(balance)
{
    // A map, since each of very many transactions is looked up.
    for (const auto &[type, numbers] : ledgers.budgetAccountCodes().maps()) {
        for (const auto &[source, number] : numbers)
            m_items.emplace(number,
                            BudgetItemIdentifier{budgeting::toBudgetItemTypes(type), source});
    }
}

void SurveyedChanges::add(const Transaction &transaction, AccountNumber walked)
{
    const bool isAsset = m_accounts.isAsset();
    const bool isByChild = !transaction.involves(m_accounts.number());
    const AccountNumber subject = isByChild ? walked : m_accounts.number();
    const bool isIncrease = isAsset ? accounting::shouldIncreaseAsset(transaction, subject)
                                    : accounting::shouldIncreaseLiability(transaction, subject);
    const AccountCode &counterpart =
        isIncrease == isAsset ? transaction.crediting() : transaction.debiting();
    const Movement movement{transaction, walked,     m_accounts.isInternal(transaction),
                            isByChild,   isIncrease, counterpart.number()};

    if (!movement.isInternal) {
        if (isIncrease)
            m_balance += transaction.amountFor(subject);
        else
            m_balance -= transaction.amountFor(subject);
    }
    if (const auto item = m_items.find(movement.counterpart); item != m_items.end())
        addToItem(movement, item->second);
    else
        addToAccount(movement);
}

void SurveyedChanges::addToItem(const Movement &movement, const BudgetItemIdentifier &item)
{
    if (!movement.isInternal &&
        surveying::isDistributable(item.type, m_ledgers.budgetedMoney(item).period()))
        distribute(movement, item);
    budgetItemChanges[item].insert(movement.change());
}

void SurveyedChanges::distribute(const Movement &movement, const BudgetItemIdentifier &item)
{
    const auto move = [this](const BudgetItemIdentifier &to, const numira::Money &amount,
                             bool isRaised) {
        if (isRaised)
            distribution[to] += amount;
        else
            distribution[to] -= amount;
    };
    move(item, movement.transaction.amountFor(movement.counterpart), !movement.isIncrease);
    if (!movement.isByChild)
        return;
    if (const auto own = m_items.find(movement.walked); own != m_items.end())
        move(own->second, movement.transaction.amountFor(movement.walked), movement.isIncrease);
}

void SurveyedChanges::addToAccount(const Movement &movement)
{
    const AccountCode &debit = movement.transaction.debiting();
    const AccountCode &credit = movement.transaction.crediting();
    const auto isOther = [&](const AccountCode &code) {
        return code.number() != m_accounts.number() && code.number() != movement.walked;
    };
    if (movement.isInternal) {
        // One account is the bank account, the other the child. The money has left
        // one and come into the other.
        const AccountCode &child = debit.number() == m_accounts.number() ? credit : debit;
        accountChanges[child].insert(movement.change());
        accountChanges[child].insert({!movement.isIncrease, movement.transaction});
        return;
    }
    if (isOther(debit) && isOther(credit))
        throw faults::surveyedAccountNotInvolved(m_accounts.bankAccount, movement.transaction);
    accountChanges[isOther(debit) ? debit : credit].insert(movement.change());
}

} // namespace kiv::navigation::internal

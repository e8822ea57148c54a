// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/entry_notices.h"

#include "workbench/entry/account_index.h"
#include "workbench/entry/money_text.h"
#include "workbench/requests/exchange_rates.h"
#include "workbench/requests/item_figures.h"
#include "workbench/requests/paying_account.h"

#include "foundation/presentation.h"

#include <cstdlib>

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::AccountTypes;
using accounting::GeneralLedger;
using accounting::LedgerAccount;
using accounting::Transaction;
using numira::Money;
using storage::BudgetStorage;

namespace {

/// Goes through what was entered.
class Noticing {
public:
    Noticing(const BudgetStorage::Data &before, const BudgetStorage::Data &after, QDate today,
             navigation::CurrencyDisplayOptions displayAs)
        : m_before(before), m_after(after), m_today(today), m_displayAs(displayAs)
    {
        const GeneralLedger &ledger = after.generalLedger;
        for (const accounting::TransactionNumber number :
             accounting::changedTransactions(before.generalLedger, ledger)) {
            const std::optional<Transaction> transaction = ledger.lookUpTransaction(number);
            if (!transaction)
                continue; // it was removed
            const auto was = before.generalLedger.lookUpTransaction(number);
            if (!was || was->debiting() != transaction->debiting() ||
                was->crediting() != transaction->crediting())
                addSources(*transaction);
            if (!was || was->occurredOn() != transaction->occurredOn())
                addDay(transaction->occurredOn());
            for (const AccountNumber touched :
                 {transaction->debiting().number(), transaction->crediting().number()})
                m_touched.insert(touched);
        }
    }

    [[nodiscard]] QStringList made()
    {
        for (const AccountNumber number : m_touched)
            addOverdraft(number);
        for (const auto &[source, goal] : m_after.budget.goals)
            addGoal(goal);
        for (const auto &[source, debt] : m_after.budget.debts)
            addDebt(debt);
        m_notices.removeDuplicates();
        return m_notices;
    }

private:
    void addSources(const Transaction &transaction);
    void addDay(QDate day);
    void addOverdraft(AccountNumber number);
    void addGoal(const budgeting::Goal &goal);
    void addDebt(const budgeting::Debt &debt);

    /// By how much the balance is higher than before; nothing if it was not touched.
    [[nodiscard]] std::optional<Money> riseOf(AccountNumber number) const
    {
        if (!m_touched.contains(number))
            return std::nullopt;
        const Money now = m_after.generalLedger.ledger(number).balance();
        return m_before.generalLedger.hasLedger(number)
                   ? now - m_before.generalLedger.ledger(number).balance()
                   : now;
    }
    [[nodiscard]] std::optional<Money> riseOf(const budgeting::BudgetedMoney &item) const
    {
        const auto account =
            accountOf(m_after, {budgeting::toBudgetItemTypes(item), item.source()});
        return account ? riseOf(*account) : std::nullopt;
    }

    const BudgetStorage::Data &m_before;
    const BudgetStorage::Data &m_after;
    QDate m_today;
    navigation::CurrencyDisplayOptions m_displayAs;
    std::set<AccountNumber> m_touched;
    QStringList m_notices;
};

void Noticing::addSources(const Transaction &transaction)
{
    const GeneralLedger &ledger = m_after.generalLedger;
    const LedgerAccount from = ledger.ledger(transaction.crediting().number());
    const LedgerAccount to = ledger.ledger(transaction.debiting().number());
    // A refund goes the way back.
    if (from.type() == AccountTypes::Expense && !transaction.refundOf())
        m_notices +=
            QObject::tr("This money came from %1, which is an expense account and keeps none.")
                .arg(plainNameOf(from));
    if (from.type() == AccountTypes::Income && to.type() == AccountTypes::Expense)
        m_notices += QObject::tr("The money of %1 went straight to %2, which is an expense account "
                                 "and keeps none.")
                         .arg(plainNameOf(from), plainNameOf(to));
}

void Noticing::addDay(QDate day)
{
    constexpr int yearsMax = 50;
    // Around the turn of a century, its other side is near.
    constexpr int yearsAcrossMax = 10;
    const int years = day.year() - m_today.year();
    const bool isOtherCentury = day.year() / 100 != m_today.year() / 100;
    if (std::abs(years) <= (isOtherCentury ? yearsAcrossMax : yearsMax))
        return;
    const QString told = foundation::presentationText(day);
    m_notices += years < 0 ? QObject::tr("The day %1 is %n years ago.", nullptr, -years).arg(told)
                           : QObject::tr("The day %1 is in %n years.", nullptr, years).arg(told);
}

void Noticing::addOverdraft(AccountNumber number)
{
    const GeneralLedger &ledger = m_after.generalLedger;
    const LedgerAccount account = ledger.ledger(number);
    if (account.type() != AccountTypes::Asset || !account.balance().isNegative() ||
        !(m_after.banks.find(number) || isItemAccount(account)) || !riseOf(number)->isNegative())
        return;
    // The bank's balance counts what lies under the account.
    Money held = account.balance();
    for (const AccountNumber child : ledger.lookUpChildren(number, accounting::OpenStates::Either))
        held += convertedIfKnown(ledger.ledger(child).balance(), held.code())
                    .value_or(Money(held.code()));
    const QString name = plainNameOf(account);
    m_notices += held.isNegative() ? QObject::tr("%1 is below zero: %2.")
                                         .arg(name, amountText(account.balance(), m_displayAs))
                                   : QObject::tr("The goals at %1 hold %2 more than there is.")
                                         .arg(name, amountText(-account.balance(), m_displayAs));
}

void Noticing::addGoal(const budgeting::Goal &goal)
{
    const std::optional<Money> rise = riseOf(goal);
    if (!rise || !rise->isPositive())
        return;
    const Money saved = progressOf(m_after, goal)->part;
    const Money &target = goal.final();
    if (target.isPositive() && saved.code() == target.code() && saved.amount() > target.amount())
        m_notices += QObject::tr("The goal '%1' has %2 now, more than its target of %3.")
                         .arg(goal.source().name(), amountText(saved, m_displayAs),
                              amountText(target, m_displayAs));
}

void Noticing::addDebt(const budgeting::Debt &debt)
{
    const std::optional<Money> rise = riseOf(debt);
    if (!rise || !rise->isNegative())
        return;
    const Money owed = progressOf(m_after, debt)->part;
    if (owed.isNegative())
        m_notices += QObject::tr("For the debt '%1', %2 more was paid than was owed.")
                         .arg(debt.source().name(), amountText(-owed, m_displayAs));
}

} // namespace

QStringList entryNotices(const BudgetStorage::Data &before, const BudgetStorage::Data &after,
                         QDate today, navigation::CurrencyDisplayOptions displayAs)
{
    return Noticing(before, after, today, displayAs).made();
}

} // namespace kiv::workbench

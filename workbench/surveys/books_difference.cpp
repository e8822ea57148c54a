// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/surveys/books_difference.h"

#include "workbench/entry/account_index.h"
#include "workbench/entry/money_text.h"
#include "workbench/requests/exchange_rates.h"

#include "foundation/presentation.h"

#include <algorithm>

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionNumber;
using accounting::TransactionStatuses;
using banking::BankAccount;
using numira::Money;
using storage::BudgetStorage;
using surveying::Reconciliation;
using surveying::Reconciliations;

namespace {

bool isOf(const Reconciliation &one, const BankAccount &account)
{
    return one.account.bank == account.bank && one.account.account.number == account.account.number;
}

/// The accounts of a statement, and the transactions that it can show.
class Family {
public:
    Family(const BankAccount &account, const accounting::GeneralLedger &ledger)
        : m_ledger(ledger), m_number(account.account.number)
    {
        m_isOwed = banking::isLiabilityAccount(account.account.type);
        m_members = ledger.lookUpChildren(m_number, accounting::OpenStates::Either);
        m_members.insert(m_number);
    }

    [[nodiscard]] bool has(AccountNumber number) const { return m_members.contains(number); }
    /// Calls `look` with each transaction that moves the statement's balance; it stands in one
    /// of the accounts only. Ends when `look` returns false, and returns that.
    template <typename Look>
    bool eachTransaction(Look &&look) const
    {
        return std::ranges::all_of(m_members, [&](AccountNumber member) {
            return std::ranges::all_of(
                m_ledger.ledger(member).transactions(), [&](const Transaction &one) {
                    return (has(one.debiting().number()) && has(one.crediting().number())) ||
                           look(one);
                });
        });
    }
    /// Whether the family's side of the transaction is reconciled.
    [[nodiscard]] bool isReconciled(const Transaction &one) const
    {
        return (has(one.debiting().number()) ? one.debitStatus() : one.creditStatus()) ==
               TransactionStatuses::Reconciled;
    }
    /// What the transaction does to the balance; nothing without an exchange rate.
    [[nodiscard]] std::optional<Money> effect(const Transaction &one,
                                              const numira::Currency &currency) const
    {
        const bool isDebited = has(one.debiting().number());
        const Money &amount =
            one.amountFor(isDebited ? one.debiting().number() : one.crediting().number());
        return convertedIfKnown(isDebited == m_isOwed ? -amount : amount, currency);
    }
    /// The same as a survey recorded it.
    [[nodiscard]] std::optional<Money> effect(const surveying::ReconciledTransaction &one,
                                              const numira::Currency &currency) const
    {
        if (has(one.debit) == has(one.credit))
            return Money(currency);
        return convertedIfKnown(has(one.debit) == m_isOwed ? -one.amount : one.amount, currency);
    }

private:
    const accounting::GeneralLedger &m_ledger;
    AccountNumber m_number;
    bool m_isOwed = false;
    std::set<AccountNumber> m_members;
};

/// Which transactions the surveys of an account counted.
class Counted {
public:
    Counted(const BankAccount &account, const Reconciliations &reconciliations,
            const CountedElsewhere &counted)
    {
        for (const Reconciliation &one : reconciliations) {
            std::set<TransactionNumber> &numbers = isOf(one, account) ? m_own : m_others;
            for (const surveying::ReconciledTransaction &transaction : one.transactions)
                numbers.insert(transaction.number);
        }
        if (const auto found = counted.find(account.account.number); found != counted.end())
            m_own.insert(found->second.begin(), found->second.end());
    }

    [[nodiscard]] bool has(const Transaction &one, const Family &family) const
    {
        const TransactionNumber number = one.number().value();
        return m_own.contains(number) || (family.isReconciled(one) && !m_others.contains(number));
    }
    [[nodiscard]] bool isElsewhere(const Transaction &one, const Family &family) const
    {
        const TransactionNumber number = one.number().value();
        return family.isReconciled(one) && m_others.contains(number) && !m_own.contains(number);
    }

private:
    std::set<TransactionNumber> m_own;
    std::set<TransactionNumber> m_others;
};

/// The first day of the statements, back from the last, after which the books differed.
QDate differsSince(const BankAccount &account, const Family &family,
                   const Reconciliations &reconciliations, const numira::Currency &currency)
{
    Money counted(currency);
    QDate since;
    for (const Reconciliation &one : reconciliations) {
        if (!isOf(one, account))
            continue;
        for (const surveying::ReconciledTransaction &transaction : one.transactions)
            counted += family.effect(transaction, currency).value_or(Money(currency));
        if ((one.balance - counted).rounded().isZero())
            since = {};
        else if (!since.isValid())
            since = one.day;
    }
    return since;
}

} // namespace

QString belowBankText(const Money &amount, navigation::CurrencyDisplayOptions displayAs)
{
    const QString text = amountText(amount.abs(), displayAs);
    return amount.isNegative() ? QObject::tr("%1 above the bank").arg(text)
                               : QObject::tr("%1 below the bank").arg(text);
}

QString BooksDifference::sentence(const accounting::GeneralLedger &ledger,
                                  navigation::CurrencyDisplayOptions displayAs) const
{
    const QString name = plainNameOf(ledger.ledger(account.account.number));
    return QObject::tr("The books of %1 are %2 since %3.")
        .arg(name, belowBankText(amount, displayAs), foundation::presentationText(since));
}

std::optional<BooksDifference> booksDifference(const BankAccount &account,
                                               const BudgetStorage::Data &data,
                                               const Reconciliations &reconciliations,
                                               const CountedElsewhere &counted)
{
    const AccountNumber number = account.account.number;
    const auto survey = data.surveys.lookUpSurvey(account.bank, number);
    if (!survey || !survey->reconciled().reconciledOn() || !data.generalLedger.hasLedger(number))
        return std::nullopt;
    const Family family(account, data.generalLedger);
    const Counted numbers(account, reconciliations, counted);
    Money rest = survey->reconciled().balance();
    const bool isKnown = family.eachTransaction([&](const Transaction &one) {
        if (!numbers.has(one, family))
            return true;
        const auto effect = family.effect(one, rest.code());
        if (effect)
            rest -= *effect;
        return effect.has_value();
    });
    if (!isKnown)
        return std::nullopt;
    rest = rest.rounded();
    if (rest.isZero())
        return std::nullopt;
    const QDate since = differsSince(account, family, reconciliations, rest.code());
    return BooksDifference{account, rest,
                           since.isValid() ? since : *survey->reconciled().reconciledOn()};
}

std::vector<BooksDifference> booksDifferences(const BudgetStorage::Data &data,
                                              const Reconciliations &reconciliations,
                                              const CountedElsewhere &counted)
{
    std::vector<BooksDifference> all;
    for (const auto &[name, bank] : data.banks) {
        for (const auto &[number, type] : bank.accounts()) {
            if (const auto one =
                    booksDifference({name, {number, type}}, data, reconciliations, counted))
                all.push_back(*one);
        }
    }
    return all;
}

std::vector<Transaction> reconciledElsewhere(const BankAccount &account, QDate until,
                                             const BudgetStorage::Data &data,
                                             const Reconciliations &reconciliations,
                                             const CountedElsewhere &counted)
{
    const Family family(account, data.generalLedger);
    const Counted numbers(account, reconciliations, counted);
    std::vector<Transaction> found;
    family.eachTransaction([&](const Transaction &one) {
        if (one.occurredOn() <= until && numbers.isElsewhere(one, family))
            found.push_back(one);
        return true;
    });
    return found;
}

} // namespace kiv::workbench

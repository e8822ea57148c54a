// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/transactions.h"

#include "workbench/entry/description.h"
#include "workbench/internal/faults.h"
#include "workbench/requests/other_day.h"
#include "workbench/requests/paying_account.h"

#include "foundation/clock.h"

namespace kiv::workbench {

using accounting::Account;
using accounting::AccountCode;
using accounting::AccountNumber;
using accounting::AccountTypes;
using accounting::Transaction;
using accounting::TransactionNumber;
using navigation::Navigator;

namespace {

/// The number of the last posted transaction.
template <typename Answers>
TransactionNumber postedNumber(const Answers &answers)
{
    return std::get<1>(answers.back()).value_or(TransactionNumber());
}

bool holds(const std::set<navigation::BankAccountCode> &accounts, AccountNumber number)
{
    return std::ranges::any_of(
        accounts, [number](const auto &account) { return account.account().number() == number; });
}

/// The new description, with the banks' identifiers of the old one.
std::optional<QString> describedAfter(const Transaction &present,
                                      const std::optional<QString> &description)
{
    if (!description)
        return present.description();
    Description changed = Description::of(*description);
    if (changed.bankIds.isEmpty())
        changed.bankIds = Description::of(present.description()).bankIds;
    return changed.text();
}

} // namespace

TransactionNumber post(Requests &requests, const Transaction &transaction)
{
    return postedNumber(
        requests.change(transactionOutcome, &Navigator::onAddedTransaction, transaction));
}

TransactionNumber transfer(Requests &requests, const Transfer &transfer)
{
    const AccountIndex index = requests.accounts();
    const AccountCode giver = index.find(transfer.from).code();
    const Account &receiver = index.find(transfer.to);
    const numira::Money amount = transfer.amount.in(receiver.balance().code());
    const QDate today = foundation::today();
    const auto offered =
        requests.ask(&Navigator::showMoneyTransfer, &Navigator::onPrepareShowMoneyTransfer);
    if (transfer.day.value_or(today) == today && holds(std::get<0>(offered), giver.number()) &&
        holds(std::get<1>(offered), receiver.code().number())) {
        // The slot debits its first account.
        return postedNumber(requests.change(transactionOutcome, &Navigator::onTransferRequested,
                                            receiver.code().number(), giver.number(), amount,
                                            transfer.description));
    }
    return post(requests, Transaction(transfer.day.value_or(today), receiver.code(), giver, amount,
                                      Description::of(transfer.description).text()));
}

TransactionNumber spend(Requests &requests, const Spent &spent)
{
    const AccountIndex index = requests.accounts();
    const Account &on = index.find(spent.on);
    if (!canBeSpentOn(on))
        throw internal::notSpentOn(index.plainName(on.code().number()));
    const Account &from = *index.find(typedPayer(requests, spent.from, on));
    if (!keepsMoney(from))
        throw internal::keepsNoMoney(index.plainName(from.code().number()));
    return post(requests, Transaction(spent.day.value_or(foundation::today()), on.code(),
                                      from.code(), spent.amount.in(from.balance().code()),
                                      Description{spent.payee, spent.reason, {}}.text()));
}

TransactionNumber earn(Requests &requests, const Earned &earned)
{
    const AccountIndex index = requests.accounts();
    const Account &from = index.find(earned.from);
    if (from.type() != AccountTypes::Income)
        throw internal::notEarnedFrom(index.plainName(from.code().number()));
    const Account &to = *index.find(typedPayer(requests, earned.to, from));
    if (!keepsMoney(to))
        throw internal::keepsNoMoney(index.plainName(to.code().number()));
    return post(requests, Transaction(earned.day.value_or(foundation::today()), to.code(),
                                      from.code(), earned.amount.in(to.balance().code()),
                                      Description{earned.payee, earned.reason, {}}.text()));
}

std::optional<AccountNumber> paidFrom(Requests &requests, const Account &item)
{
    const AccountIndex index = requests.accounts();
    return usualPayer(&item, requests.banks(), [&index](AccountNumber number) {
        const Account *account = index.find(number);
        return account && !account->isClosed() && keepsMoney(*account);
    });
}

AccountNumber typedPayer(Requests &requests, const QString &text, const Account &item)
{
    const AccountIndex index = requests.accounts();
    if (!text.isEmpty())
        return index.find(text).code().number();
    const std::optional<AccountNumber> usual = paidFrom(requests, item);
    if (!usual)
        throw internal::noUsualAccount(index.plainName(item.code().number()));
    return *usual;
}

TransactionNumber refund(Requests &requests, TransactionNumber number, const Amount &amount,
                         const std::optional<QDate> &day)
{
    const numira::Currency currency = requests.transaction(number).amount().code();
    const TransactionNumber posted = postedNumber(
        requests.change(transactionOutcome, &Navigator::onPostRefund, number, amount.in(currency)));
    moveTo(requests, posted, day);
    return posted;
}

void changeTransaction(Requests &requests, TransactionNumber number, const TransactionValues &given)
{
    const AccountIndex index = requests.accounts();
    const Transaction present = requests.transaction(number);
    const AccountCode debited = given.debit ? index.find(*given.debit).code() : present.debiting();
    const AccountCode credited =
        given.credit ? index.find(*given.credit).code() : present.crediting();
    const numira::Money money =
        given.amount ? given.amount->in(present.amount().code()) : present.amount();
    requests.change(transactionOutcome, &Navigator::onUpdatedTransaction, number,
                    Transaction(given.day.value_or(present.occurredOn()), debited, credited, money,
                                describedAfter(present, given.description)));
}

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/transactions.h"

#include "workbench/internal/faults.h"
#include "workbench/requests/other_day.h"

#include "interchange/duplicates.h"

namespace kiv::workbench {

using accounting::AccountCode;
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

bool holds(const std::set<navigation::BankAccountCode> &accounts, accounting::AccountNumber number)
{
    return std::ranges::any_of(
        accounts, [number](const auto &account) { return account.account().number() == number; });
}

/// The new description, with the bank's identifier of the old one.
std::optional<QString> describedAfter(const Transaction &present,
                                      const std::optional<QString> &description)
{
    if (!description || !present.description())
        return description ? description : present.description();
    const QString id = interchange::bankIdOf(*present.description());
    return interchange::bankIdOf(*description).isEmpty() ? interchange::withBankId(*description, id)
                                                         : *description;
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
    const auto answer =
        requests.ask(&Navigator::showMoneyTransfer, &Navigator::onPrepareShowMoneyTransfer);
    const AccountCode source = index.find(transfer.from).code();
    const accounting::Account &target = index.find(transfer.to);
    if (!holds(std::get<0>(answer), source.number()))
        throw internal::noTransferFrom(transfer.from);
    if (!holds(std::get<1>(answer), target.code().number()))
        throw internal::noTransferTo(transfer.to);
    // The slot debits its first account, and a debit raises an asset.
    const TransactionNumber number = postedNumber(requests.change(
        transactionOutcome, &Navigator::onTransferRequested, target.code().number(),
        source.number(), transfer.amount.in(target.balance().code()), transfer.description));
    moveTo(requests, number, transfer.day);
    return number;
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

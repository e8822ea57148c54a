// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/entry_forms.h"

#include "workbench/entry/description.h"
#include "workbench/internal/faults.h"

#include "numira/error.h"

namespace kiv::workbench {

using accounting::Account;
using accounting::AccountNumber;
using accounting::AccountTypes;
using accounting::Transaction;
using accounting::TransactionNumber;
using accounting::TransactionStatuses;
using navigation::Navigator;

namespace {

bool isOwn(const AccountIndex &index, AccountNumber number)
{
    const Account *account = index.find(number);
    return account && keepsMoney(*account);
}

bool fits(EntryForm form, const Account &account)
{
    switch (form) {
    case EntryForm::Spent:
        return canBeSpentOn(account);
    case EntryForm::Earned:
        return account.type() == AccountTypes::Income;
    case EntryForm::Moved:
        break;
    }
    return keepsMoney(account);
}

QString typed(AccountNumber number)
{
    return accounting::presentationText(number);
}

Description descriptionOf(const Entry &entry)
{
    return {entry.payee, entry.reason, {}};
}

/// A line of a split as a form of its own.
Entry lineOf(const SplitEntry &entry, const SplitLine &line)
{
    return {entry.form, line.amount, entry.own, line.other, entry.payee, entry.reason, entry.day};
}

} // namespace

EntryForm formOf(const Transaction &transaction, const AccountIndex &index)
{
    const bool isOwnDebited = isOwn(index, transaction.debiting().number());
    const bool isOwnCredited = isOwn(index, transaction.crediting().number());
    if (isOwnDebited == isOwnCredited)
        return EntryForm::Moved;
    const EntryForm form = isOwnCredited ? EntryForm::Spent : EntryForm::Earned;
    const Account *other = index.find(isOwnCredited ? transaction.debiting().number()
                                                    : transaction.crediting().number());
    return other && fits(form, *other) ? form : EntryForm::Moved;
}

Entry entryOf(const Transaction &transaction, const AccountIndex &index)
{
    Entry entry;
    entry.form = formOf(transaction, index);
    const bool isEarned = entry.form == EntryForm::Earned;
    const AccountNumber debited = transaction.debiting().number();
    const AccountNumber credited = transaction.crediting().number();
    entry.own = isEarned ? debited : credited;
    entry.other = isEarned ? credited : debited;
    entry.amount.number = transaction.amount().amount();
    entry.amount.digits = entry.amount.number.digits();
    entry.amount.currency = transaction.amount().code();
    const Description parts = Description::of(transaction.description());
    entry.payee = parts.payee;
    entry.reason = parts.reason;
    entry.day = transaction.occurredOn();
    return entry;
}

std::vector<AccountNumber> ownAccounts(const AccountIndex &index)
{
    return otherAccounts(EntryForm::Moved, index);
}

std::vector<AccountNumber> otherAccounts(EntryForm form, const AccountIndex &index)
{
    std::vector<AccountNumber> numbers;
    for (const Account &account : index.accounts()) {
        if (!account.isClosed() && fits(form, account))
            numbers.push_back(account.code().number());
    }
    return numbers;
}

EntryPart doubtfulPart(const Entry &entry, const AccountIndex &index)
{
    const auto isDoubtful = [&index](AccountNumber number, EntryForm form) {
        const Account *account = index.find(number);
        return !account || account->isClosed() || !fits(form, *account);
    };
    if (isDoubtful(entry.own, EntryForm::Moved))
        return EntryPart::Own;
    return isDoubtful(entry.other, entry.form) || entry.own == entry.other ? EntryPart::Other
                                                                           : EntryPart::Amount;
}

std::pair<EntryPart, std::size_t> doubtfulPart(const SplitEntry &entry, const AccountIndex &index)
{
    for (std::size_t place = 0; place < entry.lines.size(); ++place) {
        const SplitLine &line = entry.lines[place];
        const EntryPart part = doubtfulPart(lineOf(entry, line), index);
        if (part != EntryPart::Amount || line.amount.number.sign() <= 0)
            return {part, place};
    }
    return {EntryPart::Amount, 0};
}

numira::Money splitTotal(const SplitEntry &entry, const AccountIndex &index)
{
    const Account *own = index.find(entry.own);
    numira::Money total(own ? own->balance().code() : numira::Currency());
    for (const SplitLine &line : entry.lines) {
        try {
            total += line.amount.in(total.code());
        } catch (const numira::OverflowError &) {
            throw internal::amountTooLarge(line.amount.text);
        }
    }
    return total;
}

TransactionNumber enter(Requests &requests, const Entry &entry)
{
    const QString own = typed(entry.own);
    const QString other = typed(entry.other);
    switch (entry.form) {
    case EntryForm::Spent:
        return spend(requests, {entry.amount, own, other, entry.payee, entry.reason, entry.day});
    case EntryForm::Earned:
        return earn(requests, {entry.amount, own, other, entry.payee, entry.reason, entry.day});
    case EntryForm::Moved:
        break;
    }
    return transfer(requests, {own, other, entry.amount,
                               descriptionOf(entry).text().value_or(QString()), entry.day});
}

std::vector<TransactionNumber> enterSplit(Requests &requests, const SplitEntry &entry)
{
    if (entry.form == EntryForm::Moved)
        throw std::logic_error("Money that only moves is not split.");
    if (entry.lines.size() < 2)
        throw internal::splitTooShort();
    (void)splitTotal(entry, requests.accounts());
    std::vector<TransactionNumber> numbers;
    numbers.reserve(entry.lines.size());
    for (const SplitLine &line : entry.lines)
        numbers.push_back(enter(requests, lineOf(entry, line)));
    return numbers;
}

void changeInto(Requests &requests, TransactionNumber number, const Entry &entry)
{
    const bool isEarned = entry.form == EntryForm::Earned;
    changeTransaction(requests, number,
                      {entry.day, entry.amount, typed(isEarned ? entry.own : entry.other),
                       typed(isEarned ? entry.other : entry.own),
                       descriptionOf(entry).text().value_or(QString())});
}

numira::Money leftToRefund(const Transaction &transaction, const AccountIndex &index)
{
    numira::Money left = transaction.amount();
    const Account *account = index.find(transaction.debiting().number());
    if (!account)
        return left;
    // A refund has the same accounts, and is in the same currency.
    for (const Transaction &other : account->transactions()) {
        if (other.refundOf() && other.refundOf() == transaction.number())
            left -= other.amount();
    }
    return left;
}

void recategorize(Requests &requests, const std::vector<TransactionNumber> &numbers,
                  AccountNumber category)
{
    const AccountIndex index = requests.accounts();
    for (const TransactionNumber number : numbers) {
        const Transaction transaction = requests.transaction(number);
        const bool isOwnDebited = isOwn(index, transaction.debiting().number());
        if (isOwnDebited == isOwn(index, transaction.crediting().number()))
            throw internal::noCategory(nameOf(transaction, requests.displayAs()));
        TransactionValues given;
        (isOwnDebited ? given.credit : given.debit) = typed(category);
        changeTransaction(requests, number, given);
    }
}

void mark(Requests &requests, const std::vector<TransactionNumber> &numbers, Marking marking)
{
    using Marks = std::set<TransactionNumber>;
    for (const TransactionNumber number : numbers) {
        switch (marking) {
        case Marking::Clear:
            requests.change(transactionOutcome, &Navigator::onMarkCleared, Marks{number});
            break;
        case Marking::Reconcile:
            requests.change(transactionOutcome, &Navigator::onMarkReconciled, number);
            break;
        case Marking::TakeReconciledBack:
            requests.change(transactionOutcome, &Navigator::onMarkUnreconciled, Marks{number});
            break;
        case Marking::TakeClearedBack: {
            const Transaction transaction = requests.transaction(number);
            const auto highest = std::max(transaction.debitStatus(), transaction.creditStatus());
            if (highest == TransactionStatuses::Reconciled)
                throw internal::stillReconciled(nameOf(transaction, requests.displayAs()));
            // No request does this alone; what is reconciled and taken back is open.
            requests.change(transactionOutcome, &Navigator::onMarkReconciled, number);
            requests.change(transactionOutcome, &Navigator::onMarkUnreconciled, Marks{number});
            break;
        }
        }
    }
}

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/general_ledger.h"

#include "accounting/internal/faults.h"
#include "accounting/internal/ledger_state.h"
#include "accounting/internal/posting.h"

namespace kiv::accounting {
namespace {

using internal::LedgerState;
using internal::TransactionRecord;

/// Throws TransactionError when the account is on neither side.
void checkInvolved(const LedgerState &state, TransactionNumber number, AccountNumber account)
{
    if (!state.record(number).involves(account))
        throw internal::accountNotInvolved(number, account);
}

/// The same transaction with its amount in another currency, as refunds are in
/// that of the transaction they refund.
Transaction enteredIn(const Transaction &transaction, const numira::Currency &currency,
                      TransactionNumber number)
{
    if (transaction.amount().code() == currency || !transaction.amount().isPositive())
        return transaction;
    return {transaction.occurredOn(), transaction.debiting(), transaction.crediting(),
            internal::convertedAmount(transaction.amount(), currency, number),
            transaction.description()};
}

/// Throws TransactionError when `after` would break the ties between `before`
/// and the transaction that it refunds, or its own refunds.
void checkRefunds(const LedgerState &state, TransactionNumber number,
                  const TransactionRecord &before, const TransactionRecord &after)
{
    if (!before.refundOf && !before.hasRefunds())
        return;
    if (after.debit != before.debit || after.credit != before.credit)
        throw internal::accountsHeldByRefund(number);
    if (before.refundOf) {
        const TransactionRecord &original = state.record(*before.refundOf);
        const numira::Money left = original.amount - (original.refunded() - before.amount);
        if (after.amount > left)
            throw internal::refundTooLarge(*before.refundOf, after.amount, left);
        return;
    }
    if (after.amount.code() != before.amount.code())
        throw internal::currencyHeldByRefunds(number, before.amount.code());
    if (after.amount < before.refunded())
        throw internal::belowItsRefunds(number, after.amount, before.refunded());
}

/// Throws TransactionError when `after` leaves an account that this transaction
/// opened.
void checkOpening(const LedgerState &state, TransactionNumber number,
                  const TransactionRecord &before, const TransactionRecord &after)
{
    for (const AccountNumber side : {before.debit, before.credit}) {
        const internal::AccountRecord &account = state.account(side);
        if (account.openedBy == number && !after.involves(side))
            throw internal::openingKeepsAccount(number, account.code);
    }
}

/// Throws when the transaction is fixed: reconciled, or in a closed account.
void checkChangeable(const LedgerState &state, TransactionNumber number)
{
    const TransactionRecord &record = state.record(number);
    if (record.isReconciled())
        throw internal::sideIsReconciled(number);
    internal::checkOpen(state.account(record.debit));
    internal::checkOpen(state.account(record.credit));
}

} // namespace

TransactionNumber GeneralLedger::post(const Transaction &transaction)
{
    return postNew(transaction, std::nullopt);
}

TransactionNumber GeneralLedger::postNew(const Transaction &transaction,
                                         std::optional<TransactionNumber> refundOf)
{
    TransactionRecord record = internal::newRecord(*m_state, transaction, TransactionNumber());
    record.refundOf = refundOf;
    const TransactionNumber number = m_state->table().nextFree();
    if (!number.isValid())
        throw internal::ledgerIsFull();
    change().exchange(number, std::move(record));
    return number;
}

void GeneralLedger::repost(TransactionNumber number, const Transaction &transaction)
{
    checkChangeable(*m_state, number);
    const TransactionRecord &before = m_state->record(number);
    TransactionRecord after = internal::newRecord(
        *m_state,
        before.refundOf ? enteredIn(transaction, before.amount.code(), number) : transaction,
        number, &before);
    checkOpening(*m_state, number, before, after);
    checkRefunds(*m_state, number, before, after);
    after.debitStatus =
        after.debit == before.debit ? before.debitStatus : TransactionStatuses::None;
    after.creditStatus =
        after.credit == before.credit ? before.creditStatus : TransactionStatuses::None;
    after.refundOf = before.refundOf;
    after.setRefundedAmount(before.refundedAmount());
    change().exchange(number, std::move(after));
}

void GeneralLedger::remove(TransactionNumber number)
{
    checkChangeable(*m_state, number);
    const TransactionRecord &record = m_state->record(number);
    if (record.hasRefunds())
        throw internal::hasRefunds(number, record.refunded());
    change().exchange(number, std::nullopt);
}

void GeneralLedger::reconcile(TransactionNumber number)
{
    TransactionRecord &record = change().changeRecord(number);
    record.debitStatus = record.creditStatus = TransactionStatuses::Reconciled;
}

void GeneralLedger::reconcile(const std::set<TransactionNumber> &numbers)
{
    GeneralLedger next(*this);
    for (const TransactionNumber number : numbers)
        next.reconcile(number);
    *this = std::move(next);
}

void GeneralLedger::reconcile(TransactionNumber number, AccountNumber account)
{
    checkInvolved(*m_state, number, account);
    TransactionRecord &record = change().changeRecord(number);
    (record.debit == account ? record.debitStatus : record.creditStatus) =
        TransactionStatuses::Reconciled;
}

void GeneralLedger::unreconcile(TransactionNumber number)
{
    TransactionRecord &record = change().changeRecord(number);
    for (TransactionStatuses *status : {&record.debitStatus, &record.creditStatus}) {
        if (*status == TransactionStatuses::Reconciled)
            *status = TransactionStatuses::None;
    }
}

void GeneralLedger::clear(TransactionNumber number)
{
    if (m_state->record(number).isReconciled())
        throw internal::sideIsReconciled(number);
    TransactionRecord &record = change().changeRecord(number);
    record.debitStatus = record.creditStatus = TransactionStatuses::Cleared;
}

void GeneralLedger::clear(TransactionNumber number, AccountNumber account)
{
    checkInvolved(*m_state, number, account);
    const auto side = [account](auto &record) -> auto &
    {
        return record.debit == account ? record.debitStatus : record.creditStatus;
    };
    if (side(m_state->record(number)) == TransactionStatuses::Reconciled)
        throw internal::sideIsReconciled(number);
    side(change().changeRecord(number)) = TransactionStatuses::Cleared;
}

TransactionNumber GeneralLedger::refund(TransactionNumber number, const numira::Money &amount,
                                        QDate postedOn)
{
    const TransactionRecord &original = m_state->record(number);
    if (original.refundOf)
        throw internal::refundOfRefund(number, *original.refundOf);
    const Transaction giveBack = enteredIn(
        Transaction(postedOn, original.credit, original.debit, amount, original.description.text()),
        original.amount.code(), number);
    const numira::Money left = original.amount - original.refunded();
    if (giveBack.amount().isPositive() && giveBack.amount() > left)
        throw internal::refundTooLarge(number, giveBack.amount(), left);
    return postNew(giveBack, number);
}

} // namespace kiv::accounting

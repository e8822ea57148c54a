// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/ledger_replay.h"

#include "accounting/internal/faults.h"
#include "accounting/internal/ledger_state.h"
#include "accounting/internal/posting.h"

namespace kiv::accounting {
namespace {

using internal::AccountRecord;
using internal::LedgerState;
using internal::TransactionRecord;

void checkSide(const AccountRecord &account, const numira::Money &amount,
               const TransactionRecord &record, TransactionNumber number)
{
    if (!amount.isPositive() || amount.code() != account.currency() ||
        *record.knownIn(amount.code()) != amount)
        throw internal::sideAmountWrong(number, amount, account.code);
}

/// Whether one of its accounts was opened by the transaction.
bool isOpening(const LedgerState &state, TransactionNumber number, const TransactionRecord &record)
{
    return state.account(record.debit).openedBy == number ||
           state.account(record.credit).openedBy == number;
}

} // namespace

LedgerReplay::LedgerReplay() = default;
LedgerReplay::~LedgerReplay() = default;

void LedgerReplay::addAccount(AccountTypes type, const AccountCode &code,
                              const numira::Currency &currency, bool holdsOpenings)
{
    internal::checkNewAccount(*m_ledger.m_state, type, code);
    if (holdsOpenings && type != AccountTypes::Equity)
        throw internal::openingsOutsideEquity(code, type);
    m_ledger.change().insertAccount(type, code, currency, holdsOpenings);
}

void LedgerReplay::post(Transaction transaction)
{
    const LedgerState &state = *m_ledger.m_state;
    const TransactionNumber number = transaction.number().value_or(TransactionNumber());
    if (!number.isValid())
        throw internal::numberMissing();
    if (state.table().find(number))
        throw internal::numberTaken(number);
    internal::checkTransaction(state, transaction, number);
    TransactionRecord record = internal::plainRecord(std::move(transaction));
    checkSide(state.account(record.debit), record.debitAmount(), record, number);
    checkSide(state.account(record.credit), record.creditAmount(), record, number);
    m_ledger.change().exchange(number, std::move(record));
}

std::optional<QString> LedgerReplay::descriptionOf(TransactionNumber number) const
{
    const TransactionRecord *const record = m_ledger.m_state->table().find(number);
    return record ? record->description : std::nullopt;
}

void LedgerReplay::markRefund(TransactionNumber number, TransactionNumber original)
{
    const LedgerState &state = *m_ledger.m_state;
    TransactionRecord refund = state.record(number);
    const TransactionRecord &refunded = state.record(original);
    if (refund.refundOf || refund.hasRefunds() || refunded.refundOf ||
        refund.debit != refunded.credit || refund.credit != refunded.debit ||
        refund.amount.code() != refunded.amount.code() || isOpening(state, number, refund))
        throw internal::notARefundOf(number, original);
    const numira::Money left = refunded.amount - refunded.refunded();
    if (refund.amount > left)
        throw internal::refundTooLarge(original, refund.amount, left);
    refund.refundOf = original;
    m_ledger.change().exchange(number, std::move(refund));
}

void LedgerReplay::markOpening(AccountNumber account, TransactionNumber number)
{
    const LedgerState &state = *m_ledger.m_state;
    const AccountRecord &opened = state.account(account);
    if (opened.openedBy)
        throw internal::alreadyHasOpening(opened.code, *opened.openedBy);
    const TransactionRecord &record = state.record(number);
    if (!record.involves(account) || record.refundOf || isOpening(state, number, record))
        throw internal::notAnOpening(number, opened.code);
    m_ledger.change().changeAccount(account).openedBy = number;
}

void LedgerReplay::close(AccountNumber number)
{
    m_ledger.close(number);
}

GeneralLedger LedgerReplay::finish()
{
    return std::exchange(m_ledger, GeneralLedger());
}

} // namespace kiv::accounting

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

LedgerReplay::LedgerReplay() : m_descriptions(std::make_unique<internal::DescriptionBlocks>()) {}
LedgerReplay::~LedgerReplay() = default;

void LedgerReplay::addAccount(AccountTypes type, const AccountCode &code,
                              const numira::Currency &currency, bool holdsOpenings)
{
    internal::checkNewAccount(*m_ledger.m_state, type, code);
    if (holdsOpenings && type != AccountTypes::Equity)
        throw internal::openingsOutsideEquity(code, type);
    m_ledger.change().insertAccount(type, code, currency, holdsOpenings);
}

void LedgerReplay::post(const StoredTransaction &transaction)
{
    const LedgerState &state = *m_ledger.m_state;
    const TransactionNumber number = transaction.number;
    if (!number.isValid())
        throw internal::numberMissing();
    // Stores have them in the order of their numbers.
    const bool isAboveAll = number > state.table().numbers().highest();
    if (!isAboveAll && state.table().find(number))
        throw internal::numberTaken(number);
    TransactionRecord record{.occurredOn = transaction.day,
                             .debit = transaction.debit,
                             .credit = transaction.credit,
                             .amount = transaction.amount,
                             .description = descriptionOf(transaction),
                             .debitStatus = transaction.debitStatus,
                             .creditStatus = transaction.creditStatus,
                             .refundOf = std::nullopt,
                             .seldom = {}};
    if (transaction.debitAmount || transaction.creditAmount)
        record.setSideAmounts(transaction.debitAmount.value_or(record.amount),
                              transaction.creditAmount.value_or(record.amount));
    const auto [debit, credit] = internal::checkTransaction(state, record, number);
    checkSide(debit, record.debitAmount(), record, number);
    checkSide(credit, record.creditAmount(), record, number);
    if (isAboveAll)
        m_ledger.change().append(number, std::move(record));
    else
        m_ledger.change().exchange(number, std::move(record));
    if (transaction.refundOf)
        m_refunds.emplace_back(number, *transaction.refundOf);
}

internal::Description LedgerReplay::descriptionOf(const StoredTransaction &transaction)
{
    if (transaction.describedAs)
        return m_ledger.m_state->record(*transaction.describedAs).description;
    return transaction.description ? m_descriptions->add(*transaction.description)
                                   : internal::Description();
}

bool LedgerReplay::hasDescription(TransactionNumber number) const
{
    const TransactionRecord *const record = m_ledger.m_state->table().find(number);
    return record && record->description.isPresent();
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

void LedgerReplay::markRefunds()
{
    for (const auto &[number, original] : std::exchange(m_refunds, {}))
        markRefund(number, original);
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

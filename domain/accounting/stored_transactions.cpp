// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/stored_transactions.h"

#include "accounting/general_ledger.h"
#include "accounting/internal/ledger_state.h"

namespace kiv::accounting {

StoredTransactions::StoredTransactions(const GeneralLedger &ledger) : m_state(ledger.m_state) {}

std::optional<StoredTransaction> StoredTransactions::next()
{
    const TransactionNumber number = m_state->table().numbers().next(m_number);
    if (!number.isValid())
        return std::nullopt;
    m_number = number;
    const internal::TransactionRecord &record = m_state->record(number);
    const auto unlessEntered = [&](const numira::Money &side) {
        return side == record.amount ? std::nullopt : std::optional(side);
    };
    return StoredTransaction{.number = number,
                             .day = record.occurredOn,
                             .debit = record.debit,
                             .credit = record.credit,
                             .amount = record.amount,
                             .debitAmount = unlessEntered(record.debitAmount()),
                             .creditAmount = unlessEntered(record.creditAmount()),
                             .description = record.description.view(),
                             .describedAs = std::nullopt,
                             .debitStatus = record.debitStatus,
                             .creditStatus = record.creditStatus,
                             .refundOf = record.refundOf};
}

} // namespace kiv::accounting

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/account_number.h"
#include "accounting/account_types.h"
#include "accounting/internal/number_set.h"

#include "numira/money.h"

#include <QtCore/QDate>
#include <QtCore/QString>

#include <optional>

namespace kiv::accounting::internal {

/// A transaction as the ledger keeps it. The accounts stand by number, so that
/// it always shows their present codes.
struct TransactionRecord {
    QDate occurredOn;
    AccountNumber debit;
    AccountNumber credit;
    numira::Money amount;       ///< in the currency in which it was entered
    numira::Money debitAmount;  ///< in the debited account's currency
    numira::Money creditAmount; ///< in the credited account's currency
    std::optional<QString> description;
    TransactionStatuses debitStatus = TransactionStatuses::None;
    TransactionStatuses creditStatus = TransactionStatuses::None;
    std::optional<TransactionNumber> refundOf;
    /// The sum of its refunds, in the currency of `amount`. Refunds are entered
    /// in that currency, so that the sum never depends on a rate.
    numira::Money refunded;

    [[nodiscard]] bool involves(AccountNumber account) const noexcept
    {
        return account == debit || account == credit;
    }
    /// The amount on the side of an account that it involves.
    [[nodiscard]] const numira::Money &amountFor(AccountNumber account) const noexcept
    {
        return account == debit ? debitAmount : creditAmount;
    }
    [[nodiscard]] bool isReconciled() const noexcept
    {
        return debitStatus == TransactionStatuses::Reconciled ||
               creditStatus == TransactionStatuses::Reconciled;
    }
    [[nodiscard]] bool hasRefunds() const noexcept { return !refunded.isZero(); }

    friend bool operator==(const TransactionRecord &, const TransactionRecord &) = default;
};

inline constexpr unsigned slotsInChunk = 256;

/// All transactions of a ledger by number, in chunks of 256 that copies share
/// until one of them changes a transaction in it. A copy therefore copies no
/// transaction, and a change at most one chunk, whatever the size.
class TransactionTable {
public:
    [[nodiscard]] const NumberSet &numbers() const noexcept { return m_numbers; }
    [[nodiscard]] const TransactionRecord *find(TransactionNumber number) const noexcept;
    /// The number after the highest in use, or the lowest free one when that is
    /// 65,535 already; 0 when all are in use.
    [[nodiscard]] TransactionNumber nextFree() const noexcept;

    /// Takes the memory that a change of this slot needs, so that put() and
    /// erase() cannot fail.
    void detach(TransactionNumber number);
    void put(TransactionNumber number, TransactionRecord record);
    void erase(TransactionNumber number);
    /// The record for changing in place; it must be there.
    [[nodiscard]] TransactionRecord &change(TransactionNumber number);

    friend bool operator==(const TransactionTable &a, const TransactionTable &b) noexcept;

private:
    struct Chunk : QSharedData {
        std::array<std::optional<TransactionRecord>, slotsInChunk> records;
    };

    std::array<QSharedDataPointer<Chunk>, 65'536 / slotsInChunk> m_chunks;
    NumberSet m_numbers;
};

} // namespace kiv::accounting::internal

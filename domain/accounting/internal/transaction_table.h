// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/account_number.h"
#include "accounting/account_types.h"
#include "accounting/internal/description.h"
#include "accounting/internal/number_set.h"

#include "numira/money.h"

#include <QtCore/QDate>
#include <QtCore/QString>

#include <array>
#include <optional>
#include <set>
#include <vector>

namespace kiv::accounting::internal {

/// What few transactions have.
struct SeldomAmounts : QSharedData {
    SeldomAmounts(const numira::Money &debited, const numira::Money &credited,
                  const numira::Decimal &givenBack)
        : debit(debited), credit(credited), refunded(givenBack)
    {
    }
    /// What the transaction comes to in the currencies of its accounts.
    numira::Money debit;
    numira::Money credit;
    /// The sum of its refunds, in the currency in which it was entered. Refunds are
    /// entered in that currency, so that the sum never depends on a rate.
    numira::Decimal refunded;
};

/// A transaction as the ledger keeps it. The accounts stand by number, so that
/// it always shows their present codes. It is kept small, because of a full
/// ledger's time to load most goes into taking memory.
struct TransactionRecord {
    QDate occurredOn;
    AccountNumber debit;
    AccountNumber credit;
    numira::Money amount; ///< in the currency in which it was entered
    Description description;
    TransactionStatuses debitStatus = TransactionStatuses::None;
    TransactionStatuses creditStatus = TransactionStatuses::None;
    std::optional<TransactionNumber> refundOf;
    /// Null where both sides are `amount` and nothing was refunded.
    SharedContent<SeldomAmounts> seldom;

    [[nodiscard]] const numira::Money &debitAmount() const noexcept
    {
        return seldom.constData() ? seldom.constData()->debit : amount;
    }
    [[nodiscard]] const numira::Money &creditAmount() const noexcept
    {
        return seldom.constData() ? seldom.constData()->credit : amount;
    }
    [[nodiscard]] numira::Decimal refundedAmount() const noexcept
    {
        return seldom.constData() ? seldom.constData()->refunded : numira::Decimal();
    }
    void setSideAmounts(const numira::Money &debited, const numira::Money &credited)
    {
        setSeldom(debited, credited, refundedAmount());
    }
    void setRefundedAmount(const numira::Decimal &refunded)
    {
        setSeldom(debitAmount(), creditAmount(), refunded);
    }
    [[nodiscard]] bool involves(AccountNumber account) const noexcept
    {
        return account == debit || account == credit;
    }
    /// The amount on the side of an account that it involves.
    [[nodiscard]] const numira::Money &amountFor(AccountNumber account) const noexcept
    {
        return account == debit ? debitAmount() : creditAmount();
    }
    /// The amount that stands in this currency: the entered one, or that of a
    /// side. Those of one currency are equal, so that debits equal credits. Null
    /// when there is none.
    [[nodiscard]] const numira::Money *knownIn(const numira::Currency &currency) const noexcept
    {
        for (const numira::Money *known : {&amount, &debitAmount(), &creditAmount()}) {
            if (known->code() == currency)
                return known;
        }
        return nullptr;
    }
    [[nodiscard]] bool isReconciled() const noexcept
    {
        return debitStatus == TransactionStatuses::Reconciled ||
               creditStatus == TransactionStatuses::Reconciled;
    }
    [[nodiscard]] numira::Money refunded() const noexcept
    {
        return {amount.code(), refundedAmount()};
    }
    [[nodiscard]] bool hasRefunds() const noexcept { return refundedAmount().sign() != 0; }

    friend bool operator==(const TransactionRecord &a, const TransactionRecord &b) noexcept
    {
        return a.occurredOn == b.occurredOn && a.debit == b.debit && a.credit == b.credit &&
               a.amount == b.amount && a.debitAmount() == b.debitAmount() &&
               a.creditAmount() == b.creditAmount() && a.description == b.description &&
               a.debitStatus == b.debitStatus && a.creditStatus == b.creditStatus &&
               a.refundOf == b.refundOf && a.refundedAmount() == b.refundedAmount();
    }

private:
    void setSeldom(const numira::Money &debited, const numira::Money &credited,
                   const numira::Decimal &refunded)
    {
        if (debited == amount && credited == amount && refunded.sign() == 0)
            seldom.reset();
        else
            seldom = new SeldomAmounts(debited, credited, refunded);
    }
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
    /// The currencies in which transactions were entered.
    [[nodiscard]] std::set<numira::Currency> currencies() const;

    /// Takes the memory that a change of this slot needs, so that put() and
    /// erase() cannot fail.
    void detach(TransactionNumber number);
    void put(TransactionNumber number, TransactionRecord record);
    void erase(TransactionNumber number);
    /// Puts a record under a number above all in use. After detach() it cannot fail.
    void append(TransactionNumber number, TransactionRecord record);
    /// The record for changing in place; it must be there.
    [[nodiscard]] TransactionRecord &change(TransactionNumber number);

    friend bool operator==(const TransactionTable &a, const TransactionTable &b) noexcept;
    /// The numbers, in order, that only one table has or that have other records. Chunks
    /// that both share are skipped.
    friend std::vector<TransactionNumber> differences(const TransactionTable &a,
                                                      const TransactionTable &b);

private:
    struct Chunk : QSharedData {
        /// Those without a number in use are as they are made.
        std::array<TransactionRecord, slotsInChunk> records;
    };

    /// A currency and how many transactions were entered in it.
    using Entered = std::pair<numira::Currency, std::uint32_t>;

    void count(const numira::Currency &currency);
    void discount(TransactionNumber number) noexcept;

    std::array<SharedContent<Chunk>, 65'536 / slotsInChunk> m_chunks;
    NumberSet m_numbers;
    std::vector<Entered> m_entered;
};

} // namespace kiv::accounting::internal

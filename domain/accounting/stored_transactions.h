// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/account_number.h"
#include "accounting/account_types.h"
#include "accounting/transaction_number.h"

#include "numira/money.h"

#include <QtCore/QDate>
#include <QtCore/QStringView>

#include <memory>
#include <optional>

namespace kiv::accounting {

class GeneralLedger;

namespace internal {
struct LedgerState;
} // namespace internal

/// A transaction as a store keeps it.
struct StoredTransaction {
    TransactionNumber number; ///< under which it stands
    QDate day;                ///< on which it occurred
    AccountNumber debit;      ///< the account that is debited
    AccountNumber credit;     ///< the account that is credited
    numira::Money amount;     ///< in the currency in which it was entered
    /// In the debited account's currency; nothing when it is `amount`.
    std::optional<numira::Money> debitAmount;
    /// In the credited account's currency; nothing when it is `amount`.
    std::optional<numira::Money> creditAmount;
    std::optional<QStringView> description; ///< the user's words
    /// The transaction with the same description, which must have one; nothing when it
    /// is told here. A store need not repeat it.
    std::optional<TransactionNumber> describedAs;
    TransactionStatuses debitStatus = TransactionStatuses::None;  ///< of the debited side
    TransactionStatuses creditStatus = TransactionStatuses::None; ///< of the credited side
    /// The transaction that it refunds, if any.
    std::optional<TransactionNumber> refundOf;
};

/// Goes once over the transactions of a ledger, in the order of their numbers, as they
/// stand now: a later change of the ledger does not show. This takes less time and memory
/// than GeneralLedger::transactions().
class KIV_ACCOUNTING_EXPORT StoredTransactions {
public:
    /// Before the first one.
    explicit StoredTransactions(const GeneralLedger &ledger);

    /// The next one, with its own description, which is good as long as this object;
    /// nothing after the last one.
    [[nodiscard]] std::optional<StoredTransaction> next();

private:
    std::shared_ptr<const internal::LedgerState> m_state;
    TransactionNumber m_number; ///< of the last one that was given
};

} // namespace kiv::accounting

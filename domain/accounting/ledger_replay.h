// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/general_ledger.h"
#include "accounting/stored_transactions.h"

#include <memory>
#include <utility>
#include <vector>

namespace kiv::accounting {

namespace internal {
class Description;
class DescriptionBlocks;
} // namespace internal

/// Builds a ledger again from what was stored of one, under the ledger's own
/// rules but with the numbers, side amounts and marks as they were: nothing is
/// converted, numbered or opened anew. Every step refuses, with an AccountError
/// or a TransactionError, what the ledger itself would not have let in.
///
/// The order is: accounts (parents first), transactions, refunds, statuses (in
/// the transactions), closed flags.
class KIV_ACCOUNTING_EXPORT LedgerReplay {
public:
    LedgerReplay();
    ~LedgerReplay();

    /// An open account without a balance, kept in `currency`; it may be nested
    /// deeper than the ledger allows.
    void addAccount(AccountTypes type, const AccountCode &code, const numira::Currency &currency,
                    bool holdsOpenings);
    /// Posts a transaction as it was; if it is a refund, markRefunds() makes it one. Refused
    /// besides: no number or one in use, a side amount that is not positive, not in its account's
    /// currency, or another than the entered amount or the other side's in the same currency.
    void post(const StoredTransaction &transaction);
    /// Whether there is a transaction of that number with a description.
    [[nodiscard]] bool hasDescription(TransactionNumber number) const;
    /// `number` gives back some of `original`: accounts swapped, not more than
    /// is left, neither a refund of another.
    void markRefund(TransactionNumber number, TransactionNumber original);
    /// Calls markRefund() for each that was posted as a refund, after all transactions, since
    /// it may stand before its original.
    void markRefunds();
    /// `number`, in which the account takes part, is its opening transaction.
    void markOpening(AccountNumber account, TransactionNumber number);
    /// Refused as by GeneralLedger::close.
    void close(AccountNumber number);

    /// The ledger; the replay is empty afterwards.
    [[nodiscard]] GeneralLedger finish();

private:
    [[nodiscard]] internal::Description descriptionOf(const StoredTransaction &transaction);

    GeneralLedger m_ledger;
    std::vector<std::pair<TransactionNumber, TransactionNumber>> m_refunds; ///< with the originals
    std::unique_ptr<internal::DescriptionBlocks> m_descriptions;
};

} // namespace kiv::accounting

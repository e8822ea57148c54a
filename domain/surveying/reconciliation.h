// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surveying/export.h"

#include "accounting/general_ledger.h"
#include "banking/bank_account.h"
#include "foundation/debug_stream.h"

#include <vector>

namespace kiv::surveying {

/// A transaction as it was when a survey reconciled it.
struct KIV_SURVEYING_EXPORT ReconciledTransaction {
    accounting::TransactionNumber number; ///< in the ledger
    QDate day;                            ///< on which it occurred
    numira::Money amount;                 ///< as it was entered; converting an account keeps it
    accounting::AccountNumber debit;      ///< the debited account
    accounting::AccountNumber credit;     ///< the credited account

    friend bool operator==(const ReconciledTransaction &, const ReconciledTransaction &) = default;
};

/// What a survey left behind: the account, the statement's day and balance, and the
/// transactions that it reconciled, in the order of their numbers. Unlike the completed
/// survey, it stays when the account is surveyed again, so that it can be checked later.
struct KIV_SURVEYING_EXPORT Reconciliation {
    banking::BankAccount account;                    ///< under its present bank and number
    QDate day;                                       ///< of the statement
    numira::Money balance;                           ///< of the statement
    std::vector<ReconciledTransaction> transactions; ///< on the account or its children

    friend bool operator==(const Reconciliation &, const Reconciliation &) = default;
};

/// Reconciliations in the order in which they were made.
using Reconciliations = std::vector<Reconciliation>;

/// The transaction of this number as a survey would reconcile it now; nothing when the
/// ledger has none.
[[nodiscard]] KIV_SURVEYING_EXPORT std::optional<ReconciledTransaction>
reconciledTransaction(const accounting::GeneralLedger &ledger,
                      accounting::TransactionNumber number);

/// "#17 2026-01-15 43.22 USD 12/4": number, day, amount, debited and credited account.
KIV_SURVEYING_EXPORT std::ostream &operator<<(std::ostream &out,
                                              const ReconciledTransaction &transaction);
/// "First 12 (checking) 2026-01-31 100.00 USD: " and the transactions, ", " between them.
KIV_SURVEYING_EXPORT std::ostream &operator<<(std::ostream &out,
                                              const Reconciliation &reconciliation);
using foundation::operator<<;

} // namespace kiv::surveying

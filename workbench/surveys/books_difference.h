// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "navigation/currency_display.h"
#include "storage/budget_storage.h"
#include "surveying/reconciliation.h"

#include <optional>
#include <set>
#include <vector>

/// How far the books of an account are from what its bank last said.
namespace kiv::workbench {

/// Transactions of an account that its surveys counted though other accounts' surveys had
/// reconciled them before, by account.
using CountedElsewhere =
    std::map<accounting::AccountNumber, std::set<accounting::TransactionNumber>>;

/// The bank's balance of the last survey, less all transactions that surveys of the account
/// counted. In the account's terms: of a card, money owed is positive.
struct KIV_WORKBENCH_EXPORT BooksDifference {
    banking::BankAccount account; ///< whose books differ
    numira::Money amount;         ///< by which the books are below the bank; negative if above
    QDate since;                  ///< the day of the first statement since which they differ

    /// "The books of Checking are $43.22 below the bank since 2026-09-30."
    [[nodiscard]] QString sentence(const accounting::GeneralLedger &ledger,
                                   navigation::CurrencyDisplayOptions displayAs) const;
};

/// "$43.22 below the bank", or above it.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString
belowBankText(const numira::Money &amount, navigation::CurrencyDisplayOptions displayAs);

/// The difference of one account; nothing if its books are as the bank said, if it was never
/// reconciled, and if a rate is missing that is needed to tell.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<BooksDifference>
booksDifference(const banking::BankAccount &account, const storage::BudgetStorage::Data &data,
                const surveying::Reconciliations &reconciliations, const CountedElsewhere &counted);

/// Those of all bank accounts, by bank and number.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<BooksDifference>
booksDifferences(const storage::BudgetStorage::Data &data,
                 const surveying::Reconciliations &reconciliations,
                 const CountedElsewhere &counted);

/// The transactions up to the day that another account's survey reconciled whole, and that
/// no survey of this account counted: they move the balance of this account, and yet no
/// proposal lists them.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<accounting::Transaction> reconciledElsewhere(
    const banking::BankAccount &account, QDate until, const storage::BudgetStorage::Data &data,
    const surveying::Reconciliations &reconciliations, const CountedElsewhere &counted);

} // namespace kiv::workbench

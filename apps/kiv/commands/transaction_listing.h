// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/call.h"
#include "output/report.h"

#include <memory>

/// How several commands show transactions.
namespace kiv::app {

/// Transactions with the accounts that they name.
class TransactionListing {
public:
    TransactionListing(std::vector<accounting::Transaction> transactions, AccountIndex index);

    /// In JSON each with the paths of its accounts.
    [[nodiscard]] Rows rows() const;
    [[nodiscard]] std::vector<Column> columns() const;
    /// A report of nothing else.
    [[nodiscard]] Report report(const QString &whenNone) const;

private:
    std::shared_ptr<const std::vector<accounting::Transaction>> m_transactions;
    std::shared_ptr<const AccountIndex> m_index;
};

/// The posted transaction as JSON, with a sentence about it that has a place for its number.
[[nodiscard]] Report transactionReport(Requests &requests, accounting::TransactionNumber number,
                                       const QString &sentence);

} // namespace kiv::app

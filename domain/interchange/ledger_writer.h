// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"

#include "accounting/account.h"

#include <QtCore/QByteArray>

#include <set>
#include <vector>

namespace kiv::interchange {

/// The ledger as a plain-text journal. ledger and hledger read it with the same balances,
/// readJournal() also with the same accounts.
///
/// Every account is declared by its path (see accountPaths), with its number and currency
/// in a comment. A transaction's code is its number, and each side has a mark: "!" for
/// cleared, "*" for reconciled. A transaction between currencies has both amounts, the
/// debit at the cost of the credit. All transactions must be between `accounts`.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QByteArray
writeJournal(const std::set<accounting::Account> &accounts,
             const std::vector<accounting::Transaction> &transactions);

/// The transactions as a CSV table with headings (RFC 4180). No cell can be taken for a
/// formula by a spreadsheet. All transactions must be between `accounts`.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QByteArray
writeCsv(const std::set<accounting::Account> &accounts,
         const std::vector<accounting::Transaction> &transactions);

} // namespace kiv::interchange

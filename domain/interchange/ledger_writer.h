// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"

#include "accounting/account.h"

#include <QtCore/QByteArray>

#include <set>
#include <vector>

namespace kiv::interchange {

/// The ledger as a plain-text accounting journal, which ledger and hledger
/// read with the balances that it has here, and readJournal with the same
/// accounts.
///
/// Every account is declared under its path (see accountPaths), with its number
/// and currency in a comment. Every transaction has its number as its code, and
/// a mark on each side: "!" for cleared, "*" for reconciled. A transaction
/// between currencies states the amount of each side, the debit at the cost of
/// the credit.
/// All transactions are between `accounts`.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QByteArray
writeJournal(const std::set<accounting::Account> &accounts,
             const std::vector<accounting::Transaction> &transactions);

/// The transactions as a CSV table with a header (RFC 4180). No cell begins
/// with a character by which a spreadsheet knows a formula. All transactions are
/// between `accounts`.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QByteArray
writeCsv(const std::set<accounting::Account> &accounts,
         const std::vector<accounting::Transaction> &transactions);

} // namespace kiv::interchange

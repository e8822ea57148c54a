// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "parsing/account_index.h"

#include <QtCore/QByteArray>

namespace kiv::app {

/// The ledger as a plain-text accounting journal, which `ledger` and `hledger`
/// read with the balances that it has here.
///
/// Every account is declared under its path, with its number in a comment.
/// Every transaction has its number as its code, and a mark on each side: "!"
/// for cleared, "*" for reconciled. A transaction between currencies states the
/// amount of each side, the debit at the cost of the credit.
[[nodiscard]] QByteArray toJournal(const AccountIndex &index,
                                   const std::vector<accounting::Transaction> &transactions);

/// The transactions as a CSV table with a header (RFC 4180). No cell begins
/// with a character by which a spreadsheet knows a formula.
[[nodiscard]] QByteArray toCsv(const AccountIndex &index,
                               const std::vector<accounting::Transaction> &transactions);

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/general_ledger.h"

namespace kiv::accounting {

/// The new numbers of the accounts that a change gave another number, by the numbers until
/// then. An account was recoded when it is gone and all its transactions stand under one new
/// account, or without any, when the only new account of its name is new. `changed` are the
/// transactions that differ, see changedTransactions().
[[nodiscard]] KIV_ACCOUNTING_EXPORT std::map<AccountNumber, AccountNumber>
recodedAccounts(const GeneralLedger &before, const GeneralLedger &after,
                const std::vector<TransactionNumber> &changed);

} // namespace kiv::accounting

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/internal/ledger_state.h"

/// What a ledger checks before it lets something in, whether it is new or comes
/// from a store.
namespace kiv::accounting::internal {

/// The account may be opened: a free number, a known type, a fitting parent.
/// Throws AccountError, or std::logic_error for a type above the known ones.
void checkNewAccount(const LedgerState &state, AccountTypes type, const AccountCode &code);
/// The account `code` of this type may stand under its parent, if it has any.
/// Throws AccountError.
void checkParent(const LedgerState &state, AccountTypes type, const AccountCode &code);
/// The account `code`, with all accounts under the number `moved`, stands no deeper
/// than accountDepthMax. One at the top always may: that brings accounts up. Throws
/// AccountError.
void checkDepth(const LedgerState &state, const AccountCode &code, AccountNumber moved = {});
/// The account may be closed. Throws AccountError.
void checkClosing(const AccountRecord &account);
/// Throws AccountError when the account is closed.
void checkOpen(const AccountRecord &account);

/// The transaction has a valid day, a positive amount, known statuses and two
/// different, open accounts. Throws TransactionError or AccountError, or
/// std::logic_error for a status above the known ones.
/// Gives the debited and the credited account.
std::pair<const AccountRecord &, const AccountRecord &>
checkTransaction(const LedgerState &state, const TransactionRecord &record,
                 TransactionNumber number);

/// The positive amount in another currency at the present rate, rounded half to
/// even to its minor unit; the amount itself when it is in that currency. Throws
/// TransactionError when there is no rate or nothing is left of it.
[[nodiscard]] numira::Money convertedAmount(const numira::Money &amount,
                                            const numira::Currency &currency,
                                            TransactionNumber number);

/// The checked transaction as the ledger keeps it, with its sides converted
/// into the currencies of their accounts. When it takes the place of `before`
/// with the same amount, what that had in a currency stays and is not converted
/// again.
/// Throws as the two above.
[[nodiscard]] TransactionRecord newRecord(const LedgerState &state, const Transaction &transaction,
                                          TransactionNumber number,
                                          const TransactionRecord *before = nullptr);
/// The transaction as the ledger keeps it, without any check.
[[nodiscard]] TransactionRecord plainRecord(const Transaction &transaction);

} // namespace kiv::accounting::internal

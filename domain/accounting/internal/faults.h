// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/account_types.h"
#include "accounting/errors.h"

#include "numira/money.h"

/// Every sentence with which the ledger refuses something: one function each, which gives the
/// exception to throw. A transaction that was not posted yet goes by the number 0.
namespace kiv::accounting::internal {

// ---- accounts --------------------------------------------------------------

[[nodiscard]] AccountError accountNotFound(AccountNumber number);
[[nodiscard]] AccountError accountNumberInvalid(const AccountCode &code);
[[nodiscard]] AccountError accountNumberTaken(const AccountCode &code, const AccountCode &holder);
[[nodiscard]] AccountError accountTypeUnknown(const AccountCode &code);
[[nodiscard]] AccountError parentNotFound(const AccountCode &code);
[[nodiscard]] AccountError parentOfOtherType(const AccountCode &code, AccountTypes type,
                                             const AccountCode &parent, AccountTypes parentType);
[[nodiscard]] AccountError parentBelowItself(const AccountCode &code, const AccountCode &parent);
[[nodiscard]] AccountError accountTooDeep(const AccountCode &code, const AccountCode &parent);
[[nodiscard]] AccountError accountIsOpen(const AccountCode &code);
[[nodiscard]] AccountError accountIsClosed(const AccountCode &code);
[[nodiscard]] AccountError closingWithBalance(const AccountCode &code,
                                              const numira::Money &balance);
[[nodiscard]] AccountError accountHasChildren(const AccountCode &code);
[[nodiscard]] AccountError accountHasTransactions(const AccountCode &code);
[[nodiscard]] AccountError openingIsReconciled(const AccountCode &code, TransactionNumber opening);
[[nodiscard]] AccountError balanceOutOfRange(const AccountCode &code, const std::exception &cause);
[[nodiscard]] AccountError notRestated(const AccountCode &code, const numira::Currency &currency,
                                       TransactionNumber number, const std::exception &cause);
[[nodiscard]] AccountError restatedToNothing(const AccountCode &code,
                                             const numira::Currency &currency,
                                             TransactionNumber number, const numira::Money &amount);
[[nodiscard]] AccountError openingsOutsideEquity(const AccountCode &code, AccountTypes type);
[[nodiscard]] AccountError alreadyHasOpening(const AccountCode &code, TransactionNumber opening);
[[nodiscard]] AccountError balanceNotAdjusted(const AccountCode &code, const numira::Money &balance,
                                              const numira::Money &amount,
                                              const std::exception &cause);
[[nodiscard]] foundation::Error notComparable(const numira::Money &calculated,
                                              const numira::Money &reference,
                                              const std::exception &cause);

// ---- transactions ----------------------------------------------------------

[[nodiscard]] TransactionError transactionNotFound(TransactionNumber number);
[[nodiscard]] TransactionError dayInvalid(TransactionNumber number);
[[nodiscard]] TransactionError amountNotPositive(TransactionNumber number,
                                                 const numira::Money &amount);
[[nodiscard]] TransactionError accountsAreTheSame(TransactionNumber number,
                                                  const AccountCode &account);
[[nodiscard]] TransactionError notConverted(TransactionNumber number, const numira::Money &amount,
                                            const numira::Currency &currency,
                                            const std::exception &cause);
[[nodiscard]] TransactionError comesToNothing(TransactionNumber number, const numira::Money &amount,
                                              const numira::Currency &currency);
[[nodiscard]] TransactionError ledgerIsFull();
[[nodiscard]] TransactionError sideIsReconciled(TransactionNumber number);
[[nodiscard]] TransactionError accountNotInvolved(TransactionNumber number, AccountNumber account);
[[nodiscard]] TransactionError openingKeepsAccount(TransactionNumber number,
                                                   const AccountCode &account);
[[nodiscard]] TransactionError refundOfRefund(TransactionNumber number, TransactionNumber original);
[[nodiscard]] TransactionError
refundTooLarge(TransactionNumber original, const numira::Money &refund, const numira::Money &left);
[[nodiscard]] TransactionError belowItsRefunds(TransactionNumber number,
                                               const numira::Money &amount,
                                               const numira::Money &refunded);
[[nodiscard]] TransactionError accountsHeldByRefund(TransactionNumber number);
[[nodiscard]] TransactionError currencyHeldByRefunds(TransactionNumber number,
                                                     const numira::Currency &currency);
[[nodiscard]] TransactionError hasRefunds(TransactionNumber number, const numira::Money &refunded);

// ---- building a ledger again -----------------------------------------------

[[nodiscard]] TransactionError numberMissing();
[[nodiscard]] TransactionError numberTaken(TransactionNumber number);
[[nodiscard]] TransactionError
sideAmountWrong(TransactionNumber number, const numira::Money &amount, const AccountCode &account);
[[nodiscard]] TransactionError notARefundOf(TransactionNumber number, TransactionNumber original);
[[nodiscard]] TransactionError notAnOpening(TransactionNumber number, const AccountCode &account);

} // namespace kiv::accounting::internal

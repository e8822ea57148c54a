// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/values.h"
#include "workbench/requests/requests.h"

/// Posting transactions. A Refusal leaves the budget unchanged unless a function says
/// otherwise.
namespace kiv::workbench {

/// Posts the transaction, and returns its number. Throws a Refusal.
KIV_WORKBENCH_EXPORT accounting::TransactionNumber post(Requests &requests,
                                                        const accounting::Transaction &transaction);

/// A transfer between two accounts of banks, as typed.
struct Transfer {
    QString from;             ///< the account that the money leaves: number, name or path
    QString to;               ///< the account that it goes to
    Amount amount;            ///< that moves
    QString description;      ///< what it is for
    std::optional<QDate> day; ///< without one, the real day
};

/// Posts the transfer in the currency of the account that the money goes to, and returns
/// its number. Throws a Refusal for an account that does not exist or has no transfers, and
/// an EntryError for an amount with too many decimals. If moving it to the day is refused,
/// the transfer stays.
KIV_WORKBENCH_EXPORT accounting::TransactionNumber transfer(Requests &requests,
                                                            const Transfer &transfer);

/// Posts a refund of the transaction in its currency, and returns the refund's number.
/// Throws a Refusal, also when there is no such transaction, and an EntryError for an amount
/// with too many decimals. If moving it to the day is refused, the refund stays.
KIV_WORKBENCH_EXPORT accounting::TransactionNumber refund(Requests &requests,
                                                          accounting::TransactionNumber number,
                                                          const Amount &amount,
                                                          const std::optional<QDate> &day);

/// The given values of a transaction; missing ones stay as they are.
struct TransactionValues {
    std::optional<QDate> day;           ///< on which it occurred
    std::optional<Amount> amount;       ///< in the currency in which it was entered
    std::optional<QString> debit;       ///< number, name or path of the account
    std::optional<QString> credit;      ///< number, name or path of the account
    std::optional<QString> description; ///< what it was for
};

/// Changes the given values. A new description keeps the bank's identifier of the old one,
/// so that a later import of the statement recognises the transaction. Throws a Refusal,
/// also when there is no such transaction or account, and an EntryError for an amount with
/// too many decimals.
KIV_WORKBENCH_EXPORT void changeTransaction(Requests &requests,
                                            accounting::TransactionNumber number,
                                            const TransactionValues &given);

} // namespace kiv::workbench

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

/// Money that moves from one account to another, as typed. The receiver is debited and the
/// giver credited, whatever their kinds: a card, a loan, a goal, a cash box.
struct Transfer {
    QString from;             ///< the account that gives: number, name, path or item
    QString to;               ///< the account that receives
    Amount amount;            ///< that moves, in the currency of the receiver
    QString description;      ///< what it is for
    std::optional<QDate> day; ///< without one, the real day
};

/// Posts the transfer, and returns its number. Throws a Refusal, also for an account that
/// does not exist, and an EntryError for an amount with too many decimals.
KIV_WORKBENCH_EXPORT accounting::TransactionNumber transfer(Requests &requests,
                                                            const Transfer &transfer);

/// Money that was spent, as typed.
struct Spent {
    Amount amount;            ///< in the currency of the account that it left
    QString from;             ///< that account: an asset or a liability; empty for paidFrom()
    QString on;               ///< a budget item, except a wage, or an expense account
    QString payee = {};       ///< who got it
    QString reason = {};      ///< what it was for
    std::optional<QDate> day; ///< without one, the real day
};

/// Posts what was spent, and returns its number. Throws a Refusal, also for an account that
/// does not exist or does not fit, and an EntryError for an amount with too many decimals.
KIV_WORKBENCH_EXPORT accounting::TransactionNumber spend(Requests &requests, const Spent &spent);

/// Money that was earned, as typed.
struct Earned {
    Amount amount;            ///< in the currency of the account that it came to
    QString to;               ///< that account: an asset or a liability; empty for paidFrom()
    QString from;             ///< a wage or an income account
    QString payee = {};       ///< who gave it
    QString reason = {};      ///< what it was for
    std::optional<QDate> day; ///< without one, the real day
};

/// Posts what was earned, and returns its number. Throws as spend() does.
KIV_WORKBENCH_EXPORT accounting::TransactionNumber earn(Requests &requests, const Earned &earned);

/// The account from which something is paid, or to which a wage comes: the asset or liability
/// that usualPayer() finds. None if there is none.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<accounting::AccountNumber>
paidFrom(Requests &requests, const accounting::Account &item);

/// The account that is typed, or without one that of paidFrom(). Throws a Refusal if there is
/// no such account.
[[nodiscard]] KIV_WORKBENCH_EXPORT accounting::AccountNumber
typedPayer(Requests &requests, const QString &text, const accounting::Account &item);

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
    std::optional<QString> debit;       ///< the account: number, name, path or item
    std::optional<QString> credit;      ///< the account: number, name, path or item
    std::optional<QString> description; ///< what it was for
};

/// Changes the given values. A new description keeps the banks' identifiers of the old one,
/// so that a later import of a statement recognises the transaction. Throws a Refusal,
/// also when there is no such transaction or account, and an EntryError for an amount with
/// too many decimals.
KIV_WORKBENCH_EXPORT void changeTransaction(Requests &requests,
                                            accounting::TransactionNumber number,
                                            const TransactionValues &given);

} // namespace kiv::workbench

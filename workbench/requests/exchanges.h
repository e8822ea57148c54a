// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/values.h"
#include "workbench/history/deed.h"
#include "workbench/requests/requests.h"

/// Money that a bank changed into another currency.
namespace kiv::workbench {

/// An exchange as typed, with both amounts as the bank booked them.
struct Exchange {
    QString from;             ///< the account that gives: number, name, path or item
    QString to;               ///< the account that receives
    Amount given;             ///< in the currency of the giver
    Amount received;          ///< in the currency of the receiver
    QString description;      ///< what it is for
    std::optional<QDate> day; ///< without one, the real day
};

/// The two transactions of an exchange.
struct Exchanged {
    accounting::TransactionNumber given;    ///< credits the giver
    accounting::TransactionNumber received; ///< debits the receiver
};

/// Posts the exchange. Each amount is booked against an account of its currency under
/// Equity:Conversion, as imported journals do; missing ones are opened. Exchange rates are not
/// used. Throws a Refusal, also for an account that does not exist, an amount in another
/// currency than its account's and two accounts of one currency, and an EntryError for an
/// amount with too many decimals. What came before a refusal of the Navigator stays, so revert
/// the document, as Document::perform() does.
KIV_WORKBENCH_EXPORT Exchanged exchange(Requests &requests, const Exchange &given);

/// "Exchanged 200.00 EUR for 218.05 USD.", as a step of undo.
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed exchangeDeed(Requests &requests, const Exchange &given);

} // namespace kiv::workbench

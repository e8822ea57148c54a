// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "outlook/export.h"

#include "accounting/account_number.h"
#include "accounting/transaction_number.h"
#include "budgeting/event_frequency.h"
#include "budgeting/identifiers.h"

#include <map>
#include <optional>
#include <set>
#include <vector>

/// What is to come of the accounts, if everything regular goes on: values in, values out, and
/// no clock.
///
/// What an account holds stands here as it is worth: money in an account is positive, and what
/// is owed negative.
namespace kiv::outlook {

/// When a payment is made no more: as soon as the account holds so much. A goal ends at its
/// target, a debt at zero.
struct Ending {
    accounting::AccountNumber account; ///< the one that the payment fills
    numira::Money atLeast;             ///< in the currency of the account
};

/// A regular payment that is expected to go on.
struct Expected {
    budgeting::BudgetItemIdentifier item;                              ///< what it is for
    numira::Money amount;                                              ///< of each date
    budgeting::EventFrequency every = budgeting::EventFrequency::None; ///< None: never
    QDate next;                       ///< its next date; one that has passed is late
    int dayOfMonth = 1;               ///< the day of the month that the item was given
    accounting::AccountNumber from;   ///< that pays
    accounting::AccountNumber to;     ///< that is paid
    std::optional<Ending> until = {}; ///< nothing if it has no end
};

/// Something that comes once: a transaction of a day to come, or what is asked about.
struct Once {
    QDate day;                      ///< a day before the first one counts on that
    numira::Money amount;           ///< positive; what goes out
    accounting::AccountNumber from; ///< that pays
    accounting::AccountNumber to;   ///< that is paid; the accounts may be any others
    std::optional<accounting::TransactionNumber> entry = {}; ///< nothing if it is asked about
    std::optional<numira::Money> arriving = {}; ///< what comes in, if that is another amount
};

/// What the outlook starts from.
struct Beginning {
    QDate first;  ///< the first day
    int days = 0; ///< how many days; at least 1
    /// What each account holds before what is expected on the first day. Of other accounts nothing
    /// is told.
    std::map<accounting::AccountNumber, numira::Money> balances;
    std::set<accounting::AccountNumber> watched; ///< of these the days are told
    std::vector<Expected> expected;              ///< in the order in which one day has them
    std::vector<Once> once = {};                 ///< come after those of their day
};

/// A payment on a day.
struct Payment {
    QDate day;                                           ///< on which it counts
    QDate due;                                           ///< on which it is due; earlier if late
    std::optional<budgeting::BudgetItemIdentifier> item; ///< nothing for what comes once
    accounting::AccountNumber from;                      ///< that pays
    accounting::AccountNumber to;                        ///< that is paid
    numira::Money amount;                                ///< as it is expected
    std::optional<accounting::TransactionNumber> entry;  ///< of what comes once
};

/// A change of what a watched account holds.
struct Change {
    std::size_t payment = 0; ///< its place in Outlook::payments
    numira::Money amount;    ///< negative when money went out
};

/// What one account holds, day by day.
struct KIV_OUTLOOK_EXPORT Curve {
    numira::Money start;             ///< before the first day
    std::vector<numira::Money> ends; ///< at the end of each day
    std::vector<Change> changes;     ///< in their order

    /// The place of the first day on which the least is there at its end, among the first
    /// `days` days; of all without a number.
    [[nodiscard]] std::size_t lowest(std::optional<std::size_t> days = {}) const;
    /// The least at the end of one of the first `days` days; of all without a number.
    [[nodiscard]] const numira::Money &least(std::optional<std::size_t> days = {}) const;
    /// The place of the first day that ends below `floor`, which is in the curve's currency.
    [[nodiscard]] std::optional<std::size_t> firstBelow(const numira::Money &floor) const;
};

/// A payment that is left out, for want of an exchange rate between these.
struct LeftOut {
    std::optional<budgeting::BudgetItemIdentifier> item; ///< nothing for what comes once
    std::pair<numira::Currency, numira::Currency> rate;  ///< that is missing

    friend bool operator==(const LeftOut &, const LeftOut &) = default;
};

/// What is to come.
struct KIV_OUTLOOK_EXPORT Outlook {
    QDate first;                                         ///< the first day
    std::vector<Payment> payments;                       ///< in their order
    std::map<accounting::AccountNumber, Curve> accounts; ///< of those that were watched
    std::vector<LeftOut> leftOut;                        ///< each item once, in its order

    /// The day at this place of a curve.
    [[nodiscard]] QDate day(std::size_t place) const
    {
        return first.addDays(static_cast<qint64>(place));
    }
    /// The payment that took the most out of these curves on the day at this place; nothing if
    /// none took any, and on a day that ends no lower than it began.
    [[nodiscard]] std::optional<Payment> cause(const Curve &curve, std::size_t place) const;
    /// The curves of these accounts together, in one currency. Nothing without an exchange rate
    /// for one of them.
    [[nodiscard]] std::optional<Curve> together(const std::set<accounting::AccountNumber> &among,
                                                const numira::Currency &currency) const;
};

/// Looks ahead. Each date of an item posts its amount once, each late one on the first day; on
/// one day the earliest date comes first, and then the order of `expected`. Amounts are
/// rounded and converted as the ledger does. It costs time for each day and each date.
///
/// Throws std::logic_error without a valid first day or without days, and what the overflow of
/// an amount throws.
[[nodiscard]] KIV_OUTLOOK_EXPORT Outlook look(const Beginning &beginning);

} // namespace kiv::outlook

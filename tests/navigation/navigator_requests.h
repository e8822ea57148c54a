// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigator_desk.h"

namespace kiv::test {

using Request = std::function<void(Navigator &)>;
using Rows = std::vector<std::pair<QByteArray, Request>>;

/// Requests in words: slots without their "on" and with their arguments, one after the
/// other: "BankAdded(Prime: 8 cash); BankClosed(Prime)". What is left out at the end is
/// empty, and adding and updating need no more than the item.
[[nodiscard]] Request requestOf(const QString &text);

/// What navigator_requests.txt says of one situation.
struct Situation {
    QByteArray name; ///< "topic: what is special"
    QString request;
    QStringList answers;
};
[[nodiscard]] const std::vector<Situation> &situations();

/// Requests to every slot, accepted and refused, of all situations. What they name is
/// what Desk::furnish() made.
[[nodiscard]] Rows allRequests();

/// A row for each state in which a budget can be: what makes it of a furnished desk.
void addStates();

/// A request that means something most of the time, for each four numbers.
[[nodiscard]] QString randomRequest(std::array<std::uint8_t, 4> seeds);

/// Whether debits equal credits over all accounts, in the amounts as entered.
[[nodiscard]] bool isBalanced(const accounting::GeneralLedger &ledger);

} // namespace kiv::test

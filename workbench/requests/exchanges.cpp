// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/exchanges.h"

#include "workbench/entry/description.h"
#include "workbench/entry/money_text.h"
#include "workbench/internal/faults.h"
#include "workbench/requests/transactions.h"

#include "foundation/clock.h"
#include "foundation/presentation.h"
#include "interchange/draft.h"

namespace kiv::workbench {

using accounting::Account;
using accounting::Transaction;
using navigation::Navigator;

namespace {

/// The amount, which is in the currency of the account.
numira::Money ownAmount(const AccountIndex &index, const Account &account, const Amount &typed)
{
    const numira::Currency currency = account.balance().code();
    if (typed.currency.value_or(currency) != currency) {
        throw internal::otherCurrency(index.plainName(account.code().number()),
                                      foundation::toQString(currency),
                                      foundation::toQString(*typed.currency));
    }
    return typed.in(currency);
}

struct Sides {
    const Account &giver;
    const Account &receiver;
    numira::Money given;
    numira::Money received;

    Sides(const AccountIndex &index, const Exchange &exchange)
        : giver(index.find(exchange.from)),
          receiver(index.find(exchange.to)),
          given(ownAmount(index, giver, exchange.given)),
          received(ownAmount(index, receiver, exchange.received))
    {
    }
};

} // namespace

Exchanged exchange(Requests &requests, const Exchange &given)
{
    const AccountIndex index = requests.accounts();
    const Sides sides(index, given);
    if (sides.given.code() == sides.received.code()) {
        throw internal::noExchange(index.plainName(sides.giver.code().number()),
                                   index.plainName(sides.receiver.code().number()),
                                   foundation::toQString(sides.given.code()));
    }
    interchange::Draft between;
    between.accounts = {interchange::conversionAccount(sides.given.code()),
                        interchange::conversionAccount(sides.received.code())};
    const interchange::AccountPlan plan = interchange::planAccounts(between, index.accounts());
    for (const Account &missing : plan.missing)
        requests.change(accountOutcome, &Navigator::onAddedAct, missing);
    const QDate day = given.day.value_or(foundation::today());
    const std::optional<QString> text = Description::of(given.description).text();
    const auto left =
        post(requests, Transaction(day, plan.codes[0], sides.giver.code(), sides.given, text));
    const auto came = post(
        requests, Transaction(day, sides.receiver.code(), plan.codes[1], sides.received, text));
    return {left, came};
}

Deed exchangeDeed(Requests &requests, const Exchange &given)
{
    const AccountIndex index = requests.accounts();
    const Sides sides(index, given);
    const auto displayAs = requests.displayAs();
    const QString left = amountText(sides.given, displayAs);
    const QString came = amountText(sides.received, displayAs);
    return {QObject::tr("Exchanged %1 for %2.").arg(left, came),
            QObject::tr("exchanging %1 for %2").arg(left, came),
            {}};
}

} // namespace kiv::workbench

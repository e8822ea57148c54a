// SPDX-License-Identifier: GPL-3.0-or-later
// spend, earn, transfer
#include "commands/commands.h"
#include "commands/transaction_listing.h"

#include "output/json.h"

#include "workbench/requests/exchanges.h"
#include "workbench/requests/transactions.h"

namespace kiv::app {

using accounting::TransactionNumber;

namespace {

/// Who, why and when, which spending and earning share.
struct Circumstances {
    QString payee;
    QString reason;

    void declare(Arguments &arguments, const QString &whoHelp)
    {
        arguments.optional("--payee", payee, whoHelp)
            .optional("--reason", reason, QObject::tr("What it was for"))
            .dated(QObject::tr("Day (default: today)"));
    }
};

/// The sentence has places for the amount, the giver, the receiver and the number.
Report moved(Call &call, TransactionNumber number, const QString &sentence)
{
    const accounting::Transaction posted = call.requests.transaction(number);
    const AccountIndex index = call.requests.accounts();
    const QJsonObject json = toJson(posted);
    return Report(json).line(sentence.arg(
        amountText(json.value(QLatin1String("amount")), call.document.displayAs()),
        index.plainName(posted.crediting().number()), index.plainName(posted.debiting().number()),
        accounting::presentationText(number)));
}

struct Spend {
    Amount amount;
    QString on;
    AccountText from;
    Circumstances more;

    void declare(Arguments &arguments)
    {
        arguments.required("AMOUNT", amount, QObject::tr("Amount, in the currency of the account"))
            .required("ON", on, QObject::tr("Budget item or expense account"))
            .optional("--from", from,
                      QObject::tr("Account that paid (default: that of the last time, or else the "
                                  "first checking account)"));
        more.declare(arguments, QObject::tr("Who got the money"));
    }
    Report run(Call &call) const
    {
        return moved(call,
                     workbench::spend(call.requests, {amount, from.text, on, more.payee,
                                                      more.reason, call.options.date}),
                     QObject::tr("Spent %1 from %2 on %3 (transaction %4)."));
    }
};

struct Earn {
    Amount amount;
    QString from;
    AccountText to;
    Circumstances more;

    void declare(Arguments &arguments)
    {
        arguments.required("AMOUNT", amount, QObject::tr("Amount, in the currency of the account"))
            .required("FROM", from, QObject::tr("Wage or income account"))
            .optional("--to", to,
                      QObject::tr("Account that got the money (default: that of the last time, or "
                                  "else the first checking account)"));
        more.declare(arguments, QObject::tr("Who gave the money"));
    }
    Report run(Call &call) const
    {
        return moved(call,
                     workbench::earn(call.requests, {amount, to.text, from, more.payee, more.reason,
                                                     call.options.date}),
                     QObject::tr("Earned %1 from %2 to %3 (transaction %4)."));
    }
};

Report exchanged(Call &call, const workbench::Exchange &exchange)
{
    const QString sentence = workbench::exchangeDeed(call.requests, exchange).line;
    const auto [given, received] = workbench::exchange(call.requests, exchange);
    return TransactionListing(
               {call.requests.transaction(given), call.requests.transaction(received)},
               call.requests.accounts())
        .report({})
        .line(sentence);
}

struct Transfer {
    QString from;
    QString to;
    Amount amount;
    std::optional<Amount> received;
    QString reason = QObject::tr("Transfer");

    void declare(Arguments &arguments)
    {
        arguments.required("FROM", from, QObject::tr("Account that the money leaves"))
            .required("TO", to,
                      QObject::tr("Account that the money goes to: a bank account, a card, a loan, "
                                  "a goal …"))
            .required("AMOUNT", amount,
                      QObject::tr("Amount, in the currency of the account it goes to; with "
                                  "--received, in that of the account it leaves"))
            .optional("--received", received,
                      QObject::tr("Amount that arrived, in another currency: both amounts as the "
                                  "bank booked them"))
            .optional("--description", reason, QObject::tr("Description"))
            .dated(QObject::tr("Day (default: today)"));
    }
    Report run(Call &call) const
    {
        if (received)
            return exchanged(call, {from, to, amount, *received, reason, call.options.date});
        return transactionReport(
            call.requests,
            workbench::transfer(call.requests, {from, to, amount, reason, call.options.date}),
            QObject::tr("Posted transaction %1."));
    }
};

} // namespace

void addMoneyCommands(CommandGroup &root)
{
    using enum CommandKind;
    root.add("spend", QObject::tr("Enter money that was spent"), Entry, Spend{});
    root.add("earn", QObject::tr("Enter money that was earned"), Entry, Earn{});
    root.add("transfer", QObject::tr("Move money between accounts"), Entry, Transfer{});
}

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "household.h"

#include <map>

namespace kiv::test {

using namespace Qt::Literals::StringLiterals;

/// Balances by the path of the account and the currency, without those of zero.
using Balances = std::map<QString, QString>;

/// "-12.50" and "-12.5" are the same balance.
inline QString plain(QString amount)
{
    if (amount.contains(u'.')) {
        while (amount.endsWith(u'0'))
            amount.chop(1);
        if (amount.endsWith(u'.'))
            amount.chop(1);
    }
    return amount == u"-0" ? u"0"_s : amount;
}

/// Debits are positive in journals, whatever the kind of the account.
inline Balances ownBalances(const Household &home, const char *command = "accounts")
{
    Balances balances;
    for (const QJsonValue &account : home.json(command).array()) {
        const QString type = account["type"_L1].toString();
        const QJsonValue balance = account["balance"_L1];
        QString amount = plain(balance["amount"_L1].toString());
        if (amount != u"0") {
            if (type != u"asset" && type != u"expense")
                amount = amount.startsWith(u'-') ? amount.mid(1) : u'-' + amount;
            balances[account["path"_L1].toString()] =
                amount + u' ' + balance["currency"_L1].toString();
        }
    }
    return balances;
}

/// Lines "path  amount currency", as both tools are asked for them; no path holds
/// two blanks.
inline Balances readBalances(const QByteArray &output)
{
    Balances balances;
    for (const QString &line : QString::fromUtf8(output).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList cells = line.split(u"  "_s);
        QString text = cells.value(1).trimmed();
        if (text.contains(u'$')) // "$-5,200.00" or "-5200.00 $"
            text = text.remove(u'$').remove(u',').trimmed() + u" USD"_s;
        const QStringList amount = text.split(u' ');
        if (plain(amount.value(0)) != u"0")
            balances[cells[0]] = plain(amount.value(0)) + u' ' + amount.value(1);
    }
    return balances;
}

/// What `ledger` or `hledger` finds in a journal.
inline Balances toolBalances(const Household &home, const QString &tool, const QString &journal)
{
    const QString format =
        tool == u"ledger"
            ? u"%(account)  %(quantity(scrub(amount))) %(commodity(scrub(amount)))\n"_s
            : u"%(account)  %(total)"_s;
    const QString option = tool == u"ledger" ? u"--balance-format"_s : u"--format"_s;
    // The one reads bytes, the other wants a locale that is installed.
    const Ended ended =
        home.runProgram(u"env"_s, {u"LC_ALL=C.UTF-8"_s, tool, u"-f"_s, journal, u"balance"_s,
                                   u"--flat"_s, u"--no-total"_s, option, format});
    if (ended.status != 0)
        qWarning("%s", ended.err.constData());
    return readBalances(ended.out);
}

} // namespace kiv::test

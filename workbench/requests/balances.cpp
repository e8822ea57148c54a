// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/balances.h"

#include "workbench/entry/money_text.h"

#include <QtCore/QLocale>

namespace kiv::workbench {

using accounting::Account;
using accounting::AccountNumber;
using accounting::Transaction;
using numira::Money;

Money changeOf(const Transaction &transaction, const Account &account)
{
    const AccountNumber number = account.code().number();
    const bool isDebited = transaction.debiting().number() == number;
    const Money &amount = transaction.amountFor(number);
    return isDebited == accounting::isDebitNormal(account.type()) ? amount : -amount;
}

Money balanceOn(const Account &account, QDate day)
{
    Money balance(account.balance().code());
    for (const Transaction &transaction : account.transactions()) {
        if (transaction.occurredOn() <= day)
            balance += changeOf(transaction, account);
    }
    return balance;
}

void add(Sums &sums, const Money &amount)
{
    sums.try_emplace(amount.code(), amount.code()).first->second += amount;
}

QString sumsText(const Sums &sums, navigation::CurrencyDisplayOptions displayAs)
{
    QStringList texts;
    for (const auto &[currency, sum] : sums)
        texts += amountText(sum, displayAs);
    return QLocale().createSeparatedList(texts);
}

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/balance_rows.h"

#include "models/account_rows.h"

#include "workbench/requests/account_groups.h"

namespace kiv::desktop {

using workbench::AccountGroup;
using workbench::GroupedAccount;

namespace {

bool isShown(const GroupedAccount &one)
{
    return !one.account.isClosed() &&
           (one.group == AccountGroup::Money || one.group == AccountGroup::Owed ||
            one.group == AccountGroup::SetAside);
}

/// What goals hold at a bank is part of what the bank shows.
bool isAtBank(const GroupedAccount &one)
{
    return one.group == AccountGroup::SetAside && one.bank;
}

QString whereText(const GroupedAccount &one)
{
    const QString bank = one.bank ? one.bank->institution() : QString();
    switch (one.group) {
    case AccountGroup::SetAside:
        return one.bank ? bank : QObject::tr("set aside");
    case AccountGroup::Owed:
        return one.bank ? QObject::tr("owed to %1").arg(bank) : QObject::tr("owed");
    default:
        return bank;
    }
}

Row rowOf(const GroupedAccount &one, navigation::CurrencyDisplayOptions displayAs)
{
    const bool isWhole = one.group == AccountGroup::Money && one.bank;
    const numira::Money &balance = isWhole ? one.whole : one.account.balance();
    // What is owed counts against the household.
    return {keyOf(one.account.code().number()),
            {{one.name},
             {whereText(one)},
             amountCell(one.group == AccountGroup::Owed ? -balance : balance, displayAs)}};
}

} // namespace

QStringList balanceColumns()
{
    return {QObject::tr("Account"), QObject::tr("Where"), QObject::tr("Balance")};
}

std::vector<Row> balanceRows(workbench::Document &document, const ShownEnvelopes &envelopes)
{
    std::set<accounting::AccountNumber> free;
    for (const workbench::SetAside &one : envelopes.all.accounts)
        free.insert(one.account.account.number);
    const std::vector<GroupedAccount> accounts = workbench::groupedAccounts(document.present());
    std::vector<Row> rows;
    const auto add = [&](const QString &key, const QString &heading, bool areAtBanks) {
        const std::size_t first = rows.size();
        for (const GroupedAccount &one : accounts) {
            if (isShown(one) && isAtBank(one) == areAtBanks &&
                !free.contains(one.account.code().number()))
                rows.push_back(rowOf(one, envelopes.displayAs));
        }
        if (rows.size() > first)
            rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(first),
                        Row{key, {{heading}}, true});
    };
    add(QStringLiteral("banks"), QObject::tr("In goals at the banks"), true);
    add(QStringLiteral("apart"), QObject::tr("Apart"), false);
    return rows;
}

} // namespace kiv::desktop

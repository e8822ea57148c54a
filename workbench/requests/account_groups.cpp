// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/account_groups.h"

#include "budgeting/item_traits.h"

#include <QtCore/QObject>

#include <algorithm>
#include <array>
#include <tuple>

namespace kiv::workbench {

using accounting::Account;
using accounting::AccountNumber;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using storage::BudgetStorage;

namespace {

std::map<AccountNumber, BudgetItemIdentifier> itemsByAccount(const BudgetStorage::Data &data)
{
    std::map<AccountNumber, BudgetItemIdentifier> items;
    for (const auto &[type, accounts] : data.budgetAccountCodes.maps()) {
        for (const auto &[source, number] : accounts)
            items.emplace(number, BudgetItemIdentifier{budgeting::toBudgetItemTypes(type), source});
    }
    return items;
}

AccountGroup groupOf(const Account &account, const std::optional<BudgetItemIdentifier> &item)
{
    if (item && item->type == BudgetItemTypes::Goal)
        return AccountGroup::SetAside;
    switch (account.type()) {
    case accounting::AccountTypes::Asset:
        return AccountGroup::Money;
    case accounting::AccountTypes::Liability:
        return AccountGroup::Owed;
    default:
        return item ? AccountGroup::Item : AccountGroup::Other;
    }
}

/// Adds each balance to all accounts above it that have its currency.
void addUp(std::vector<GroupedAccount> &all)
{
    std::map<AccountNumber, GroupedAccount *> byNumber;
    for (GroupedAccount &one : all)
        byNumber.emplace(one.account.code().number(), &one);
    for (const GroupedAccount &one : all) {
        for (auto parent = one.account.code().parent(); parent;) {
            const auto above = byNumber.find(*parent);
            if (above == byNumber.end())
                break;
            numira::Money &whole = above->second->whole;
            if (whole.code() == one.account.balance().code())
                whole += one.account.balance();
            parent = above->second->account.code().parent();
        }
    }
}

} // namespace

QString presentationText(AccountGroup group)
{
    static constexpr std::array texts{
        QT_TRANSLATE_NOOP("QObject", "At banks and in cash"),
        QT_TRANSLATE_NOOP("QObject", "Owed: cards and loans"),
        QT_TRANSLATE_NOOP("QObject", "Set aside for goals"),
        QT_TRANSLATE_NOOP("QObject", "Items of the budget"),
        QT_TRANSLATE_NOOP("QObject", "Everything else"),
    };
    return QObject::tr(texts.at(static_cast<std::size_t>(group) - 1));
}

HouseholdTotals totalsOf(const std::vector<GroupedAccount> &accounts)
{
    HouseholdTotals totals;
    for (const GroupedAccount &one : accounts) {
        if (one.group == AccountGroup::Item || one.group == AccountGroup::Other)
            continue;
        const numira::Money &balance = one.account.balance();
        HouseholdTotals::Total &total = totals.groups[one.group];
        add(total.sums, balance);
        ++total.accounts;
        add(totals.together, one.group == AccountGroup::Owed ? -balance : balance);
    }
    return totals;
}

QStringList totalTexts(const HouseholdTotals &totals, navigation::CurrencyDisplayOptions displayAs)
{
    const auto text = [displayAs](const QString &name, const Sums &sums) {
        return QObject::tr("%1: %2.", "a total").arg(name, sumsText(sums, displayAs));
    };
    QStringList texts;
    for (const auto &[group, total] : totals.groups) {
        const QString name =
            group == AccountGroup::Owed ? QObject::tr("Owed") : presentationText(group);
        if (total.accounts > 1)
            texts += text(name, total.sums);
    }
    if (totals.groups.size() > 1)
        texts += text(QObject::tr("Together"), totals.together);
    return texts;
}

std::vector<GroupedAccount> groupedAccounts(const BudgetStorage::Data &data,
                                            std::optional<QDate> day)
{
    const auto items = itemsByAccount(data);
    std::vector<GroupedAccount> all;
    for (const Account &account : data.generalLedger.accounts()) {
        GroupedAccount one;
        one.account = day ? Account(account.type(), account.code(), balanceOn(account, *day),
                                    account.isClosed())
                          : account;
        if (const auto found = items.find(account.code().number()); found != items.end())
            one.item = found->second;
        one.group = groupOf(account, one.item);
        one.name = one.item ? one.item->source.name() : account.code().name();
        one.bank = data.banks.find(account.code().number());
        one.whole = one.account.balance();
        all.push_back(std::move(one));
    }
    addUp(all);
    std::ranges::stable_sort(all, [](const GroupedAccount &a, const GroupedAccount &b) {
        const auto order = [](const GroupedAccount &one) {
            return std::tuple(one.group, one.account.isClosed());
        };
        return order(a) != order(b) ? order(a) < order(b)
                                    : QString::localeAwareCompare(a.name, b.name) < 0;
    });
    return all;
}

} // namespace kiv::workbench

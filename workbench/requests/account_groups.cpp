// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/account_groups.h"

#include "budgeting/item_traits.h"

#include <algorithm>
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

std::vector<GroupedAccount> groupedAccounts(const BudgetStorage::Data &data)
{
    const auto items = itemsByAccount(data);
    std::vector<GroupedAccount> all;
    for (const Account &account : data.generalLedger.accounts()) {
        GroupedAccount one;
        one.account = account;
        if (const auto found = items.find(account.code().number()); found != items.end())
            one.item = found->second;
        one.group = groupOf(account, one.item);
        one.name = one.item ? one.item->source.name() : account.code().name();
        one.bank = data.banks.find(account.code().number());
        one.whole = account.balance();
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

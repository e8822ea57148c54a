// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/account_paths.h"

#include "foundation/streams.h"

#include <vector>

namespace kiv::interchange {

using accounting::Account;
using accounting::AccountNumber;
using accounting::AccountTypes;

namespace {

using Accounts = std::map<AccountNumber, const Account *>;

using NameOf = std::function<QString(const Account &)>;

QString safeName(const Account &account, const NameOf &nameOf)
{
    // Two blanks end an account's name in a journal, and a semicolon begins a
    // comment.
    const QString called = nameOf ? nameOf(account) : account.code().name();
    QString name = foundation::escaped(called.simplified());
    name.replace(u':', u'-').replace(u';', u',');
    return name.isEmpty() ? accounting::presentationText(account.code().number()) : name;
}

/// No account's number when there is none.
AccountNumber parentOf(const Account &account)
{
    return account.code().parent().value_or(AccountNumber());
}

/// Under which account each stands in its path. An account that is nested deeper than
/// paths go stands beside its nearest ancestor that is not.
std::map<AccountNumber, AccountNumber> parentsInPaths(const Accounts &accounts)
{
    std::map<AccountNumber, AccountNumber> parents;
    std::map<AccountNumber, int> depths{{AccountNumber(), 0}};
    std::vector<AccountNumber> waiting;
    for (const auto &[number, account] : accounts) {
        for (AccountNumber above = number; !depths.contains(above);
             above = parentOf(*accounts.at(above)))
            waiting.push_back(above);
        for (; !waiting.empty(); waiting.pop_back()) {
            const AccountNumber parent = parentOf(*accounts.at(waiting.back()));
            const int depth = depths.at(parent) + 1;
            const bool isCut = depth > accounting::accountDepthMax;
            parents.emplace(waiting.back(), isCut ? parents.at(parent) : parent);
            depths.emplace(waiting.back(), isCut ? depth - 1 : depth);
        }
    }
    return parents;
}

std::map<AccountNumber, QString> uniqueNames(const Accounts &accounts,
                                             const std::map<AccountNumber, AccountNumber> &parents,
                                             const NameOf &nameOf)
{
    std::map<AccountNumber, QString> names;
    for (const auto &[number, account] : accounts)
        names.emplace(number, safeName(*account, nameOf));

    // Siblings with equal names get their numbers behind them, again if the new name is
    // taken. Numbers differ, so this ends.
    for (bool isUnique = false; !isUnique;) {
        isUnique = true;
        std::map<std::tuple<QString, AccountNumber, QString>, std::vector<AccountNumber>> groups;
        for (const auto &[number, account] : accounts) {
            groups[{rootOf(account->type()), parents.at(number), names.at(number)}].push_back(
                number);
        }
        for (const auto &[key, numbers] : groups) {
            if (numbers.size() < 2)
                continue;
            isUnique = false;
            for (const AccountNumber number : numbers)
                names.at(number) += u' ' + accounting::presentationText(number);
        }
    }
    return names;
}

} // namespace

QString rootOf(AccountTypes type)
{
    static const std::map<AccountTypes, QString> roots{
        {AccountTypes::Asset, QStringLiteral("Assets")},
        {AccountTypes::Liability, QStringLiteral("Liabilities")},
        {AccountTypes::Equity, QStringLiteral("Equity")},
        {AccountTypes::Income, QStringLiteral("Income")},
        {AccountTypes::Expense, QStringLiteral("Expenses")}};
    return roots.at(type);
}

AccountTypes typeOfRoot(const QString &root)
{
    using enum AccountTypes;
    static const std::map<QString, AccountTypes> roots{
        {QStringLiteral("asset"), Asset},         {QStringLiteral("assets"), Asset},
        {QStringLiteral("liability"), Liability}, {QStringLiteral("liabilities"), Liability},
        {QStringLiteral("equity"), Equity},       {QStringLiteral("income"), Income},
        {QStringLiteral("revenue"), Income},      {QStringLiteral("revenues"), Income},
        {QStringLiteral("expense"), Expense},     {QStringLiteral("expenses"), Expense}};
    const auto found = roots.find(root.toLower());
    return found == roots.end() ? Unknown : found->second;
}

std::map<AccountNumber, QString> accountPaths(const std::set<Account> &accounts,
                                              const NameOf &nameOf)
{
    Accounts byNumber;
    for (const Account &account : accounts)
        byNumber.emplace(account.code().number(), &account);
    const std::map<AccountNumber, AccountNumber> parents = parentsInPaths(byNumber);
    const std::map<AccountNumber, QString> names = uniqueNames(byNumber, parents, nameOf);

    std::map<AccountNumber, QString> paths;
    for (const auto &[number, account] : byNumber) {
        QString path = names.at(number);
        for (AccountNumber above = parents.at(number); above != AccountNumber();
             above = parents.at(above))
            path = names.at(above) + u':' + path;
        paths.emplace(number, rootOf(account->type()) + u':' + path);
    }
    return paths;
}

} // namespace kiv::interchange

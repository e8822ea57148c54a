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

QString safeName(const Account &account)
{
    // Two blanks end an account's name in a journal, and a semicolon begins a
    // comment.
    QString name = foundation::escaped(account.code().name().simplified());
    name.replace(u':', u'-').replace(u';', u',');
    return name.isEmpty() ? accounting::presentationText(account.code().number()) : name;
}

/// No account's number when there is none.
AccountNumber parentOf(const Account &account)
{
    return account.code().parent().value_or(AccountNumber());
}

std::map<AccountNumber, QString> uniqueNames(const Accounts &accounts)
{
    std::map<AccountNumber, QString> names;
    for (const auto &[number, account] : accounts)
        names.emplace(number, safeName(*account));

    // Siblings whose names agree get their numbers, and again if a name so made
    // is another sibling's; two numbers differ, so this ends.
    for (bool isUnique = false; !isUnique;) {
        isUnique = true;
        std::map<std::tuple<QString, AccountNumber, QString>, std::vector<AccountNumber>> groups;
        for (const auto &[number, account] : accounts) {
            groups[{rootOf(account->type()), parentOf(*account), names.at(number)}].push_back(
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

std::map<AccountNumber, QString> accountPaths(const std::set<Account> &accounts)
{
    Accounts byNumber;
    for (const Account &account : accounts)
        byNumber.emplace(account.code().number(), &account);
    const std::map<AccountNumber, QString> names = uniqueNames(byNumber);

    std::map<AccountNumber, QString> paths;
    for (const auto &[number, account] : byNumber) {
        QString path = names.at(number);
        AccountNumber above = parentOf(*account);
        while (above != AccountNumber()) {
            path = names.at(above) + u':' + path;
            above = parentOf(*byNumber.at(above));
        }
        paths.emplace(number, rootOf(account->type()) + u':' + path);
    }
    return paths;
}

} // namespace kiv::interchange

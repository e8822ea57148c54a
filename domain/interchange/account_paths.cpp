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

/// The parent by which a path goes on; none for a top-level account, and none
/// for a parent that is not there.
std::optional<AccountNumber> parentIn(const Accounts &accounts, const Account &account)
{
    const std::optional<AccountNumber> &parent = account.code().parent();
    return parent && accounts.contains(*parent) ? parent : std::nullopt;
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
            const auto parent = parentIn(accounts, *account).value_or(AccountNumber());
            groups[{rootOf(account->type()), parent, names.at(number)}].push_back(number);
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
    switch (type) {
    case AccountTypes::Asset:
        return QStringLiteral("Assets");
    case AccountTypes::Equity:
        return QStringLiteral("Equity");
    case AccountTypes::Expense:
        return QStringLiteral("Expenses");
    case AccountTypes::Liability:
        return QStringLiteral("Liabilities");
    case AccountTypes::Income:
        return QStringLiteral("Income");
    case AccountTypes::Unknown:
        break;
    }
    return QStringLiteral("Unknown");
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
        for (auto parent = parentIn(byNumber, *account); parent;
             parent = parentIn(byNumber, *byNumber.at(*parent)))
            path = names.at(*parent) + u':' + path;
        paths.emplace(number, rootOf(account->type()) + u':' + path);
    }
    return paths;
}

} // namespace kiv::interchange

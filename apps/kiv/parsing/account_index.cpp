// SPDX-License-Identifier: GPL-3.0-or-later
#include "parsing/account_index.h"

#include "errors.h"
#include "parsing/similar.h"

#include "foundation/streams.h"

#include <limits>

namespace kiv::app {

using accounting::Account;
using accounting::AccountNumber;
using accounting::AccountTypes;

namespace {

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
std::optional<AccountNumber> parentIn(const std::map<AccountNumber, const Account *> &accounts,
                                      const Account &account)
{
    const std::optional<AccountNumber> &parent = account.code().parent();
    return parent && accounts.contains(*parent) ? parent : std::nullopt;
}

} // namespace

AccountIndex::AccountIndex(std::set<Account> accounts) : m_accounts(std::move(accounts))
{
    for (const Account &account : m_accounts)
        m_byNumber.emplace(account.code().number(), &account);
    makePaths();
}

void AccountIndex::makePaths()
{
    std::map<AccountNumber, QString> names;
    for (const auto &[number, account] : m_byNumber)
        names.emplace(number, safeName(*account));

    // Siblings whose names agree get their numbers, and again if a name so made
    // is another sibling's; two numbers differ, so this ends.
    for (bool isUnique = false; !isUnique;) {
        isUnique = true;
        std::map<std::tuple<QString, AccountNumber, QString>, std::vector<AccountNumber>> groups;
        for (const auto &[number, account] : m_byNumber) {
            const auto parent = parentIn(m_byNumber, *account).value_or(AccountNumber());
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

    for (const auto &[number, account] : m_byNumber) {
        QString path = names.at(number);
        for (auto parent = parentIn(m_byNumber, *account); parent;
             parent = parentIn(m_byNumber, *m_byNumber.at(*parent)))
            path = names.at(*parent) + u':' + path;
        m_paths.emplace(number, rootOf(account->type()) + u':' + path);
    }
}

const Account &AccountIndex::find(const QString &text) const
{
    bool isNumber = false;
    const uint number = text.toUInt(&isNumber);
    if (const Account *account = isNumber ? find(AccountNumber(number)) : nullptr)
        return *account;

    std::vector<const Account *> named;
    for (const Account &account : m_accounts) {
        if (account.code().name() == text)
            named.push_back(&account);
    }
    if (named.size() > 1) {
        QStringList numbers;
        for (const Account *account : named)
            numbers += accounting::presentationText(account->code().number());
        throw ambiguousAccount(text, numbers);
    }
    if (named.size() == 1)
        return *named.front();

    for (const auto &[candidate, path] : m_paths) {
        if (path == text)
            return *m_byNumber.at(candidate);
    }
    QStringList known;
    for (const auto &[candidate, path] : m_paths)
        known << m_byNumber.at(candidate)->code().name() << path;
    throw noSuchAccount(text, similarTo(text, known));
}

const Account *AccountIndex::find(AccountNumber number) const
{
    const auto found = m_byNumber.find(number);
    return found == m_byNumber.end() ? nullptr : found->second;
}

QString AccountIndex::path(AccountNumber number) const
{
    const auto found = m_paths.find(number);
    return found == m_paths.end() ? QString() : found->second;
}

AccountNumber AccountIndex::nextNumber() const
{
    const std::uint32_t highest = m_byNumber.empty() ? 0 : m_byNumber.rbegin()->first.integer();
    if (highest < std::numeric_limits<std::uint32_t>::max())
        return AccountNumber(highest + 1);
    std::uint32_t number = 1;
    while (m_byNumber.contains(AccountNumber(number)))
        ++number;
    return AccountNumber(number);
}

} // namespace kiv::app

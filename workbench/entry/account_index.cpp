// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/account_index.h"

#include "workbench/entry/similar.h"
#include "workbench/internal/faults.h"

#include "interchange/account_paths.h"

#include <limits>

namespace kiv::workbench {

using accounting::Account;
using accounting::AccountNumber;

AccountIndex::AccountIndex(std::set<Account> accounts) : m_accounts(std::move(accounts))
{
    for (const Account &account : m_accounts)
        m_byNumber.emplace(account.code().number(), &account);
    m_paths = interchange::accountPaths(m_accounts);
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
        throw internal::ambiguousAccount(text, numbers);
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
    throw internal::noSuchAccount(text, similarTo(text, known));
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

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/entry/account_index.h"

#include "workbench/entry/kind_words.h"
#include "workbench/entry/similar.h"
#include "workbench/internal/faults.h"

#include "budgeting/item_account.h"
#include "budgeting/item_traits.h"
#include "interchange/account_paths.h"

#include <limits>

namespace kiv::workbench {

using accounting::Account;
using accounting::AccountNumber;
using budgeting::BudgetItemTypes;

namespace {

/// " [Budget Item]"
const QString &mark()
{
    static const QString text = budgeting::itemAccountName(budgeting::BudgetSource());
    return text;
}

/// The kinds of item whose accounts are of this type.
std::vector<BudgetItemTypes> kindsWith(accounting::AccountTypes type)
{
    std::vector<BudgetItemTypes> kinds;
    budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        if (budgeting::ItemTraits<Item>::accountType == type)
            kinds.push_back(budgeting::ItemTraits<Item>::type);
    });
    return kinds;
}

} // namespace

bool isItemAccount(const Account &account)
{
    const QString &name = account.code().name();
    return name.size() > mark().size() && name.endsWith(mark()) &&
           !kindsWith(account.type()).empty();
}

bool keepsMoney(const Account &account)
{
    using enum accounting::AccountTypes;
    return account.type() == Asset || account.type() == Liability;
}

bool canBeSpentOn(const Account &account)
{
    return account.type() == accounting::AccountTypes::Expense ||
           (isItemAccount(account) && keepsMoney(account));
}

QString plainNameOf(const Account &account)
{
    const QString &name = account.code().name();
    return isItemAccount(account) ? name.chopped(mark().size()) : name;
}

QString inPlainWords(QString text)
{
    return text.remove(mark());
}

AccountIndex::AccountIndex(std::set<Account> accounts, LookUp lookUp)
    : m_accounts(std::move(accounts)), m_lookUp(std::move(lookUp))
{
    for (const Account &account : m_accounts)
        m_byNumber.emplace(account.code().number(), &account);
}

// ---- finding ---------------------------------------------------------------------

const Account &AccountIndex::find(const QString &text) const
{
    bool isNumber = false;
    const uint number = text.toUInt(&isNumber);
    if (const Account *account = isNumber ? find(AccountNumber(number)) : nullptr)
        return *account;
    const std::vector<const Account *> candidates = named(text);
    if (candidates.size() == 1)
        return *candidates.front();
    if (!candidates.empty())
        return clearest(candidates, text);
    for (const auto &[candidate, name] : names()) {
        if (name.path == text || name.plainPath == text)
            return *m_byNumber.at(candidate);
    }
    if (const Account *account = ofItem(text))
        return *account;
    QStringList known = plainNames();
    for (const auto &[_, name] : names())
        known << name.path << name.plainPath;
    known.removeDuplicates();
    throw internal::noSuchAccount(text, similarTo(text, known));
}

std::vector<const Account *> AccountIndex::named(const QString &text) const
{
    std::vector<const Account *> found;
    for (const Account &account : m_accounts) {
        if (account.code().name() == text || plainNameOf(account) == text)
            found.push_back(&account);
    }
    return found;
}

const Account &AccountIndex::clearest(const std::vector<const Account *> &candidates,
                                      const QString &text) const
{
    std::vector<const Account *> meant;
    QStringList ways;
    for (const Account *account : candidates) {
        const BudgetItemTypes kind = ownerOf(*account);
        // The closed account of a removed item does not hide a new item of its name.
        if (isItemAccount(*account) && kind == BudgetItemTypes::None && account->isClosed())
            continue;
        meant.push_back(account);
        ways += kind == BudgetItemTypes::None
                    ? accounting::presentationText(account->code().number())
                    : kindWord(kind) + u':' + plainNameOf(*account);
    }
    if (meant.size() == 1)
        return *meant.front();
    if (meant.empty()) {
        for (const Account *account : candidates)
            ways += accounting::presentationText(account->code().number());
    }
    throw internal::ambiguousAccount(text, ways);
}

BudgetItemTypes AccountIndex::ownerOf(const Account &account) const
{
    if (m_lookUp && isItemAccount(account)) {
        const budgeting::BudgetSource source(plainNameOf(account));
        for (const BudgetItemTypes kind : kindsWith(account.type())) {
            if (m_lookUp({kind, source}) == account.code().number())
                return kind;
        }
    }
    return BudgetItemTypes::None;
}

const Account *AccountIndex::ofItem(const QString &text) const
{
    if (!m_lookUp)
        return nullptr;
    const auto [kind, name] = withKind(text);
    const Account *found = nullptr;
    budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        constexpr BudgetItemTypes each = budgeting::ItemTraits<Item>::type;
        if (found || (kind && *kind != each))
            return;
        if (const auto number = m_lookUp({each, budgeting::BudgetSource(name)}))
            found = find(*number);
    });
    return found;
}

const Account *AccountIndex::find(AccountNumber number) const
{
    const auto found = m_byNumber.find(number);
    return found == m_byNumber.end() ? nullptr : found->second;
}

// ---- showing ---------------------------------------------------------------------

const std::map<AccountNumber, AccountIndex::Name> &AccountIndex::names() const
{
    if (m_names.empty()) {
        std::map<QString, int> uses;
        for (const Account &account : m_accounts)
            ++uses[plainNameOf(account)];
        const auto paths = interchange::accountPaths(m_accounts);
        const auto plainPaths = interchange::accountPaths(m_accounts, plainNameOf);
        for (const auto &[number, account] : m_byNumber) {
            const QString name = plainNameOf(*account);
            bool isNumber = false;
            (void)name.toUInt(&isNumber);
            QString plain = name;
            if (uses[name] > 1 || isNumber || name.trimmed().isEmpty()) {
                const BudgetItemTypes kind = ownerOf(*account);
                plain = kind == BudgetItemTypes::None ? plainPaths.at(number)
                                                      : kindWord(kind) + u':' + name;
            }
            m_names.emplace(number, Name{paths.at(number), plainPaths.at(number), plain});
        }
    }
    return m_names;
}

const AccountIndex::Name *AccountIndex::nameOf(AccountNumber number) const
{
    const auto found = names().find(number);
    return found == names().end() ? nullptr : &found->second;
}

QString AccountIndex::path(AccountNumber number) const
{
    const Name *name = nameOf(number);
    return name ? name->path : QString();
}

QString AccountIndex::plainPath(AccountNumber number) const
{
    const Name *name = nameOf(number);
    return name ? name->plainPath : QString();
}

QString AccountIndex::plainName(AccountNumber number) const
{
    const Name *name = nameOf(number);
    return name ? name->plain : QString();
}

QString AccountIndex::label(AccountNumber number) const
{
    const Account *account = find(number);
    return accounting::presentationText(
        accounting::AccountCode(number, account ? plainNameOf(*account) : QString(), std::nullopt));
}

QStringList AccountIndex::plainNames() const
{
    QStringList all;
    for (const auto &[_, name] : names())
        all += name.plain;
    return all;
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

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "accounting/account.h"
#include "budgeting/identifiers.h"

#include <QtCore/QStringList>

#include <functional>
#include <map>
#include <optional>
#include <set>
#include <vector>

namespace kiv::workbench {

/// The accounts of a budget, to be found and shown by the names that a household uses.
///
/// An item's account is recognised by what the budget calls it, "Rent [Budget Item]", and
/// is shown under the item's name. An account that its user gave another name is shown
/// under that one. No answer tells the accounts of all items, and to ask for each would
/// read all their transactions; so only a text that the names leave open is looked up.
class KIV_WORKBENCH_EXPORT AccountIndex {
public:
    /// Returns the account of an item, if the budget has the item.
    using LookUp = std::function<std::optional<accounting::AccountNumber>(
        const budgeting::BudgetItemIdentifier &)>;

    /// Takes the accounts. Without a `lookUp` items are known by their accounts alone.
    explicit AccountIndex(std::set<accounting::Account> accounts, LookUp lookUp = {});
    AccountIndex(AccountIndex &&) noexcept = default;
    AccountIndex &operator=(AccountIndex &&) noexcept = default;

    /// The accounts, ordered by number.
    [[nodiscard]] const std::set<accounting::Account> &accounts() const &noexcept
    {
        return m_accounts;
    }
    /// Not from a temporary, which owns them.
    void accounts() const && = delete;
    /// The account with this number, name or path, or of the item with this name; the
    /// item's kind can stand before it, as in "bill:Rent". Throws a Refusal if there is
    /// none, or if several have the name. May call the look-up.
    [[nodiscard]] const accounting::Account &find(const QString &text) const;
    /// The account with this number, or null.
    [[nodiscard]] const accounting::Account *find(accounting::AccountNumber number) const;
    /// The path of the account, see interchange::accountPaths; empty if there is none.
    [[nodiscard]] QString path(accounting::AccountNumber number) const;
    /// The next number after the highest.
    [[nodiscard]] accounting::AccountNumber nextNumber() const;

    // ---- for people --------------------------------------------------------------
    // All of these texts are found by find().

    /// The item's name for an item's account, else the account's name. If several accounts
    /// have that, "bill:Rent" for an item, else the plain path. Empty if there is no account.
    [[nodiscard]] QString plainName(accounting::AccountNumber number) const;
    /// The path with the names of items: "Expenses:Rent". Empty if there is no account.
    [[nodiscard]] QString plainPath(accounting::AccountNumber number) const;
    /// "3 Rent", for sentences.
    [[nodiscard]] QString label(accounting::AccountNumber number) const;
    /// The plain names of all accounts, for completion and suggestions.
    [[nodiscard]] QStringList plainNames() const;

private:
    struct Name {
        QString path;
        QString plainPath;
        QString plain;
    };

    [[nodiscard]] const std::map<accounting::AccountNumber, Name> &names() const;
    [[nodiscard]] const Name *nameOf(accounting::AccountNumber number) const;
    [[nodiscard]] std::vector<const accounting::Account *> named(const QString &text) const;
    /// The one that is meant; throws a Refusal that tells how to say each.
    [[nodiscard]] const accounting::Account &
    clearest(const std::vector<const accounting::Account *> &candidates, const QString &text) const;
    /// The kind of the item that owns the account; None without one.
    [[nodiscard]] budgeting::BudgetItemTypes ownerOf(const accounting::Account &account) const;
    /// The account of the item that is typed; null if there is none.
    [[nodiscard]] const accounting::Account *ofItem(const QString &text) const;

    std::set<accounting::Account> m_accounts;
    LookUp m_lookUp;
    /// Points into the set, whose elements keep their addresses when it is moved.
    std::map<accounting::AccountNumber, const accounting::Account *> m_byNumber;
    /// Made when first needed: most requests only look for numbers.
    mutable std::map<accounting::AccountNumber, Name> m_names;
};

/// Whether an account of this name and type is that of a budget item.
[[nodiscard]] KIV_WORKBENCH_EXPORT bool isItemAccount(const accounting::Account &account);
/// Whether the account is the household's own: an asset, or a liability. Money is spent from
/// such accounts, and earned to them.
[[nodiscard]] KIV_WORKBENCH_EXPORT bool keepsMoney(const accounting::Account &account);
/// Whether money is spent on it: an expense, or the account of a debt or a goal.
[[nodiscard]] KIV_WORKBENCH_EXPORT bool canBeSpentOn(const accounting::Account &account);
/// The name as a household knows it: without the mark of an item's account.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString plainNameOf(const accounting::Account &account);
/// The text with the names of items in place of those of their accounts.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString inPlainWords(QString text);

} // namespace kiv::workbench

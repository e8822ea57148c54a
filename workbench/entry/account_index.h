// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "accounting/account.h"

#include <map>
#include <set>
#include <vector>

namespace kiv::workbench {

/// The accounts of a budget with their paths, to be found by number, name or path. See
/// interchange::accountPaths.
class KIV_WORKBENCH_EXPORT AccountIndex {
public:
    /// Takes the accounts.
    explicit AccountIndex(std::set<accounting::Account> accounts);
    AccountIndex(AccountIndex &&) noexcept = default;
    AccountIndex &operator=(AccountIndex &&) noexcept = default;

    /// The accounts, ordered by number.
    [[nodiscard]] const std::set<accounting::Account> &accounts() const &noexcept
    {
        return m_accounts;
    }
    /// Not from a temporary, which owns them.
    void accounts() const && = delete;
    /// The account with this number, name or path, tried in this order. Throws a Refusal
    /// if there is none, or if several have the name.
    [[nodiscard]] const accounting::Account &find(const QString &text) const;
    /// The account with this number, or null.
    [[nodiscard]] const accounting::Account *find(accounting::AccountNumber number) const;
    /// The path of the account; empty if there is none.
    [[nodiscard]] QString path(accounting::AccountNumber number) const;
    /// The next number after the highest.
    [[nodiscard]] accounting::AccountNumber nextNumber() const;

private:
    std::set<accounting::Account> m_accounts;
    /// Points into the set, whose elements keep their addresses when it is moved.
    std::map<accounting::AccountNumber, const accounting::Account *> m_byNumber;
    std::map<accounting::AccountNumber, QString> m_paths;
};

} // namespace kiv::workbench

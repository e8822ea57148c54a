// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "accounting/account.h"

#include <map>
#include <set>
#include <vector>

namespace kiv::workbench {

/// The accounts of a budget, to be found by what a person writes for one, each
/// with its path (see interchange::accountPaths).
class KIV_WORKBENCH_EXPORT AccountIndex {
public:
    /// Takes the accounts over.
    explicit AccountIndex(std::set<accounting::Account> accounts);
    AccountIndex(AccountIndex &&) noexcept = default;
    AccountIndex &operator=(AccountIndex &&) noexcept = default;

    /// In the order of their numbers.
    [[nodiscard]] const std::set<accounting::Account> &accounts() const &noexcept
    {
        return m_accounts;
    }
    /// They go with the index.
    void accounts() const && = delete;
    /// The account with this number, this name or this path, in that order.
    /// Throws a Refusal when there is none, and when several have the name.
    [[nodiscard]] const accounting::Account &find(const QString &text) const;
    /// Null when there is none.
    [[nodiscard]] const accounting::Account *find(accounting::AccountNumber number) const;
    /// Empty for an unknown number.
    [[nodiscard]] QString path(accounting::AccountNumber number) const;
    /// The number after the highest one in use.
    [[nodiscard]] accounting::AccountNumber nextNumber() const;

private:
    std::set<accounting::Account> m_accounts;
    /// Into the set, whose elements stay where they are when it is moved.
    std::map<accounting::AccountNumber, const accounting::Account *> m_byNumber;
    std::map<accounting::AccountNumber, QString> m_paths;
};

} // namespace kiv::workbench

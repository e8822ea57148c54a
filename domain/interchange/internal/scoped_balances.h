// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/journal_entry.h"

#include <map>
#include <set>

namespace kiv::interchange::internal {

/// Balances for the assertions "==", "=*" and "==*" of hledger.
class ScopedBalances {
public:
    /// `parents` are the accounts with an assertion that includes those below them.
    explicit ScopedBalances(std::set<QString> parents) : m_parents(std::move(parents)) {}

    void add(const QString &account, const Quantity &amount);

    /// Throws ImportError unless the account has this balance.
    void require(const QString &account, const Quantity &asserted, AssertionScope scope,
                 const Place &place) const;

private:
    /// Of one account, by commodity, without zeros.
    using Sums = std::map<QString, numira::Decimal>;

    static void add(Sums &sums, const Quantity &amount);

    std::set<QString> m_parents;
    std::map<QString, Sums> m_own;
    std::map<QString, Sums> m_withChildren; ///< of the parents
};

} // namespace kiv::interchange::internal

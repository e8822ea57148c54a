// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/search/own_change.h"

namespace kiv::workbench {

OwnChange::OwnChange(const AccountIndex &index)
{
    for (const accounting::Account &account : index.accounts()) {
        if (keepsMoney(account))
            m_own.insert(account.code().number());
    }
}

void OwnChange::add(const accounting::Transaction &transaction)
{
    // A debit adds to an asset, and takes from what is owed.
    addSide(transaction.debiting().number(), transaction.debitAmount());
    addSide(transaction.crediting().number(), -transaction.creditAmount());
}

void OwnChange::addSide(accounting::AccountNumber account, const numira::Money &amount)
{
    if (m_own.contains(account))
        m_sums.try_emplace(amount.code(), amount.code()).first->second += amount;
}

std::vector<numira::Money> OwnChange::sums() const
{
    std::vector<numira::Money> all;
    for (const auto &[_, sum] : m_sums)
        all.push_back(sum);
    return all;
}

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/account_index.h"

#include "accounting/transaction.h"

namespace kiv::workbench {

/// What transactions did to all that the household has and owes: its assets (bank accounts,
/// cash, goals) and its liabilities (cards, loans, debts). Spending counts as negative and
/// earning as positive. Money that moves between these accounts, to a card, a loan or a goal
/// as well, counts as nothing; between two currencies both sides count.
class KIV_WORKBENCH_EXPORT OwnChange {
public:
    /// Notes which accounts are the household's own.
    explicit OwnChange(const AccountIndex &index);

    /// Adds the change by a transaction, in the currencies of the accounts.
    void add(const accounting::Transaction &transaction);
    /// The sum in each currency that occurred, ordered as currencies are.
    [[nodiscard]] std::vector<numira::Money> sums() const;

private:
    void addSide(accounting::AccountNumber account, const numira::Money &amount);

    std::set<accounting::AccountNumber> m_own;
    std::map<numira::Currency, numira::Money> m_sums;
};

} // namespace kiv::workbench

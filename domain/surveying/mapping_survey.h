// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surveying/balance_change.h"
#include "surveying/distributed_amount.h"

#include "banking/bank_account.h"
#include "foundation/debug_stream.h"

#include <map>
#include <optional>
#include <set>

namespace kiv::surveying {

/// What a household goes through when it compares a bank statement with its
/// books: everything that has happened to a bank account since it was last
/// reconciled, the balance that it should show, and a proposal of what to set
/// aside.
class KIV_SURVEYING_EXPORT MappingSurvey {
public:
    /// Changes of the balance by the budget item behind them.
    using BudgetItemChanges = std::map<budgeting::BudgetItemIdentifier, std::set<BalanceChange>>;
    /// Changes of the balance by the account behind them.
    using AccountChanges = std::map<accounting::AccountCode, std::set<BalanceChange>>;

    MappingSurvey() = default;
    /// The survey with all its parts; see the members below.
    MappingSurvey(banking::ReconciledBankAccount reconciled, const numira::Money &expectedBalance,
                  QDate startOn, BudgetItemChanges budgetItemChanges, Distribution distributions,
                  AccountChanges accountChanges, const std::optional<numira::Money> &amountDue);

    /// The account as it was last reconciled.
    [[nodiscard]] const banking::ReconciledBankAccount &reconciled() const noexcept
    {
        return m_reconciled;
    }
    /// The reconciled balance moved by every unreconciled change.
    [[nodiscard]] const numira::Money &expectedBalance() const noexcept
    {
        return m_expectedBalance;
    }
    /// The day from which changes are counted.
    [[nodiscard]] QDate startOn() const noexcept { return m_startOn; }
    /// Every budget item with the changes that have it on their other side.
    [[nodiscard]] const BudgetItemChanges &budgetItemChanges() const noexcept
    {
        return m_budgetItemChanges;
    }
    /// What is proposed to be set aside.
    [[nodiscard]] const Distribution &distributions() const noexcept { return m_distributions; }
    /// The changes that have no budget item on their other side, by that side.
    [[nodiscard]] const AccountChanges &accountChanges() const noexcept { return m_accountChanges; }
    /// What is still to be paid in the month of the survey; nothing for a
    /// liability account.
    [[nodiscard]] const std::optional<numira::Money> &amountDue() const noexcept
    {
        return m_amountDue;
    }

    friend bool operator==(const MappingSurvey &, const MappingSurvey &) = default;

private:
    banking::ReconciledBankAccount m_reconciled;
    numira::Money m_expectedBalance;
    QDate m_startOn;
    BudgetItemChanges m_budgetItemChanges;
    Distribution m_distributions;
    AccountChanges m_accountChanges;
    std::optional<numira::Money> m_amountDue;
};

KIV_SURVEYING_EXPORT std::ostream &operator<<(std::ostream &out, const MappingSurvey &survey);
using foundation::operator<<;

} // namespace kiv::surveying

Q_DECLARE_METATYPE(kiv::surveying::MappingSurvey)

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surveying/distributed_amount.h"

#include "banking/bank_account.h"
#include "foundation/debug_stream.h"
#include "foundation/percentage.h"

namespace kiv::surveying {

/// The last reconciliation of a bank account: the statement's balance and day,
/// and how the money in the account is set aside.
class KIV_SURVEYING_EXPORT CompletedSurvey {
public:
    CompletedSurvey() = default;
    /// Nothing reconciled yet: a zero balance, no day, nothing set aside.
    CompletedSurvey(banking::BankAccount account, const numira::Currency &currency);

    /// The bank account that was surveyed.
    [[nodiscard]] const banking::BankAccount &bankAccount() const noexcept
    {
        return m_reconciled.bankAccount();
    }
    /// The account with the statement's balance and day.
    [[nodiscard]] const banking::ReconciledBankAccount &reconciled() const noexcept
    {
        return m_reconciled;
    }
    /// What is set aside, by item.
    [[nodiscard]] const Distribution &distribution() const noexcept { return m_distribution; }
    /// What was left over.
    [[nodiscard]] const numira::Money &nonDistributed() const noexcept { return m_nonDistributed; }
    /// By how much the balances were allowed to differ.
    [[nodiscard]] const foundation::Percentage &window() const noexcept { return m_window; }

    /// Replaces the last reconciliation by a newer one. Throws SurveyError when
    /// the day is invalid; then nothing has changed.
    void completed(QDate on, const numira::Money &balance, Distribution distribution,
                   const numira::Money &nonDistributed, const foundation::Percentage &window);

    /// Each follows a new name, and does nothing when `from` is not its own. An
    /// item renamed onto one that the distribution holds already replaces it.
    void renamed(const banking::BankName &from, const banking::BankName &to);
    /// The account has another number now.
    void renamed(accounting::AccountNumber from, accounting::AccountNumber to);
    /// The item has another name now.
    void renamed(const budgeting::BudgetItemIdentifier &from, const budgeting::BudgetSource &to);

    friend bool operator==(const CompletedSurvey &, const CompletedSurvey &) = default;

private:
    void moveTo(banking::BankAccount account);

    banking::ReconciledBankAccount m_reconciled;
    Distribution m_distribution;
    numira::Money m_nonDistributed;
    foundation::Percentage m_window;
};

KIV_SURVEYING_EXPORT std::ostream &operator<<(std::ostream &out, const CompletedSurvey &survey);
using foundation::operator<<;

} // namespace kiv::surveying

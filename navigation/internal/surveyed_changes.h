// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/internal/budget_ledgers.h"

#include "surveying/mapping_survey.h"

namespace kiv::navigation::internal {

/// A surveyed bank account together with the accounts directly under it, open
/// or closed.
struct KIV_NAVIGATION_EXPORT SurveyedAccounts {
    banking::BankAccount bankAccount;
    std::set<accounting::AccountNumber> children;

    [[nodiscard]] accounting::AccountNumber number() const noexcept
    {
        return bankAccount.account.number;
    }
    [[nodiscard]] bool isAsset() const { return banking::isAssetAccount(bankAccount.account.type); }
    /// Whether it is the bank account or one under it.
    [[nodiscard]] bool contains(accounting::AccountNumber account) const;
    /// Whether both sides of the transaction are among these accounts. Then the
    /// statement's balance does not move.
    [[nodiscard]] bool isWithin(const accounting::Transaction &transaction) const;
    /// Whether the transaction moves money between the bank account and one
    /// under it.
    [[nodiscard]] bool isInternal(const accounting::Transaction &transaction) const;
};

/// Sums up the transactions of a surveyed bank account: the expected balance, the
/// changes by budget item and by account, and what is set aside for the items.
///
/// An amount counts on the side of the account that it moves, in that account's
/// currency.
class KIV_NAVIGATION_EXPORT SurveyedChanges {
public:
    using BudgetItemChanges = surveying::MappingSurvey::BudgetItemChanges;
    using AccountChanges = surveying::MappingSurvey::AccountChanges;

    /// Accounts and ledgers must outlive it.
    SurveyedChanges(const SurveyedAccounts &accounts, const BudgetLedgers &ledgers,
                    const numira::Money &balance);

    /// Adds a transaction of the ledger account `walked`, which is the bank
    /// account or one under it. Adding an internal transfer again from its other
    /// account changes nothing. Throws SurveyError when neither
    /// side is `walked` or the bank account, and no budget item is concerned.
    void add(const accounting::Transaction &transaction, accounting::AccountNumber walked);

    [[nodiscard]] const numira::Money &expectedBalance() const noexcept { return m_balance; }
    surveying::Distribution distribution;
    BudgetItemChanges budgetItemChanges;
    AccountChanges accountChanges;

private:
    struct Movement;
    void addToItem(const Movement &movement, const budgeting::BudgetItemIdentifier &item);
    void distribute(const Movement &movement, const budgeting::BudgetItemIdentifier &item);
    void addToAccount(const Movement &movement);

    const SurveyedAccounts &m_accounts;
    const BudgetLedgers &m_ledgers;
    std::map<accounting::AccountNumber, budgeting::BudgetItemIdentifier> m_items; ///< by account
    numira::Money m_balance;
};

} // namespace kiv::navigation::internal

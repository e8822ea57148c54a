// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/export.h"

#include "banking/bank_account.h"
#include "budgeting/identifiers.h"
#include "foundation/debug_stream.h"

namespace kiv::navigation {

/// A budget item with the bank account to which it is tied: for a debt its own
/// account, for a goal the account under which its own stands.
///
/// Ordered by the item's kind, then its name, then bank, number and kind of
/// the account.
struct KIV_NAVIGATION_EXPORT BudgetBankAccount {
    /// The item's kind: a debt or a goal.
    budgeting::BudgetItemTypes type = budgeting::BudgetItemTypes::None;
    /// The item's name among those of its kind.
    budgeting::BudgetSource source;
    /// The bank account to which it is tied.
    banking::BankAccount bankAccount;

    friend bool operator==(const BudgetBankAccount &, const BudgetBankAccount &) = default;
    friend std::strong_ordering operator<=>(const BudgetBankAccount &,
                                            const BudgetBankAccount &) = default;
};

/// The bank account of the first record whose item has this name, whatever its
/// kind; so of two kinds with one name the lower one answers.
[[nodiscard]] KIV_NAVIGATION_EXPORT std::optional<banking::BankAccount>
lookUpBankAccount(const budgeting::BudgetSource &source,
                  const std::set<BudgetBankAccount> &accounts);

KIV_NAVIGATION_EXPORT std::ostream &operator<<(std::ostream &out, const BudgetBankAccount &account);
using foundation::operator<<;

} // namespace kiv::navigation

Q_DECLARE_METATYPE(kiv::navigation::BudgetBankAccount)
Q_DECLARE_METATYPE(std::set<kiv::navigation::BudgetBankAccount>)

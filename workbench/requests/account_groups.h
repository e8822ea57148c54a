// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"
#include "workbench/requests/balances.h"

#include "navigation/currency_display.h"
#include "storage/budget_storage.h"

#include <QtCore/QStringList>

#include <map>
#include <optional>
#include <vector>

namespace kiv::workbench {

/// What an account is to a household.
enum class AccountGroup : std::uint8_t {
    Money = 1,    ///< at a bank, or in cash
    Owed = 2,     ///< a card, a loan or another debt
    SetAside = 3, ///< the account of a goal
    Item = 4,     ///< of a bill, a non-tracked item or a wage
    Other = 5     ///< what else money is spent on or comes from
};

/// An account as a household sees it.
struct KIV_WORKBENCH_EXPORT GroupedAccount {
    /// The account, with its balance at the end of the day that was asked.
    accounting::Account account;
    /// Where it stands.
    AccountGroup group{};
    QString name; ///< the item's for an item's account, else its own
    std::optional<budgeting::BudgetItemIdentifier> item; ///< whose account it is
    std::optional<banking::BankName> bank;               ///< that keeps it
    /// The balance with those of the accounts under it in the same currency: what the bank
    /// shows for an account under which goals lie. No rate is needed for it.
    numira::Money whole;
};

/// The group's name for the user.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString presentationText(AccountGroup group);

/// The open and closed accounts by group; in it open ones first, then by name. Without a day,
/// their balances count all transactions; with one, those until its end, and the accounts have
/// no transactions.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<GroupedAccount>
groupedAccounts(const storage::BudgetStorage::Data &data, std::optional<QDate> day = {});

/// What a household has, in the groups of what it keeps and owes.
struct HouseholdTotals {
    /// What several accounts hold.
    struct Total {
        Sums sums;        ///< of them
        int accounts = 0; ///< how many they are
    };
    std::map<AccountGroup, Total> groups; ///< Money, Owed and SetAside, as far as there are any
    Sums together;                        ///< what is owed counts against the others
};
/// Adds up the balances.
[[nodiscard]] KIV_WORKBENCH_EXPORT HouseholdTotals
totalsOf(const std::vector<GroupedAccount> &accounts);
/// "At banks and in cash: $500.00, €20.00.", a sentence for each group of several accounts, and
/// one for all groups together if there are several.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList
totalTexts(const HouseholdTotals &totals, navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::workbench

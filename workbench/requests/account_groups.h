// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "storage/budget_storage.h"

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
    /// The account.
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

/// The open and closed accounts by group; in it open ones first, then by name.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<GroupedAccount>
groupedAccounts(const storage::BudgetStorage::Data &data);

} // namespace kiv::workbench

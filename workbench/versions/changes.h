// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "storage/budget_storage.h"

#include <optional>
#include <variant>
#include <vector>

/// The changes between two versions of a budget.
namespace kiv::workbench {

/// A budget item as the user sees it.
struct ItemState {
    budgeting::BudgetItemIdentifier id;    ///< its kind and name
    numira::Money amount;                  ///< each time
    budgeting::EventFrequency every{};     ///< how often
    QDate next;                            ///< when next
    std::optional<numira::Money> borrowed; ///< of a debt
    std::optional<numira::Money> target;   ///< of a goal
    tagging::Tags tags;                    ///< of the item

    /// Whether the user sees no difference.
    friend bool operator==(const ItemState &, const ItemState &) = default;
};

/// An account as the user sees it, without its transactions.
struct AccountState {
    accounting::AccountCode code;    ///< number, name and parent
    QString path;                    ///< see interchange::accountPaths
    accounting::AccountTypes type{}; ///< its kind
    bool isClosed = false;           ///< whether it is closed
    numira::Money balance;           ///< after all transactions

    /// Whether the user sees no difference.
    friend bool operator==(const AccountState &, const AccountState &) = default;
};

/// A bank as the user sees it. Balances belong to the accounts.
struct BankState {
    banking::BankName name;                          ///< its name
    bool isClosed = false;                           ///< whether it is closed
    std::vector<accounting::AccountNumber> accounts; ///< of the bank

    /// Whether the user sees no difference.
    friend bool operator==(const BankState &, const BankState &) = default;
};

/// The last survey of a bank account as the user sees it.
struct SurveyState {
    QDate reconciledOn;           ///< the statement's day
    numira::Money balance;        ///< the statement's
    numira::Money nonDistributed; ///< the amount that was not distributed

    /// Whether the user sees no difference.
    friend bool operator==(const SurveyState &, const SurveyState &) = default;
};

/// Anything that can change.
using Thing =
    std::variant<ItemState, AccountState, accounting::Transaction, BankState, SurveyState>;

/// Something added (without `before`), removed (without `after`) or changed.
struct Change {
    QString name;                ///< for example "bill Rent", "12 Checking", "17"
    std::optional<Thing> before; ///< empty if it was added
    std::optional<Thing> after;  ///< empty if it was removed
};

/// The changes of items, accounts, transactions, banks and surveys, in this order. Of
/// each kind, removed and changed things come before added ones.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<Change>
changesBetween(const storage::BudgetStorage::Data &before,
               const storage::BudgetStorage::Data &after);

} // namespace kiv::workbench

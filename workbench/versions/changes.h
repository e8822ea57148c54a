// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "storage/budget_storage.h"

#include <optional>
#include <variant>
#include <vector>

/// What changed from one version of a budget to another.
namespace kiv::workbench {

/// What a person sees of a budget item.
struct ItemState {
    budgeting::BudgetItemIdentifier id;    ///< its kind and name
    numira::Money amount;                  ///< each time
    budgeting::EventFrequency every{};     ///< how often
    QDate next;                            ///< when next
    std::optional<numira::Money> borrowed; ///< of a debt
    std::optional<numira::Money> target;   ///< of a goal
    tagging::Tags tags;                    ///< of the item

    /// Whether a person sees the same.
    friend bool operator==(const ItemState &, const ItemState &) = default;
};

/// What a person sees of an account, apart from its transactions.
struct AccountState {
    accounting::AccountCode code;    ///< number, name and parent
    QString path;                    ///< see interchange::accountPaths
    accounting::AccountTypes type{}; ///< its kind
    bool isClosed = false;           ///< whether it is closed
    numira::Money balance;           ///< after all transactions

    /// Whether a person sees the same.
    friend bool operator==(const AccountState &, const AccountState &) = default;
};

/// What a person sees of a bank. Balances are told with the accounts.
struct BankState {
    banking::BankName name;                          ///< its name
    bool isClosed = false;                           ///< whether it is closed
    std::vector<accounting::AccountNumber> accounts; ///< that it keeps

    /// Whether a person sees the same.
    friend bool operator==(const BankState &, const BankState &) = default;
};

/// What a person sees of the last survey of a bank account.
struct SurveyState {
    QDate reconciledOn;           ///< the statement's day
    numira::Money balance;        ///< the statement's
    numira::Money nonDistributed; ///< what was set aside for nothing

    /// Whether a person sees the same.
    friend bool operator==(const SurveyState &, const SurveyState &) = default;
};

/// Anything that can be told of a change.
using Thing =
    std::variant<ItemState, AccountState, accounting::Transaction, BankState, SurveyState>;

/// One thing that was added (no `before`), removed (no `after`) or changed.
struct Change {
    QString name;                ///< by which it is told: "bill Rent", "12 Checking", "17"
    std::optional<Thing> before; ///< nothing of what is new
    std::optional<Thing> after;  ///< nothing of what is gone
};

/// What became of items, accounts, transactions, banks and surveys, in this order;
/// of each kind first what was there before, then what is new.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<Change>
changesBetween(const storage::BudgetStorage::Data &before,
               const storage::BudgetStorage::Data &after);

} // namespace kiv::workbench

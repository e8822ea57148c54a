// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "budgeting/due.h"
#include "navigation/currency_display.h"
#include "storage/budget_storage.h"

#include <QtCore/QStringList>

#include <map>
#include <optional>
#include <set>
#include <vector>

namespace kiv::workbench {

/// An item that is due, and what paying it would bring.
struct DueLine {
    budgeting::BudgetItemAmountDue due;               ///< the item, its day and amount
    std::optional<QDate> next;                        ///< when it is due once more after that
    std::optional<accounting::AccountNumber> account; ///< that pays, or receives a wage
    /// The balance of that account when this line and those above it are paid; nothing
    /// without an account or an exchange rate.
    std::optional<numira::Money> after;
};

/// All that is due.
struct DueList {
    std::vector<DueLine> lines;                          ///< by day, the earliest first
    std::map<numira::Currency, numira::Money> toPay;     ///< the sum of all but wages
    std::map<numira::Currency, numira::Money> toReceive; ///< the sum of wages
    /// The currencies whose lines no balance counts, since there is no exchange rate.
    std::set<numira::Currency> lackingRates;
};

/// The accounts that were said for items.
using SaidAccounts = std::map<budgeting::BudgetItemIdentifier, accounting::AccountNumber>;

/// Completes what is due from the budget. See payingAccount() for the accounts.
[[nodiscard]] KIV_WORKBENCH_EXPORT DueList
dueList(const storage::BudgetStorage::Data &data,
        const std::vector<budgeting::BudgetItemAmountDue> &due, const SaidAccounts &said);

/// "To pay until 3 December: $1,234.50.", and what comes in likewise, as far as there is any.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList
dueTotalTexts(const DueList &list, QDate until, navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::workbench

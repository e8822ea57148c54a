// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"
#include "workbench/requests/requests.h"

#include "storage/budget_storage.h"

#include <QtCore/QStringList>

#include <map>
#include <optional>

/// What can be told of budget items in figures.
namespace kiv::workbench {

/// How far a debt or a goal has come.
struct ItemProgress {
    numira::Money part;  ///< what is saved, or still owed: the balance of its account
    numira::Money whole; ///< the target, or what was borrowed
    /// How much of the whole is saved or paid off, from 0 to 100 and rounded down. Nothing if
    /// the whole is not positive, or in another currency than the part.
    std::optional<int> percent;

    /// Whether the goal is reached or the debt paid off.
    [[nodiscard]] bool isReached() const { return percent == 100; }
};

/// The progress of a debt or a goal; nothing for other items, and without an account.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<ItemProgress>
progressOf(const storage::BudgetStorage::Data &data, const budgeting::BudgetedMoney &item);

/// What the items of one kind come to a month, as the dashboard has it: in `preferred`, or by
/// currencies where an exchange rate is missing.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::map<numira::Currency, numira::Money>
monthlyTotals(const budgeting::Budget &budget, budgeting::BudgetItemTypes kind,
              const numira::Currency &preferred);

/// The same in words: "Together a month: $1,234.50".
[[nodiscard]] KIV_WORKBENCH_EXPORT QString monthlyTotalText(Requests &requests,
                                                            budgeting::BudgetItemTypes kind);

/// The part of a budget that can be added up in one currency.
struct ConvertibleBudget {
    budgeting::Budget budget; ///< the items whose amounts can be told in the currency
    std::vector<budgeting::BudgetItemIdentifier> leftOut; ///< those that lack an exchange rate
};
/// Leaves the items out whose amounts have no exchange rate for the currency.
[[nodiscard]] KIV_WORKBENCH_EXPORT ConvertibleBudget
convertibleBudget(budgeting::Budget budget, const numira::Currency &currency);
/// "The totals leave 'Rent' out: there is no exchange rate between CHF and USD.", for each.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList leftOutTexts(const ConvertibleBudget &convertible,
                                                            const budgeting::Budget &budget,
                                                            const numira::Currency &currency);

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/budget_view.h"

#include "interchange/figures.h"

#include <array>

/// What reports are about, in the words of a household.
namespace kiv::workbench {

/// By what a report adds up.
enum class Grouping : std::uint8_t {
    Category = 1, ///< the accounts of expenses and income, with their sub-accounts
    Payee = 2,    ///< who got the money, or gave it
    Tag = 3,      ///< the tags of the budget items; an item with two counts under both
    Account = 4   ///< each account by itself, the household's own as well
};
/// All of them, in the order in which they are offered.
inline constexpr std::array groupings{Grouping::Category, Grouping::Payee, Grouping::Tag,
                                      Grouping::Account};
/// "category", "payee", "tag" or "account".
[[nodiscard]] KIV_WORKBENCH_EXPORT QString wordOf(Grouping grouping);
/// A heading, such as "By category".
[[nodiscard]] KIV_WORKBENCH_EXPORT QString presentationText(Grouping grouping);
/// One of the words.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, Grouping &value);

/// How long the spans of a report are, as typed.
struct SpanChoice {
    interchange::SpanLength length = interchange::SpanLength::Month; ///< but not Whole
};
/// "week", "two-weeks", "payday", "month", "quarter" or "year".
KIV_WORKBENCH_EXPORT void readValue(const QString &text, SpanChoice &value);

/// Up to twelve spans that end on the day `to`, from `from` if that is given. A single span
/// begins on the first of the month, eleven months before. Without `from` there is none before
/// that of the first transaction of `accounts`: averages would be too low.
[[nodiscard]] KIV_WORKBENCH_EXPORT interchange::Period
reportPeriod(interchange::SpanLength length, std::optional<QDate> from, QDate to,
             const std::vector<QDate> &paydays, const std::set<accounting::Account> &accounts);

/// The names under which a side of a transaction counts.
[[nodiscard]] KIV_WORKBENCH_EXPORT interchange::GroupsOf
groupNames(Grouping grouping, const BudgetView &view, const interchange::ItemAccounts &itemAccounts,
           const AccountIndex &index);
/// "(no payee)": what has no name.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString unnamedText(Grouping grouping);

} // namespace kiv::workbench

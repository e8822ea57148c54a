// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/values.h"

#include "outlook/outlook.h"
#include "storage/budget_storage.h"

/// What is to come of a household's money.
namespace kiv::workbench {

/// The most days that are looked ahead.
inline constexpr int outlookDaysMax = 3'660;
/// How many days are looked ahead: 1 to outlookDaysMax.
struct OutlookDays {
    int count = 92; ///< the usual ones
};
/// Throws an EntryError for anything else than such a number.
KIV_WORKBENCH_EXPORT void readValue(const QString &text, OutlookDays &value);

/// What is asked, beside what the budget holds.
struct OutlookQuestion {
    /// Something that is not in the budget.
    struct Once {
        QDate day;            ///< of it
        numira::Money amount; ///< negative when money comes in
    };
    QDate first;                                            ///< the first day
    OutlookDays days = {};                                  ///< that are looked at
    std::set<budgeting::BudgetItemIdentifier> without = {}; ///< as if these were none
    std::vector<Once> with = {}; ///< from or to the first account that can pay
};

/// The least that shall be there, in `preferred`. Throws an EntryError for too many decimals, and
/// a Refusal without an exchange rate.
[[nodiscard]] KIV_WORKBENCH_EXPORT numira::Money outlookFloor(const Amount &typed,
                                                              const numira::Currency &preferred);

/// What is to come.
struct KIV_WORKBENCH_EXPORT LookingAhead {
    /// The open accounts of banks that are watched: all but those of goals, whose money is set
    /// aside. What is owed is below zero.
    outlook::Outlook outlook;
    /// The watched accounts that hold money and owe none, together in the preferred currency;
    /// those without an exchange rate are left out. Nothing without such an account.
    std::optional<outlook::Curve> together;
    /// The first day on which a wage comes, after the first day of all.
    std::optional<QDate> nextWage;
    /// What can be spent until then without ending a day below zero: the least of all days
    /// before it. Without a wage of all days.
    std::optional<numira::Money> free;
    std::vector<budgeting::BudgetItemIdentifier> unpaid; ///< items for which no account can pay
    std::vector<budgeting::BudgetItemIdentifier> closed; ///< items whose own account is closed
    /// The rates without which accounts are not among those together.
    std::set<std::pair<numira::Currency, numira::Currency>> lacking;
};

/// Looks ahead from the budget's balances: with its transactions of days to come and every
/// date of its items, each paid from payingAccount(). A goal that is reached and a debt that is
/// paid off are paid no more. Throws a Refusal if something is asked about a day behind the last
/// one, and if amounts become too large.
[[nodiscard]] KIV_WORKBENCH_EXPORT LookingAhead lookAhead(const storage::BudgetStorage::Data &data,
                                                          const OutlookQuestion &question,
                                                          const numira::Currency &preferred);

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/values.h"
#include "workbench/requests/requests.h"

#include "navigation/starter_items.h"

namespace kiv::workbench {

/// An item that a starter budget can have, and what the user says about it.
struct StarterChoice {
    budgeting::BudgetItemTypes kind = budgeting::BudgetItemTypes::None;   ///< what it is
    QString name;                                                         ///< as it is added
    budgeting::EventFrequency every = budgeting::EventFrequency::Monthly; ///< how often
    /// A day on which it occurs; a past one counts as the occurrences that follow from it.
    QDate day;
    bool isAtBank = false;             ///< whether it lies at the bank account of the answers
    std::optional<Amount> amount = {}; ///< each time; without one it is not added
    std::optional<Amount> target = {}; ///< of a goal
};

/// The items of the household's starter budget, without amounts.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<StarterChoice>
starterChoices(navigation::BudgetWizardTemplates household);

/// The day on which the item is due first: the first occurrence after `today`; nothing if
/// there is none, and then it would keep its day.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<QDate> comingDay(const StarterChoice &choice,
                                                                  QDate today);

/// What the first-time wizard asks for.
struct StarterAnswers {
    std::optional<numira::Currency> preferred = {}; ///< the settings' one otherwise
    QString bank = {};                              ///< the household's bank, not blank
    banking::BankAccountTypes type = banking::BankAccountTypes::Checking; ///< of the account
    QString account = {};                                                 ///< its name, not blank
    std::optional<Amount> balance = {};                                   ///< zero otherwise
    std::vector<StarterChoice> items = {}; ///< those with an amount are added
};

/// Replaces the budget in memory by a starter budget with the bank, its account and the
/// items, each due on its comingDay(). The preferences are stored first; the preferred currency
/// becomes a usable one. Throws an EntryError for an amount with too many decimals, and a
/// Refusal when the Navigator cannot make the budget, which names the item that it refuses. The
/// budget in memory is empty then, and the currencies are as they were.
KIV_WORKBENCH_EXPORT void fillIn(Requests &requests, const StarterAnswers &answers);

} // namespace kiv::workbench

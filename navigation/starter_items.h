// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/budget_wizard_templates.h"
#include "navigation/export.h"

#include "budgeting/event_frequency.h"
#include "budgeting/identifiers.h"
#include "numira/money.h"

#include <QtCore/QDate>

#include <vector>

namespace kiv::navigation {

/// An item with which a household's budget can begin, for the user to fill in.
struct StarterItem {
    budgeting::BudgetItemIdentifier id; ///< its kind, and its name in the user's language
    numira::Money amount;               ///< zero, in the currency that was asked for
    budgeting::EventFrequency every = budgeting::EventFrequency::None; ///< how often it recurs
    /// The first, 15th or last day of the present month; it can be past.
    QDate day;
    /// Whether it lies at the bank account with which the budget begins.
    bool isAtBank = false;
};

/// The items of the household's starter budget, in the order in which the first-time wizard
/// adds them; none for None. A bill and a goal can have the same name. Throws
/// std::logic_error for a child and for an unknown value.
[[nodiscard]] KIV_NAVIGATION_EXPORT std::vector<StarterItem>
starterItems(BudgetWizardTemplates household, const numira::Currency &currency);

} // namespace kiv::navigation

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/values.h"
#include "workbench/requests/requests.h"

#include "navigation/budget_wizard_templates.h"

namespace kiv::workbench {

/// What the first-time wizard asks for.
struct StarterAnswers {
    std::optional<numira::Currency> preferred = {}; ///< the settings' one otherwise
    QString bank = {};                              ///< the household's bank, not blank
    banking::BankAccountTypes type = banking::BankAccountTypes::Checking; ///< of the account
    QString account = {};                                                 ///< its name, not blank
    std::optional<Amount> balance = {};                                   ///< zero otherwise
    /// The household whose budget it begins with.
    navigation::BudgetWizardTemplates household = navigation::BudgetWizardTemplates::None;
};

/// Replaces the budget in memory by a starter budget; the preferred currency becomes a
/// usable one. Throws a Refusal when the Navigator cannot make it, and leaves an empty
/// budget then.
KIV_WORKBENCH_EXPORT void fillIn(Requests &requests, const StarterAnswers &answers);

} // namespace kiv::workbench

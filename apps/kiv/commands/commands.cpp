// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/commands.h"

namespace kiv::app {

void declareCommands(CLI::App &app, const Declaring &declaring)
{
    CommandGroup root(app, declaring);
    addBudgetFileCommands(root);
    addVersionCommands(root);
    addCheckCommand(root);
    addWizardCommands(root);
    addAccountCommands(root);
    addBankCommands(root);
    addItemCommands(root);
    addDueCommands(root);
    addTransactionCommands(root);
    addSurveyCommands(root);
    addDashboardCommands(root);
    addConfigurationCommands(root);
    addRatesCommands(root);
    addReleaseCommands(root);
    addImportCommands(root);
    addExportCommands(root);
    addReportCommands(root);
    addShellCommands(root);
    addTourCommand(root);
    addCompletionCommands(root);
}

} // namespace kiv::app

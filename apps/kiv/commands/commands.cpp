// SPDX-License-Identifier: GPL-3.0-or-later
#include "commands/commands.h"

namespace kiv::app {

void declareCommands(CLI::App &app, const Declaring &declaring)
{
    CommandGroup root(app, declaring);
    root.setHeading(QObject::tr("Budget file"));
    addBudgetFileCommands(root);
    addWizardCommands(root);
    addVersionCommands(root);
    addCheckCommand(root);
    addEncryptionCommands(root);
    root.setHeading(QObject::tr("Accounts and transactions"));
    addAccountCommands(root);
    addMoneyCommands(root);
    addTransactionCommands(root);
    addFindCommand(root);
    root.setHeading(QObject::tr("Budget items"));
    addItemCommands(root);
    addTagCommands(root);
    addDueCommands(root);
    root.setHeading(QObject::tr("Banks and statements"));
    addBankCommands(root);
    addImportCommands(root);
    addRuleCommands(root);
    addSurveyCommands(root);
    addReconciliationCommands(root);
    addEnvelopeCommands(root);
    addOutlookCommands(root);
    addExplainCommands(root);
    root.setHeading(QObject::tr("Reports and export"));
    addDashboardCommands(root);
    addReportCommands(root);
    addExportCommands(root);
    root.setHeading(QObject::tr("Settings"));
    addConfigurationCommands(root);
    addRatesCommands(root);
    root.setHeading(QObject::tr("Other"));
    addShellCommands(root);
    addTourCommand(root);
    addReleaseCommands(root);
    addCompletionCommands(root);
}

} // namespace kiv::app

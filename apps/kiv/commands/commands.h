// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/command_group.h"

namespace kiv::app {

// Each adds the commands of its topic. The help lists them in this order.
void addBudgetFileCommands(CommandGroup &root);
void addWizardCommands(CommandGroup &root);
void addVersionCommands(CommandGroup &root);
void addCheckCommand(CommandGroup &root);
void addEncryptionCommands(CommandGroup &root);
void addAccountCommands(CommandGroup &root);
void addMoneyCommands(CommandGroup &root);
void addTransactionCommands(CommandGroup &root);
void addFindCommand(CommandGroup &root);
void addItemCommands(CommandGroup &root);
void addTagCommands(CommandGroup &root);
void addDueCommands(CommandGroup &root);
void addBankCommands(CommandGroup &root);
void addImportCommands(CommandGroup &root);
void addRuleCommands(CommandGroup &root);
void addSurveyCommands(CommandGroup &root);
void addReconciliationCommands(CommandGroup &root);
void addEnvelopeCommands(CommandGroup &root);
void addOutlookCommands(CommandGroup &root);
void addExplainCommands(CommandGroup &root);
void addDashboardCommands(CommandGroup &root);
void addReportCommands(CommandGroup &root);
void addExportCommands(CommandGroup &root);
void addConfigurationCommands(CommandGroup &root);
void addRatesCommands(CommandGroup &root);
void addShellCommands(CommandGroup &root);
void addTourCommand(CommandGroup &root);
void addReleaseCommands(CommandGroup &root);
void addCompletionCommands(CommandGroup &root);

/// Adds all commands to the root, under their headings; see DeclareCommands.
void declareCommands(CLI::App &root, const Declaring &declaring);

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/document/starter_budget.h"

namespace kiv::desktop {

/// An item that a new budget can have, and whether the user wants it.
struct StarterLine {
    workbench::StarterChoice choice;
    bool isWanted = false;

    /// Whether it will be made: it is wanted, and has an amount.
    [[nodiscard]] bool isMade() const { return isWanted && choice.amount.has_value(); }
};

/// The households with which a budget can begin, in plain words.
[[nodiscard]] std::vector<std::pair<navigation::BudgetWizardTemplates, QString>> households();

/// The lines of a household. Lines that were there before keep what was said about them.
[[nodiscard]] std::vector<StarterLine> starterLines(navigation::BudgetWizardTemplates household,
                                                    const std::vector<StarterLine> &before);
/// Such as "bill:Rent".
[[nodiscard]] QString keyOf(const workbench::StarterChoice &choice);

[[nodiscard]] QStringList starterColumns();
/// The rows of a table of these lines.
[[nodiscard]] std::vector<Row> starterRows(const std::vector<StarterLine> &lines,
                                           const numira::Currency &currency,
                                           navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::desktop

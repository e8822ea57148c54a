// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/surveys/books_difference.h"

#include "storage/notes.h"
#include "surveying/reconciliation.h"

#include <functional>

namespace kiv::workbench {

/// A sheet that was put off: what the user had entered.
struct KIV_WORKBENCH_EXPORT PutOffSheet {
    QDate day;                                            ///< of the statement
    std::optional<numira::Money> balance;                 ///< of the statement, if it was entered
    std::vector<surveying::ReconciledTransaction> ticked; ///< as they were then
    /// Money that was not booked, see SurveyForm.
    std::map<budgeting::BudgetItemIdentifier, numira::Money> items;
    std::map<accounting::AccountNumber, numira::Money> extras; ///< the same
    /// What was set aside by hand.
    std::map<budgeting::BudgetItemIdentifier, numira::Money> typed;
    bool isAsProposed = false; ///< whether the Navigator's proposals were taken

    friend bool operator==(const PutOffSheet &, const PutOffSheet &) = default;
};

/// What a budget remembers of surveys, beside its books.
struct KIV_WORKBENCH_EXPORT SurveyNotes {
    std::map<accounting::AccountNumber, PutOffSheet> putOff; ///< one for each account at most
    /// What surveys of an account counted that others had reconciled.
    CountedElsewhere counted;

    /// Reads the notes of a budget. What is damaged there is left out.
    [[nodiscard]] static SurveyNotes of(const storage::Notes &notes);
    /// The notes with this in them. Throws a StorageError if a sheet is too large to be kept.
    [[nodiscard]] storage::Notes keptIn(storage::Notes notes) const;
    /// Gives the accounts other numbers. What is about accounts for which there is none goes.
    void renumber(
        const std::function<std::optional<accounting::AccountNumber>(accounting::AccountNumber)>
            &numberNow);
};

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/document/document.h"
#include "workbench/surveys/survey_form.h"

namespace kiv::desktop {

/// The columns of the transactions that may be on a statement, and their rows: those of the
/// proposal, then what is on the statement but not booked yet.
[[nodiscard]] QStringList tickColumns();
[[nodiscard]] std::vector<Row> tickRows(const workbench::SurveyForm &form,
                                        workbench::Requests &requests);

/// What a row of ticks stands for.
struct TickTarget {
    std::optional<accounting::TransactionNumber> transaction;
    std::optional<budgeting::BudgetItemIdentifier> item; ///< with money that is not booked yet
    std::optional<accounting::AccountNumber> account;    ///< the same
};
[[nodiscard]] TickTarget tickTarget(const workbench::SurveyForm &form, const QString &key);

/// "3 ticked, $12.30 missing": how far the statement and the ticks agree.
[[nodiscard]] QString tickSummary(const workbench::SurveyForm &form,
                                  navigation::CurrencyDisplayOptions displayAs);

/// The columns of what is set aside, and its rows, see keyOf() of an item.
[[nodiscard]] QStringList shareColumns();
[[nodiscard]] std::vector<Row> shareRows(const workbench::SurveyForm &form,
                                         navigation::CurrencyDisplayOptions displayAs);

/// The columns of past reconciliations, and their rows, the newest first. A key is the place
/// in Document::reconciliations().
[[nodiscard]] QStringList reconciliationColumns();
[[nodiscard]] std::vector<Row> reconciliationRows(workbench::Document &document);

} // namespace kiv::desktop

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/surveys/survey_sheet.h"

namespace kiv::desktop {

/// The columns of the transactions that may be on a statement, and their rows: those of the
/// sheet, then what is on the statement but not booked yet.
[[nodiscard]] QStringList tickColumns();
[[nodiscard]] std::vector<Row> tickRows(const workbench::SurveyForm &form,
                                        workbench::Requests &requests);

/// Ticks the transaction of this row, or takes the tick away; money that is not booked goes off
/// the list.
void turnTick(workbench::SurveyForm &form, const QString &key);

/// How far the statement and the sheet agree, as the page tells it.
struct ShownFigures {
    QString headline; ///< "2 ticked, the books are $43.22 below the bank (2.10 %)"
    QString details;  ///< sentences: the balances, the window, an earlier difference
    QString guess;    ///< the likeliest reason for the difference; may be empty
    /// The difference that the user must agree to; nothing if none is wanted.
    std::optional<numira::Money> toAgreeTo = {};
    bool isAccepted = true; ///< whether a survey takes it
};
/// `hasBalance` tells whether the statement's balance was entered.
[[nodiscard]] ShownFigures shownFigures(const workbench::SurveySheet &sheet, bool hasBalance,
                                        workbench::Document &document);

/// The columns of past reconciliations, and their rows, the newest first. A key is the place
/// in Document::reconciliations().
[[nodiscard]] QStringList reconciliationColumns();
[[nodiscard]] std::vector<Row> reconciliationRows(workbench::Document &document);

} // namespace kiv::desktop

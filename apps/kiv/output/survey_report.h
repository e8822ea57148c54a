// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/report.h"

#include "workbench/surveys/survey_sheet.h"

/// The parts of a sheet as people read them.
namespace kiv::app {

/// The statement, what happened since the last one, and what is proposed.
[[nodiscard]] Report surveyReport(workbench::Document &document,
                                  const workbench::SurveySheet &sheet);

/// Adds a row for each transaction, with its tick.
void addTicks(Report &report, workbench::Document &document, const workbench::SurveySheet &sheet);
/// Adds how far the books agree with the statement, and what may be the reason if they do not.
void addFigures(Report &report, workbench::Document &document, const workbench::SurveySheet &sheet);
/// Adds what is set aside, line by line, what is left, and what is still due; nothing for what
/// is owed.
void addSetAside(Report &report, workbench::Document &document,
                 const workbench::SurveySheet &sheet);
/// Adds what completing the sheet posts; nothing if it posts nothing.
void addPostings(Report &report, workbench::Document &document,
                 const workbench::SurveySheet &sheet);

/// Adds a sentence for each account whose books differ from its bank.
void tellDifferences(Report &report, workbench::Document &document);

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/surveys/survey_sheet.h"

namespace kiv::desktop {

/// The columns of what a survey sets aside, and its rows; an item's key is its identifier, see
/// keyOf().
[[nodiscard]] QStringList shareColumns();
[[nodiscard]] std::vector<Row> shareRows(const workbench::SurveySheet &sheet,
                                         navigation::CurrencyDisplayOptions displayAs);

/// The line of the row with this key; nothing if there is none.
[[nodiscard]] std::optional<workbench::SheetLine> shareOf(const workbench::SurveySheet &sheet,
                                                          const QString &key);
/// Why the line is what it is: "Tax: set aside on 2026-03-25; …".
[[nodiscard]] QString shareReason(const workbench::SheetLine &line,
                                  const workbench::SurveySheet &sheet,
                                  workbench::Document &document);
/// "$50.00 is set aside, $1,980.00 is free."
[[nodiscard]] QString shareSummary(const workbench::SurveySheet &sheet,
                                   navigation::CurrencyDisplayOptions displayAs);
/// Sentences: what the user should know of what is set aside, and what is still due.
[[nodiscard]] QString shareNotices(const workbench::SurveySheet &sheet,
                                   workbench::Document &document);

} // namespace kiv::desktop

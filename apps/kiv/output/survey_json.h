// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/surveys/survey_sheet.h"

#include <QtCore/QJsonObject>

namespace kiv::app {

using workbench::Document;
using workbench::SheetBooks;
using workbench::SurveyForm;
using workbench::SurveySheet;

/// Reads an edited JSON form. Throws an EntryError for values that cannot be read, and
/// what SurveySheet::begin() throws.
[[nodiscard]] SurveySheet surveyFromJson(Document &document, const QJsonObject &json);

/// The JSON form of a survey. Changes carry their effect on the balance.
[[nodiscard]] QJsonObject toJson(const SurveySheet &sheet, workbench::Requests &requests);

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/surveys/survey_form.h"

#include <QtCore/QJsonObject>

namespace kiv::app {

using workbench::SurveyForm;

/// The whole form: the proposal and what was made of it.
[[nodiscard]] QJsonObject toJson(const SurveyForm &form, workbench::Requests &requests);
/// A new proposal, filled in as an edited document says: its balance, reconciled,
/// items, accounts and distribution count.
[[nodiscard]] SurveyForm surveyFromJson(workbench::Requests &requests, const QJsonObject &json);

} // namespace kiv::app

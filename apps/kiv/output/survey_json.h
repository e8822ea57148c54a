// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/surveys/survey_form.h"

#include <QtCore/QJsonObject>

namespace kiv::app {

using workbench::SurveyForm;

/// The form: the proposal, and what the user entered.
[[nodiscard]] QJsonObject toJson(const SurveyForm &form, workbench::Requests &requests);
/// A new proposal, filled in from an edited document. Only balance, reconciled, items,
/// accounts and distribution are read.
[[nodiscard]] SurveyForm surveyFromJson(workbench::Requests &requests, const QJsonObject &json);

} // namespace kiv::app

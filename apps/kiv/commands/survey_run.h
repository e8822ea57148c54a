// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/sheet_arguments.h"
#include "output/report.h"

namespace kiv::app {

/// Asks about a statement: its balance, what is ticked, what a difference comes from, and what
/// is set aside. An empty answer takes what is offered.
struct RunSurvey {
    SheetArguments which;
    bool isAnew = false;

    void declare(Arguments &arguments);
    Report run(Call &call) const;
};

/// Completes the sheet, and tells it in a line or two.
[[nodiscard]] Report completed(Call &call, const SurveySheet &sheet, bool hasConsent);

} // namespace kiv::app

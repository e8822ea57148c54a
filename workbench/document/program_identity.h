// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

namespace kiv::workbench {

/// Sets the organisation, name and version of the application, which all front ends
/// share. The names choose the folders of settings and exchange rates.
KIV_WORKBENCH_EXPORT void identifyProgram();

} // namespace kiv::workbench

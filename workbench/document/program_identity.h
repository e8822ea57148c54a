// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

namespace kiv::workbench {

/// Gives the running program the organisation and application name that all front
/// ends share, and their version. The names choose the folders of the settings and
/// of the exchange rates.
KIV_WORKBENCH_EXPORT void identifyProgram();

} // namespace kiv::workbench

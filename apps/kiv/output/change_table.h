// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/report.h"

#include "workbench/versions/changes.h"

#include <limits>

namespace kiv::app {

/// One object {what, name, change, before, after} for each change, with the whole
/// of the thing as JSON before and after (null where it was not there).
[[nodiscard]] QJsonArray toJson(const std::vector<workbench::Change> &changes);

/// Those changes as a table of at most that many rows, and how many are left.
void tabulate(Report &report, const QJsonArray &changes, const QString &whenNone,
              qsizetype rowsMax = std::numeric_limits<qsizetype>::max());

} // namespace kiv::app

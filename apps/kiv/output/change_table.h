// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/report.h"

#include "workbench/versions/changes.h"

#include <limits>
#include <memory>

namespace kiv::app {

/// Changes that tables and documents share.
using SharedChanges = std::shared_ptr<const std::vector<workbench::Change>>;

/// One object {what, name, change, before, after} for each change. `before` and `after`
/// are the whole item, account and so on, or null.
[[nodiscard]] Rows rowsOf(const SharedChanges &changes);

/// Adds the changes as a table of at most `rowsMax` rows, and says how many are not
/// shown.
void tabulate(Report &report, const SharedChanges &changes, const QString &whenNone,
              qsizetype rowsMax = std::numeric_limits<qsizetype>::max());

} // namespace kiv::app

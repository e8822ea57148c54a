// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/chart.h"
#include "interchange/figures.h"

#include <QtCore/QByteArray>

namespace kiv::interchange {

/// The charts of a report, for each currency: net worth, income and expenses, and planned
/// and actual spending. Empty charts are left out.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::vector<Chart> chartsOf(const Figures &figures);

/// The figures as one HTML page to read, print or send. It loads nothing and runs no
/// script. Charts are SVG; each has its figures in a table. `ahead` is what is to come, day by
/// day, and stands first.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QByteArray toHtml(const Figures &figures, const QString &title,
                                                       const std::optional<Chart> &ahead = {});

} // namespace kiv::interchange

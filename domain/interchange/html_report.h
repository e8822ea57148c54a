// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/chart.h"
#include "interchange/figures.h"

#include <QtCore/QByteArray>

namespace kiv::interchange {

/// The charts of a report: for each currency its net worth, income against
/// expenses, and the budget against what went out, where there is something to
/// show.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::vector<Chart> chartsOf(const Figures &figures);

/// The figures as one HTML page to be read, printed or sent: nothing in it is
/// loaded from elsewhere, and no script runs. Charts are SVG; each has its
/// figures in a table.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QByteArray toHtml(const Figures &figures,
                                                       const QString &title);

} // namespace kiv::interchange

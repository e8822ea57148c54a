// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/account_index.h"
#include "workbench/outlook/looking_ahead.h"

#include "interchange/chart.h"
#include "navigation/currency_display.h"

namespace kiv::workbench {

/// A curve day by day, with its lowest day marked and told in a sentence. `floor` is drawn if
/// it is in the currency of the curve.
[[nodiscard]] KIV_WORKBENCH_EXPORT interchange::Chart
outlookChart(const LookingAhead &ahead, const outlook::Curve &curve, const QString &title,
             const std::optional<numira::Money> &floor, const AccountIndex &index,
             navigation::CurrencyDisplayOptions displayAs);

/// The same as bars, at most `barsMax`: each is the least of as many days, and named by the first
/// of them.
[[nodiscard]] KIV_WORKBENCH_EXPORT interchange::Chart outlookBars(const interchange::Chart &chart,
                                                                  qsizetype barsMax);

} // namespace kiv::workbench

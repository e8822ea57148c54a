// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/chart.h"
#include "interchange/figures.h"

/// The charts of a report, span by span.
namespace kiv::interchange {

/// What came in and what was spent in one currency.
[[nodiscard]] KIV_INTERCHANGE_EXPORT Chart flowChart(const Period &period,
                                                     const numira::Currency &currency,
                                                     const FlowFigures &flow);
/// What is owned less what is owed; nothing if that was always zero.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::optional<Chart>
netWorthChart(const Period &period, const numira::Currency &currency, const CurrencyFigures &sums);
/// What was planned and what was spent; nothing without items.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::optional<Chart>
budgetChart(const Period &period, const numira::Currency &currency, const CurrencyFigures &sums);

/// All of them for each currency: net worth, income and expenses, and planned and actual
/// spending. Empty charts are left out.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::vector<Chart> chartsOf(const Figures &figures);

} // namespace kiv::interchange

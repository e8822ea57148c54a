// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/currency_display.h"

#include "interchange/chart.h"

namespace kiv::app {

/// Draws the chart as lines of at most `columns` columns: a bar and the amount for every
/// value. Bars of negative amounts go to the left of zero.
[[nodiscard]] QStringList chartText(const interchange::Chart &chart, int columns,
                                    navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::app

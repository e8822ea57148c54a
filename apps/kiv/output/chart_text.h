// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/currency_display.h"

#include "interchange/chart.h"

namespace kiv::app {

/// The chart as lines of a terminal of so many columns: a bar for every value,
/// with the amount behind it. Bars of negative amounts go to the left of zero.
[[nodiscard]] QStringList chartText(const interchange::Chart &chart, int columns,
                                    navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::app

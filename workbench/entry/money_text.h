// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "navigation/currency_display.h"
#include "numira/money.h"

#include <QtCore/QString>

namespace kiv::workbench {

/// An amount as the user wants currencies to be shown: "$1,234.50", "1234.50 USD" or
/// "$1,234.50 USD" in English; with a locale for numbers, as that one writes them.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString amountText(const numira::Money &amount,
                                                      navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::workbench

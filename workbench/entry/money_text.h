// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "navigation/currency_display.h"
#include "numira/money.h"

#include <QtCore/QString>

namespace kiv::workbench {

/// Formats an amount with the chosen currency display: "$1,234.50", "1234.50 USD" or
/// "$1,234.50 USD". Numbers follow the locale.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString amountText(const numira::Money &amount,
                                                      navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::workbench

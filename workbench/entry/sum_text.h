// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/entry/values.h"

namespace kiv::workbench {

/// Reads an amount or a sum as people type it: "12+3.5", "3*4.20", "2*4.20+1 EUR", "100/8".
/// Numbers are read as readValue() reads an Amount; `*`, `×`, `/` and `÷` bind before `+` and
/// `-`. A currency stands beside a number. The result is exact.
///
/// Throws an EntryError for anything else, for two currencies, and for a division that does
/// not come out even in twelve decimals; `value` is unchanged then.
KIV_WORKBENCH_EXPORT void readSum(const QString &text, Amount &value);

/// Whether the text has something to calculate: a sign between two numbers.
[[nodiscard]] KIV_WORKBENCH_EXPORT bool isSum(const QString &text);

/// The amount as it is typed: the user's decimal mark, no grouping, the decimals of the
/// currency. The currency is left out
/// if it is `usual`: "12.50", "12.50 EUR".
[[nodiscard]] KIV_WORKBENCH_EXPORT QString typedText(const numira::Money &amount,
                                                     const numira::Currency &usual);

} // namespace kiv::workbench

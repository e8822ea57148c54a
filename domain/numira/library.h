// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "numira/currency.h"
#include "numira/floating_point.h"
#include "numira/locale.h"

#include <functional>
#include <string>

namespace numira {

/// Gives the rate by which an amount in the first currency is multiplied to
/// become one in the second.
using Converter = std::function<FloatingPoint(const Currency &from, const Currency &to)>;

/// Installs the converter and the locale for the whole process; a later call
/// replaces both. An empty converter leaves the library without conversions.
/// Throws Error when the locale is unknown and no fallback is allowed; then
/// nothing is installed.
NUMIRA_EXPORT void setUpLibrary(const Converter &converter, const std::string &localeName,
                                ShouldAllowFallback fallback);

/// The rate from one currency to another; exactly 1 for the same. Throws
/// ConversionError without a converter, and when the rate is not positive and
/// finite; what the converter itself throws passes through.
[[nodiscard]] NUMIRA_EXPORT FloatingPoint conversionRate(const Currency &from, const Currency &to);

} // namespace numira

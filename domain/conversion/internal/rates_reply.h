// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "conversion/conversion_map.h"
#include "conversion/export.h"

#include "networking/response.h"

namespace kiv::conversion::internal {

/// The table in a reply of the service, such as
///
///     {"timestamp": 1772366400, "base": "USD", "rates": {"EUR": 0.92, "GBP": 0.79}}
///
/// with the time in seconds since 1970 in UTC; other members are ignored. All
/// or nothing: throws ConversionError or networking::ReplyError when the
/// request failed, the text is not strict JSON, the base or the time is missing
/// or makes no sense, a code is none of ISO 4217, or ConversionMap refuses a
/// rate.
[[nodiscard]] KIV_CONVERSION_EXPORT ConversionMap readRates(const networking::Response &response);

} // namespace kiv::conversion::internal

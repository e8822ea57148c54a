// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "numira/error.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Every sentence with which this library refuses something: one function each, which
/// gives the exception to throw. A std::logic_error is a mistake of the calling program.
namespace numira::internal {

// ---- amounts -------------------------------------------------------------------

[[nodiscard]] OverflowError amountTooLarge();
[[nodiscard]] InvalidAmount notAnAmount(std::string_view text);
[[nodiscard]] InvalidAmount numberNotFinite();
[[nodiscard]] InvalidAmount noSuchMinorUnits(std::uint16_t minor, const std::string &currency);
[[nodiscard]] InvalidAmount noSuchFraction(std::uint16_t fraction);
[[nodiscard]] std::logic_error divisionByZero();
[[nodiscard]] std::logic_error tooManyDigits();
[[nodiscard]] std::logic_error unknownRounding();

// ---- currencies, rates and locales -----------------------------------------------
// Currencies are named by their alphabetic codes.

[[nodiscard]] UnknownCurrency unknownNumericCode(std::uint16_t numericCode);
[[nodiscard]] UnknownCurrency unknownCode(const std::string &code);
[[nodiscard]] ConversionError noConverter(const std::string &from, const std::string &to);
[[nodiscard]] ConversionError rateNotUsable(const std::string &from, const std::string &to);
[[nodiscard]] Error unknownLocale(const std::string &name);

} // namespace numira::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "numira/internal/faults.h"

namespace numira::internal {

OverflowError amountTooLarge()
{
    return OverflowError("The amount has more digits before the point than can be kept exactly.");
}

InvalidAmount notAnAmount(std::string_view text)
{
    constexpr std::size_t shownMax = 40;
    std::string shown(text.substr(0, shownMax));
    if (text.size() > shownMax)
        shown += "...";
    return InvalidAmount("'" + shown + "' is not a decimal amount.");
}

InvalidAmount numberNotFinite()
{
    return InvalidAmount("A number that is not finite is no amount.");
}

InvalidAmount noSuchMinorUnits(std::uint16_t minor, const std::string &currency)
{
    return InvalidAmount("There are not " + std::to_string(minor) + " minor units in " + currency +
                         ".");
}

InvalidAmount noSuchFraction(std::uint16_t fraction)
{
    return InvalidAmount("A minor unit has no " + std::to_string(fraction) + " ten-thousandths.");
}

std::logic_error divisionByZero()
{
    return std::logic_error("A decimal number was to be divided by zero.");
}

std::logic_error tooManyDigits()
{
    return std::logic_error("A decimal has fewer digits after the point.");
}

std::logic_error unknownRounding()
{
    return std::logic_error("An unknown rounding mode was supplied.");
}

UnknownCurrency unknownNumericCode(std::uint16_t numericCode)
{
    return UnknownCurrency("No currency has the numeric code " + std::to_string(numericCode) + ".");
}

UnknownCurrency unknownCode(const std::string &code)
{
    return UnknownCurrency("No currency has the code '" + code.substr(0, 40) + "'.");
}

ConversionError noConverter(const std::string &from, const std::string &to)
{
    return ConversionError("There is no converter from " + from + " to " + to + ".");
}

ConversionError rateNotUsable(const std::string &from, const std::string &to)
{
    return ConversionError("The rate from " + from + " to " + to + " is not usable.");
}

Error unknownLocale(const std::string &name)
{
    return Error("The locale '" + name + "' is unknown.");
}

} // namespace numira::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "numira/library.h"

#include "numira/error.h"

namespace numira {
namespace {

Converter &installedConverter()
{
    static Converter converter;
    return converter;
}

} // namespace

void setUpLibrary(const Converter &converter, const std::string &localeName,
                  ShouldAllowFallback fallback)
{
    Converter copy = converter;
    // First what may refuse.
    setLocale(localeName, fallback);
    installedConverter().swap(copy);
}

FloatingPoint conversionRate(const Currency &from, const Currency &to)
{
    if (from == to)
        return 1;
    const std::string pair = toStdString(from) + " to " + toStdString(to);
    if (!installedConverter())
        throw ConversionError("There is no converter from " + pair + ".");
    FloatingPoint rate = installedConverter()(from, to);
    if (!isfinite(rate) || rate <= 0)
        throw ConversionError("The rate from " + pair + " is not usable.");
    return rate;
}

} // namespace numira

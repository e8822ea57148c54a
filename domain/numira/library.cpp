// SPDX-License-Identifier: GPL-3.0-or-later
#include "numira/library.h"

#include "numira/internal/faults.h"

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
    if (!installedConverter())
        throw internal::noConverter(toStdString(from), toStdString(to));
    FloatingPoint rate = installedConverter()(from, to);
    if (!isfinite(rate) || rate <= 0)
        throw internal::rateNotUsable(toStdString(from), toStdString(to));
    return rate;
}

} // namespace numira

// SPDX-License-Identifier: GPL-3.0-or-later
#include "numira/locale.h"

#include "numira/internal/faults.h"

#include <unicode/uenum.h>
#include <unicode/uloc.h>

#include <array>
#include <optional>
#include <set>

namespace numira {
namespace {

std::string &locale()
{
    static std::string name = "en_US";
    return name;
}

/// The locales for which ICU has data, older names included.
std::set<std::string> availableLocales()
{
    std::set<std::string> names;
    UErrorCode status = U_ZERO_ERROR;
    UEnumeration *all = uloc_openAvailableByType(ULOC_AVAILABLE_WITH_LEGACY_ALIASES, &status);
    while (const char *name = uenum_next(all, nullptr, &status))
        names.emplace(name);
    uenum_close(all);
    return names;
}

/// ICU's name of what may be a POSIX name such as "de_DE.UTF-8", or nothing.
using NameFunction = int32_t (*)(const char *, char *, int32_t, UErrorCode *);
std::optional<std::string> normalised(const std::string &name, NameFunction function)
{
    std::array<char, ULOC_FULLNAME_CAPACITY> buffer{};
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length =
        function(name.c_str(), buffer.data(), static_cast<int32_t>(buffer.size()), &status);
    if (U_FAILURE(status))
        return std::nullopt;
    return std::string(buffer.data(), static_cast<std::size_t>(length));
}

/// The name by which ICU knows the locale, or a near one where that is allowed.
std::string known(const std::string &localeName, ShouldAllowFallback fallback)
{
    static const std::set<std::string> available = availableLocales();
    std::optional<std::string> locale = normalised(localeName, uloc_canonicalize);
    if (locale && available.contains(*locale))
        return *locale;
    if (fallback == ShouldAllowFallback::No)
        throw internal::unknownLocale(localeName);
    locale = normalised(localeName, uloc_getLanguage);
    return locale && available.contains(*locale) ? *locale : "en_US";
}

} // namespace

void setLocale(const std::string &localeName, ShouldAllowFallback fallback)
{
    locale() = known(localeName, fallback);
}

const std::string &libraryLocale()
{
    return locale();
}

} // namespace numira

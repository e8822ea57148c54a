// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "numira/export.h"

#include <string>

/// The locale in which the whole process writes and reads amounts.
namespace numira {

/// Whether a locale that is not known may be replaced by a near one (its
/// language alone, then en_US).
enum class ShouldAllowFallback : bool { No = false, Yes = true };

/// The locale in use: "en_US" before setUpLibrary was called.
[[nodiscard]] NUMIRA_EXPORT const std::string &libraryLocale();

/// Replaces the library's locale alone; the converter stays. Throws Error when
/// the locale is unknown and no fallback is allowed; then nothing is changed.
NUMIRA_EXPORT void setLocale(const std::string &localeName, ShouldAllowFallback fallback);

} // namespace numira

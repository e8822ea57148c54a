// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/export.h"

#include <QtCore/QDate>
#include <QtCore/QString>

#include <string>

/// Dates for people. Until a front end names a locale they are written as ISO
/// 8601 does, which is what programs and files always get.
namespace kiv::foundation {

/// From now on, in the whole process, people read dates as in this locale: the
/// year with all its digits, month and day with two, in the locale's order and
/// with its marks ("31.03.2026" in German). A POSIX name ("de_DE.UTF-8") will
/// do. An empty or unknown one, "C" and "POSIX" bring ISO 8601 back.
KIV_FOUNDATION_EXPORT void setDateLocale(const std::string &localeName);

/// Whether dates are written as in some locale.
[[nodiscard]] KIV_FOUNDATION_EXPORT bool hasDateLocale();

/// "2026-03-31" or "no date", whatever the locale; for the log.
[[nodiscard]] KIV_FOUNDATION_EXPORT QString isoText(QDate date);

/// The date as people read it; see setDateLocale. Empty for an invalid date.
[[nodiscard]] KIV_FOUNDATION_EXPORT QString localText(QDate date);

/// The date that localText gave; an invalid one for any other text.
[[nodiscard]] KIV_FOUNDATION_EXPORT QDate dateFromLocalText(const QString &text);

} // namespace kiv::foundation

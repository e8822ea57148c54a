// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include <QtCore/QDateTime>
#include <QtCore/QString>

class QCoreApplication;

/// The user's language and locale, from the environment as POSIX has it: LC_ALL
/// decides, else the category's own variable, else LANG. "C" and "POSIX" mean
/// English, ISO 8601 and plain decimals, which is also what programs get.
namespace kiv::workbench {

/// Installs the translations for LC_MESSAGES, or for the first of LANGUAGE's
/// languages that there are any for; English needs none but for its plurals.
/// Dates are shown as in LC_TIME and numbers as in LC_NUMERIC from now on.
KIV_WORKBENCH_EXPORT void speakAsUser(QCoreApplication &application);

/// Whether amounts are written as in some locale, that of LC_NUMERIC.
[[nodiscard]] KIV_WORKBENCH_EXPORT bool hasNumberLocale();
/// Sees to it again after the Navigator was made, which takes the locale of the
/// system, into which Qt lets LANGUAGE have a say.
KIV_WORKBENCH_EXPORT void writeNumbersAsUser();

/// A number as "-1234.50", where it is written in the locale's own way and can
/// mean nothing else; every other text as it is.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString plainNumber(const QString &text);

/// A moment for people: ISO 8601 in UTC without a locale for dates, otherwise the
/// local day and time.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString momentText(const QDateTime &moment);

} // namespace kiv::workbench

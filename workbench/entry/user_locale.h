// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include <QtCore/QDateTime>
#include <QtCore/QString>

class QCoreApplication;

/// The user's language and locale, from the environment as in POSIX: LC_ALL, then the
/// variable of the category, then LANG. "C" and "POSIX" mean English, ISO 8601 dates and
/// plain decimals, which suit programs.
namespace kiv::workbench {

/// Installs the translations for LC_MESSAGES, or for the first available language in
/// LANGUAGE. Dates then follow LC_TIME and numbers LC_NUMERIC.
KIV_WORKBENCH_EXPORT void speakAsUser(QCoreApplication &application);

/// Whether LC_NUMERIC names a locale.
[[nodiscard]] KIV_WORKBENCH_EXPORT bool hasNumberLocale();
/// Sets the locale of numbers again after the Navigator was created. The Navigator uses
/// the system's locale, which in Qt depends on LANGUAGE, too.
KIV_WORKBENCH_EXPORT void writeNumbersAsUser();

/// Turns a number in the locale's form into "-1234.50" if it has only one meaning. Any
/// other text is returned unchanged.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString plainNumber(const QString &text);

/// A time for people: local, to the minute, with the date in the locale's form.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString momentText(const QDateTime &moment);

} // namespace kiv::workbench

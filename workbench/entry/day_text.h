// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include <QtCore/QDate>
#include <QtCore/QString>

namespace kiv::workbench {

/// Reads a day as people type it. Case and blanks at the ends do not matter.
///
/// - "today" or "t", "yesterday" or "y", also in the user's language;
/// - "+7" and "-2": so many days after or before today;
/// - "3": the newest 3rd of a month that is not after today;
/// - "5-2", "5.2.", "5/2": day and month in the locale's order, the month first without a
///   locale; the newest such day that is not after today;
/// - a whole date: ISO 8601, or the locale's form.
///
/// Throws an EntryError for anything else.
[[nodiscard]] KIV_WORKBENCH_EXPORT QDate dayOf(const QString &text, QDate today);

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/export.h"

#include <QtCore/QDate>

namespace kiv::foundation {

/// The first day of the date's month.
[[nodiscard]] KIV_FOUNDATION_EXPORT QDate firstOfMonth(QDate date);
/// The 15th of the date's month.
[[nodiscard]] KIV_FOUNDATION_EXPORT QDate halfOfMonth(QDate date);
/// The last day of the date's month.
[[nodiscard]] KIV_FOUNDATION_EXPORT QDate lastOfMonth(QDate date);

/// The signed difference of calendar months, whatever the days: 1 from
/// 31 January to 1 February, -1 back. It adds up over any chain of dates.
[[nodiscard]] KIV_FOUNDATION_EXPORT int monthsBetween(QDate from, QDate to);
/// The signed number of days.
[[nodiscard]] KIV_FOUNDATION_EXPORT qint64 daysBetween(QDate from, QDate to);

/// `date` moved by whole months onto `dayOfMonth`, or onto the last day of a
/// month that is too short for it.
[[nodiscard]] KIV_FOUNDATION_EXPORT QDate addMonthsOnDay(QDate date, int months, int dayOfMonth);

} // namespace kiv::foundation

// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/dates.h"

#include <algorithm>

namespace kiv::foundation {

QDate firstOfMonth(QDate date)
{
    return {date.year(), date.month(), 1};
}

QDate halfOfMonth(QDate date)
{
    return {date.year(), date.month(), 15};
}

QDate lastOfMonth(QDate date)
{
    return {date.year(), date.month(), date.daysInMonth()};
}

int monthsBetween(QDate from, QDate to)
{
    return (to.year() - from.year()) * 12 + to.month() - from.month();
}

qint64 daysBetween(QDate from, QDate to)
{
    return from.daysTo(to);
}

QDate addMonthsOnDay(QDate date, int months, int dayOfMonth)
{
    const QDate moved = firstOfMonth(date).addMonths(months);
    return {moved.year(), moved.month(), std::min(dayOfMonth, moved.daysInMonth())};
}

} // namespace kiv::foundation

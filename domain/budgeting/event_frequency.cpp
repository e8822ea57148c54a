// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/event_frequency.h"

#include "budgeting/internal/faults.h"
#include "budgeting/internal/mistakes.h"

#include "foundation/dates.h"
#include "foundation/enum_table.h"

#include <QtCore/QObject>

#include <algorithm>
#include <array>
#include <ostream>

namespace kiv::budgeting {
namespace {

struct Recurrence {
    const char *name;
    int days;          ///< the length of a period in days, if it has a fixed one
    int months;        ///< the length of a period in whole months, if it has one
    int inThirtyYears; ///< periods in 30 years, the shortest time that holds a whole number of all
};

/// By the values of EventFrequency. A year has 365 days, 260 weekdays, 52 weeks
/// and 12 months.
constexpr std::array<Recurrence, 16> recurrences{{
    {QT_TRANSLATE_NOOP("QObject", "none"), 0, 0, 0},
    {QT_TRANSLATE_NOOP("QObject", "daily"), 1, 0, 30 * 365},
    {QT_TRANSLATE_NOOP("QObject", "every weekday"), 0, 0, 30 * 260},
    {QT_TRANSLATE_NOOP("QObject", "weekly"), 7, 0, 30 * 52},
    {QT_TRANSLATE_NOOP("QObject", "every two weeks"), 14, 0, 30 * 26},
    {QT_TRANSLATE_NOOP("QObject", "twice a month"), 0, 0, 30 * 24},
    {QT_TRANSLATE_NOOP("QObject", "monthly"), 0, 1, 30 * 12},
    {QT_TRANSLATE_NOOP("QObject", "every two months"), 0, 2, 30 * 6},
    {QT_TRANSLATE_NOOP("QObject", "quarterly"), 0, 3, 30 * 4},
    {QT_TRANSLATE_NOOP("QObject", "every four months"), 0, 4, 30 * 3},
    {QT_TRANSLATE_NOOP("QObject", "twice a year"), 0, 6, 30 * 2},
    {QT_TRANSLATE_NOOP("QObject", "yearly"), 0, 12, 30},
    {QT_TRANSLATE_NOOP("QObject", "every two years"), 0, 24, 15},
    {QT_TRANSLATE_NOOP("QObject", "every three years"), 0, 36, 10},
    {QT_TRANSLATE_NOOP("QObject", "every five years"), 0, 60, 6},
    {QT_TRANSLATE_NOOP("QObject", "every ten years"), 0, 120, 3},
}};

const Recurrence &recurrenceOf(EventFrequency frequency)
{
    if (const Recurrence *known = foundation::entryOf(recurrences, frequency))
        return *known;
    throw internal::frequencyUnknown();
}

/// The day of the month of the earlier of the two dates of a month. The 31st
/// goes with the 15th, so that both halves of a long month are paid.
int firstHalfDay(int dayOfMonth)
{
    return dayOfMonth <= 15 ? dayOfMonth : std::min(dayOfMonth - 15, 15);
}

QDate nextOfTwoInMonth(QDate date, int dayOfMonth)
{
    const int first = firstHalfDay(dayOfMonth);
    const int second = std::max(dayOfMonth, first + 15);
    for (const QDate candidate : {foundation::addMonthsOnDay(date, 0, first),
                                  foundation::addMonthsOnDay(date, 0, second)}) {
        if (candidate > date)
            return candidate;
    }
    return foundation::addMonthsOnDay(date, 1, first);
}

QDate nextWeekday(QDate date)
{
    do {
        date = date.addDays(1);
    } while (date.dayOfWeek() > Qt::Friday);
    return date;
}

QDate unchecked(EventFrequency frequency, QDate date, int dayOfMonth)
{
    const Recurrence &recurrence = recurrenceOf(frequency);
    if (recurrence.days > 0)
        return date.addDays(recurrence.days);
    if (recurrence.months > 0)
        return foundation::addMonthsOnDay(date, recurrence.months, dayOfMonth);
    return frequency == EventFrequency::EveryWeekday ? nextWeekday(date)
                                                     : nextOfTwoInMonth(date, dayOfMonth);
}

/// How many weekdays there have been up to and including the date, since a
/// Monday long ago (day 0 of the Julian count).
qint64 weekdaysUntil(QDate date)
{
    const qint64 weeks = (date.toJulianDay() - (date.dayOfWeek() - 1)) / 7;
    return weeks * 5 + std::min(date.dayOfWeek(), 5);
}

/// Where a date stands in the months, or in the halves of months.
struct Place {
    int unit = 0; ///< the month or half month, counted from the year 0
    int day = 0;  ///< the day within it, from 1
    bool isLast = false;
};

Place placeInMonths(QDate date)
{
    return {date.year() * 12 + date.month() - 1, date.day(), date.day() == date.daysInMonth()};
}

Place placeInHalves(QDate date)
{
    const Place month = placeInMonths(date);
    if (date.day() <= 15)
        return {month.unit * 2, month.day, month.day == 15};
    return {month.unit * 2 + 1, month.day - 15, month.isLast};
}

/// How many units lie between the places; the longest unit has `daysMax` days.
///
/// The last day of a short unit stands for every later day that the unit lacks,
/// just as it does when something recurs on that day.
double unitsBetween(const Place &from, const Place &next, int daysMax)
{
    const double units = next.unit - from.unit;
    const bool isSameDay =
        (from.isLast && from.day < next.day) || (next.isLast && next.day < from.day);
    return isSameDay ? units : units + static_cast<double>(next.day - from.day) / daysMax;
}

} // namespace

EventFrequency known(EventFrequency frequency)
{
    static_cast<void>(recurrenceOf(frequency));
    return frequency;
}

QString toQString(EventFrequency frequency)
{
    return QString::fromLatin1(recurrenceOf(frequency).name);
}

QString presentationText(EventFrequency frequency)
{
    return QObject::tr(recurrenceOf(frequency).name);
}

std::ostream &operator<<(std::ostream &out, EventFrequency frequency)
{
    return out << recurrenceOf(frequency).name;
}

QDate nextOccurrence(EventFrequency frequency, QDate date, int dayOfMonth)
{
    if (frequency == EventFrequency::None)
        throw internal::neverRecurs();
    const QDate next = date.isValid() ? unchecked(frequency, date, dayOfMonth) : QDate();
    if (!next.isValid() || next.year() > 9999)
        throw internal::noNextDate(presentationText(frequency), date);
    return next;
}

double occurrencesIn(EventFrequency frequency, QDate from, QDate next)
{
    const Recurrence &recurrence = recurrenceOf(frequency);
    if (frequency == EventFrequency::None || !from.isValid() || !next.isValid())
        return 0.0;
    if (recurrence.days > 0)
        return static_cast<double>(from.daysTo(next)) / recurrence.days;
    if (recurrence.months > 0)
        return unitsBetween(placeInMonths(from), placeInMonths(next), 31) / recurrence.months;
    if (frequency == EventFrequency::EveryWeekday)
        return static_cast<double>(weekdaysUntil(next) - weekdaysUntil(from));
    return unitsBetween(placeInHalves(from), placeInHalves(next), 16);
}

numira::Money accumulateOver(EventFrequency to, const numira::Money &money, EventFrequency from)
{
    const int periodsTo = recurrenceOf(to).inThirtyYears;
    const int periodsFrom = recurrenceOf(from).inThirtyYears;
    return periodsTo == 0 ? numira::Money(money.code()) : money.scaled(periodsFrom, periodsTo);
}

bool isRarerThanMonthly(EventFrequency frequency)
{
    return recurrenceOf(frequency).months > 1;
}

} // namespace kiv::budgeting

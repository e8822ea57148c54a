// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/export.h"

#include "foundation/debug_stream.h"

#include "numira/money.h"

#include <QtCore/QDate>
#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <cstdint>
#include <iosfwd>

namespace kiv::budgeting {

/// How often a budget item recurs.
enum class EventFrequency : std::uint8_t {
    None = 0, ///< not scheduled
    Daily = 1,
    EveryWeekday = 2, ///< Monday to Friday
    Weekly = 3,
    EveryTwoWeeks = 4,
    TwiceAMonth = 5,
    Monthly = 6,
    EveryTwoMonths = 7,
    Quarterly = 8,
    EveryFourMonths = 9,
    TwiceAYear = 10,
    Yearly = 11,
    EveryTwoYears = 12,
    EveryThreeYears = 13,
    EveryFiveYears = 14,
    EveryTenYears = 15,
};

/// The same frequency. Throws std::logic_error for a value above the known ones.
[[nodiscard]] KIV_BUDGETING_EXPORT EventFrequency known(EventFrequency frequency);

/// The English name in lower case: "every two weeks". Throws std::logic_error
/// for a value above the known ones.
[[nodiscard]] KIV_BUDGETING_EXPORT QString toQString(EventFrequency frequency);
/// The name for the user. Throws likewise.
[[nodiscard]] KIV_BUDGETING_EXPORT QString presentationText(EventFrequency frequency);
KIV_BUDGETING_EXPORT std::ostream &operator<<(std::ostream &out, EventFrequency frequency);
using foundation::operator<<;

/// The date one period after `date`. Periods of a month and longer land on
/// `dayOfMonth`, or on the last day of a month that is too short for it. Two
/// dates a month lie 15 days apart, the first of them on the smaller of
/// `dayOfMonth` and `dayOfMonth` − 15 that is in 1 to 15, the second on the last
/// day of a month that is too short; for the 31st they are the 15th and the last
/// day. Throws foundation::Error when the frequency is None, the date is
/// invalid, or the result is past the year 9999.
[[nodiscard]] KIV_BUDGETING_EXPORT QDate nextOccurrence(EventFrequency frequency, QDate date,
                                                        int dayOfMonth);

/// How many periods lie between the dates: negative when `next` is before
/// `from`, a fraction for a part of a period, 0 for None and for an invalid
/// date.
///
/// Days, weekdays and weeks are counted. Months are calendar months and 31sts of
/// a month, where the last day of a month stands for each later day that it
/// lacks: from 15 January to 15 April it is 3 months, from 31 January to
/// 28 February 1, from there to 31 March 1, from 1 to 16 January 15/31. Halves of
/// a month (1st to 15th, 16th to the last) go in the same way, in 16ths. So a
/// date that nextOccurrence reaches in n steps is exactly n periods away, a later
/// date is never fewer periods away, and swapping the dates swaps the sign.
[[nodiscard]] KIV_BUDGETING_EXPORT double occurrencesIn(EventFrequency frequency, QDate from,
                                                        QDate next);

/// An amount that recurs with frequency `from`, restated per period of `to`, by
/// the periods that a year of 52 weeks, 260 weekdays, 365 days and 12 months
/// has; rounded half to even at the 12th digit. Zero when either is None.
[[nodiscard]] KIV_BUDGETING_EXPORT numira::Money
accumulateOver(EventFrequency to, const numira::Money &money, EventFrequency from);

/// Whether it recurs less often than monthly.
[[nodiscard]] KIV_BUDGETING_EXPORT bool isRarerThanMonthly(EventFrequency frequency);

} // namespace kiv::budgeting

Q_DECLARE_METATYPE(kiv::budgeting::EventFrequency)

// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/period.h"

#include "interchange/internal/faults.h"

#include <algorithm>

namespace kiv::interchange {

namespace {

/// The first day of the span that has the day.
QDate firstDay(QDate day, SpanLength length, const std::vector<QDate> &paydays)
{
    switch (length) {
    case SpanLength::Week:
    case SpanLength::TwoWeeks:
        return day.addDays(1 - day.dayOfWeek());
    case SpanLength::Payday: {
        const auto next = std::ranges::upper_bound(paydays, day);
        return next == paydays.begin() ? day : *std::prev(next);
    }
    case SpanLength::Month:
        return {day.year(), day.month(), 1};
    case SpanLength::Quarter:
        return {day.year(), (day.month() - 1) / 3 * 3 + 1, 1};
    case SpanLength::Year:
        return {day.year(), 1, 1};
    case SpanLength::Whole:
        break;
    }
    return day;
}

/// The first day of the span after the one that begins on `day`; invalid when there is none.
QDate nextBegin(QDate day, SpanLength length, const std::vector<QDate> &paydays)
{
    switch (length) {
    case SpanLength::Week:
        return day.addDays(7);
    case SpanLength::TwoWeeks:
        return day.addDays(14);
    case SpanLength::Payday: {
        const auto next = std::ranges::upper_bound(paydays, day);
        return next == paydays.end() ? QDate() : *next;
    }
    case SpanLength::Month:
        return day.addMonths(1);
    case SpanLength::Quarter:
        return day.addMonths(3);
    case SpanLength::Year:
        return day.addYears(1);
    case SpanLength::Whole:
        break;
    }
    return {};
}

} // namespace

Period::Period(QDate from, QDate to, SpanLength length, const std::vector<QDate> &paydays)
    : m_length(length), m_to(to)
{
    if (!from.isValid() || !to.isValid() || from > to)
        throw faults::reportEndsFirst();
    if (length == SpanLength::Payday && (paydays.empty() || paydays.front() > to))
        throw faults::reportWithoutPaydays();
    for (QDate day = firstDay(from, length, paydays); day.isValid() && day <= to;
         day = nextBegin(day, length, paydays)) {
        if (m_begins.size() == spansMax)
            throw faults::reportTooLong(spansMax);
        m_begins.push_back(day);
    }
}

std::optional<int> Period::spanOf(QDate day) const noexcept
{
    if (day > m_to)
        return std::nullopt;
    return static_cast<int>(std::ranges::upper_bound(m_begins, day) - m_begins.begin()) - 1;
}

QStringList Period::labels() const
{
    QStringList labels;
    for (const QDate day : m_begins) {
        if (m_length == SpanLength::Month)
            labels += day.toString(QStringLiteral("yyyy-MM"));
        else if (m_length == SpanLength::Quarter)
            labels += QStringLiteral("%1-Q%2").arg(day.year()).arg((day.month() + 2) / 3);
        else if (m_length == SpanLength::Year)
            labels += day.toString(QStringLiteral("yyyy"));
        else
            labels += day.toString(Qt::ISODate);
    }
    if (m_length == SpanLength::Whole)
        labels.back() += QStringLiteral("..") + m_to.toString(Qt::ISODate);
    return labels;
}

} // namespace kiv::interchange

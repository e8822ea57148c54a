// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"

#include <QtCore/QDate>
#include <QtCore/QStringList>

#include <cstdint>
#include <optional>
#include <vector>

namespace kiv::interchange {

/// How long the spans of a report are.
enum class SpanLength : std::uint8_t {
    Week,     ///< from Monday to Sunday
    TwoWeeks, ///< the first from the Monday of the first day's week
    Payday,   ///< from the day on which a wage comes in until the day before the next
    Month,    ///< calendar months
    Quarter,  ///< from January, April, July or October
    Year,     ///< calendar years
    Whole     ///< a single span, from the first to the last day
};

/// The days that a report covers, in consecutive spans without a gap. The first span is whole,
/// the last one ends on the last day.
class KIV_INTERCHANGE_EXPORT Period {
public:
    /// The most spans: a hundred years of months.
    static constexpr std::size_t spansMax = 1200;

    /// From the span that has `from` to the day `to`. Spans from payday to payday need
    /// `paydays`, in rising order; days before the first of them are a span of their own.
    /// Throws foundation::Error when the last day is before the first, when a day is invalid,
    /// when there are more than spansMax spans, or no payday up to the last day.
    Period(QDate from, QDate to, SpanLength length = SpanLength::Month,
           const std::vector<QDate> &paydays = {});

    /// The first day of the first span.
    [[nodiscard]] QDate from() const noexcept { return m_begins.front(); }
    /// The last day.
    [[nodiscard]] QDate to() const noexcept { return m_to; }
    /// How long the spans are.
    [[nodiscard]] SpanLength length() const noexcept { return m_length; }
    /// How many spans there are, at least one.
    [[nodiscard]] std::size_t size() const noexcept { return m_begins.size(); }
    /// The first days of the spans.
    [[nodiscard]] const std::vector<QDate> &begins() const noexcept { return m_begins; }
    /// The day's span from 0 on; -1 before the first one. Nothing after the last day.
    [[nodiscard]] std::optional<int> spanOf(QDate day) const noexcept;
    /// "2026-01" for months, "2026-Q1", "2026"; the first day for weeks and paydays; both days
    /// of a single span.
    [[nodiscard]] QStringList labels() const;

private:
    SpanLength m_length;
    QDate m_to;
    std::vector<QDate> m_begins;
};

} // namespace kiv::interchange

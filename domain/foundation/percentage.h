// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/debug_stream.h"
#include "foundation/export.h"

#include "numira/decimal.h"

#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <compare>
#include <cstdint>
#include <iosfwd>

namespace kiv::foundation {

/// A percentage: Percentage(2.75, 6) is 2.75 %, known to 6 digits behind the
/// point. Two percentages compare by their rates alone.
class KIV_FOUNDATION_EXPORT Percentage {
public:
    constexpr Percentage() noexcept = default;
    /// `rate` in percent, known to `digits` digits behind the point.
    constexpr Percentage(double rate, std::uint8_t digits) noexcept : m_rate(rate), m_digits(digits)
    {
    }

    /// In percent: 2.75 for 2.75 %.
    [[nodiscard]] constexpr double rate() const noexcept { return m_rate; }
    /// The digits behind the point to which the rate is known.
    [[nodiscard]] constexpr std::uint8_t digits() const noexcept { return m_digits; }
    /// The exact decimal fraction, rounded to the digits: 0.0275 for 2.75 %.
    /// Throws numira::InvalidAmount when the rate is not finite.
    [[nodiscard]] numira::Decimal fraction() const;

    /// Whether the rates are equal.
    friend constexpr bool operator==(const Percentage &a, const Percentage &b) noexcept
    {
        return a.m_rate == b.m_rate;
    }
    /// By rate; unordered when one is not a number.
    friend constexpr std::partial_ordering operator<=>(const Percentage &a,
                                                       const Percentage &b) noexcept
    {
        return a.m_rate <=> b.m_rate;
    }
    /// Whether the rate is this, in percent.
    friend constexpr bool operator==(const Percentage &a, double rate) noexcept
    {
        return a.m_rate == rate;
    }
    /// By rate, in percent.
    friend constexpr std::partial_ordering operator<=>(const Percentage &a, double rate) noexcept
    {
        return a.m_rate <=> rate;
    }

private:
    double m_rate = 0.0;
    std::uint8_t m_digits = 0;
};

/// "2.75 %": the rate rounded to its digits, with no more digits than needed.
[[nodiscard]] KIV_FOUNDATION_EXPORT QString presentationText(const Percentage &percentage);
/// Writes the presentation text.
KIV_FOUNDATION_EXPORT std::ostream &operator<<(std::ostream &out, const Percentage &percentage);

} // namespace kiv::foundation

Q_DECLARE_METATYPE(kiv::foundation::Percentage)

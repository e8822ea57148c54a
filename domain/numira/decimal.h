// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "numira/export.h"

#include <compare>
#include <cstdint>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

namespace numira {

/// An exact decimal number with 12 digits after the point and at least 26 before
/// it, from which amounts of money are made. Every operation either gives the exact
/// result, or the nearest one where its comment says so, or throws
/// OverflowError and changes nothing.
class NUMIRA_EXPORT Decimal {
public:
    /// The digits after the point that are kept.
    static constexpr unsigned scaleDigits = 12;

    constexpr Decimal() noexcept = default;
    /// A whole number.
    explicit Decimal(std::int64_t whole) noexcept;

    /// Reads "-1234.56": an optional sign, digits, and optionally a point with
    /// at most 12 digits behind it. Throws InvalidAmount for anything else and
    /// OverflowError when it is too large.
    [[nodiscard]] static Decimal fromText(std::string_view text);
    /// The shortest decimal that reads back as `value`, rounded half to even
    /// at the 12th digit. Throws InvalidAmount when it is not finite.
    [[nodiscard]] static Decimal fromDouble(double value);

    /// `units` times 10 to the power of -`digits`; with more than 12 digits it
    /// throws std::logic_error.
    [[nodiscard]] static Decimal fromUnits(std::int64_t units, unsigned digits);
    /// How many times 10 to the power of -`digits` it is; nothing when that is no
    /// whole number of 64 bits.
    [[nodiscard]] std::optional<std::int64_t> unitsOf(unsigned digits) const noexcept;

    /// The plain decimal text, without exponent or grouping, with at least
    /// `digitsMin` digits behind the point and no more than are needed.
    [[nodiscard]] std::string toText(unsigned digitsMin = 0) const;
    /// The nearest double; for charts and ratios, never for amounts.
    [[nodiscard]] double toDouble() const noexcept;
    /// -1, 0 or 1.
    [[nodiscard]] int sign() const noexcept { return m_units < 0 ? -1 : (m_units > 0 ? 1 : 0); }
    /// How many digits stand behind the point when trailing zeros are dropped.
    [[nodiscard]] unsigned digits() const noexcept;

    /// Adds exactly. Throws OverflowError.
    Decimal &operator+=(const Decimal &other);
    /// Subtracts exactly. Throws OverflowError.
    Decimal &operator-=(const Decimal &other);
    /// The same number with the other sign.
    [[nodiscard]] Decimal operator-() const;
    /// The exact sum. Throws OverflowError.
    [[nodiscard]] friend Decimal operator+(Decimal a, const Decimal &b) { return a += b; }
    /// The exact difference. Throws OverflowError.
    [[nodiscard]] friend Decimal operator-(Decimal a, const Decimal &b) { return a -= b; }
    /// Rounded half to even at the 12th digit.
    friend NUMIRA_EXPORT Decimal operator*(const Decimal &a, const Decimal &b);
    /// This number × the number that `factor` writes, such as "-1.25e-7", with
    /// as many digits as it has; computed exactly and rounded half to even
    /// once, at the 12th digit. Throws InvalidAmount when it is no number.
    [[nodiscard]] Decimal times(std::string_view factor) const;
    /// This number × the shortest decimal that reads back as `factor`, rounded
    /// likewise. Throws InvalidAmount when the factor is not finite.
    [[nodiscard]] Decimal times(double factor) const;
    /// This number × numerator ÷ denominator, computed exactly and rounded half
    /// to even once, at the 12th digit. The denominator must not be zero
    /// (std::logic_error).
    [[nodiscard]] Decimal scaled(std::int64_t numerator, std::int64_t denominator) const;
    /// Rounded half to even to `digits` digits behind the point.
    [[nodiscard]] Decimal roundedHalfEven(unsigned digits) const;
    /// The number without its sign.
    [[nodiscard]] Decimal abs() const;

    friend bool operator==(const Decimal &a, const Decimal &b) noexcept = default;
    /// By value.
    friend std::strong_ordering operator<=>(const Decimal &a, const Decimal &b) noexcept
    {
        return a.m_units < b.m_units   ? std::strong_ordering::less
               : a.m_units > b.m_units ? std::strong_ordering::greater
                                       : std::strong_ordering::equal;
    }

private:
    __extension__ using Units = __int128;
    Units m_units = 0; ///< 10^-12; every value but the lowest is used, so that negation is safe
};

/// How a number that lies exactly between two others is rounded.
enum class RoundingMode : std::uint8_t { HalfToEven = 0 };

namespace rounders {
/// Rounds an amount of money to `digits` digits behind the point, half to even.
/// Throws std::logic_error for a mode that does not exist.
[[nodiscard]] NUMIRA_EXPORT Decimal currency_even(const Decimal &value, unsigned digits,
                                                  RoundingMode mode);
} // namespace rounders

NUMIRA_EXPORT std::ostream &operator<<(std::ostream &out, const Decimal &decimal);

} // namespace numira

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "numira/currency.h"
#include "numira/decimal.h"

#include <compare>
#include <concepts>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

namespace numira {

/// An exact amount in one currency: at least 26 digits before the point and 12
/// after it. Money(USD, 10, 0, 5000) is 10.005 USD.
///
/// Equality compares currency and amount and never asks for a rate. Addition,
/// subtraction and the comparisons < <= > >= of two currencies convert the
/// right operand into the left one's currency through the converter that
/// setUpLibrary installed; without a rate they throw ConversionError. An empty
/// money (no currency, zero) takes the currency of the first amount added to
/// it, and compares with every amount as zero. An operation that throws changes
/// nothing.
class NUMIRA_EXPORT Money {
public:
    /// A rounding rule: (value, digits behind the point, mode).
    using Rounder = std::function<Decimal(const Decimal &, unsigned, RoundingMode)>;

    /// The empty money: zero in no currency.
    constexpr Money() noexcept = default;
    /// Zero.
    explicit Money(const Currency &currency) noexcept : m_currency(currency) {}
    /// `major` whole units, `minor` minor units (cents) and `fraction`
    /// ten-thousandths of a minor unit; the sign of `major` is that of the
    /// whole. Throws InvalidAmount when `minor` is not below 10 to the
    /// currency's minor-unit digits, or `fraction` not below 10,000.
    Money(const Currency &currency, std::int64_t major, std::uint16_t minor,
          std::uint16_t fraction = 0);
    /// An exact amount.
    Money(const Currency &currency, const Decimal &amount) noexcept
        : m_currency(currency), m_amount(amount)
    {
    }

    /// The currency.
    [[nodiscard]] const Currency &code() const noexcept { return m_currency; }
    /// The number, in whole units of the currency.
    [[nodiscard]] const Decimal &amount() const noexcept { return m_amount; }
    /// Whether it is exactly zero.
    [[nodiscard]] bool isZero() const noexcept { return m_amount.sign() == 0; }
    /// Whether it is below zero.
    [[nodiscard]] bool isNegative() const noexcept { return m_amount.sign() < 0; }
    /// Whether it is above zero.
    [[nodiscard]] bool isPositive() const noexcept { return m_amount.sign() > 0; }

    /// Adds; see the class. Throws OverflowError, ConversionError.
    Money &operator+=(const Money &other);
    /// Subtracts; see the class. Throws OverflowError, ConversionError.
    Money &operator-=(const Money &other);
    /// The sum, as += makes it.
    [[nodiscard]] friend Money operator+(Money a, const Money &b) { return a += b; }
    /// The difference, as -= makes it.
    [[nodiscard]] friend Money operator-(Money a, const Money &b) { return a -= b; }
    /// The same amount with the other sign.
    [[nodiscard]] Money operator-() const { return {m_currency, -m_amount}; }
    /// The amount without its sign.
    [[nodiscard]] Money abs() const { return {m_currency, m_amount.abs()}; }
    /// Multiplies by the shortest decimal that reads back as `factor`; the
    /// result is rounded half to even at the 12th digit.
    friend NUMIRA_EXPORT Money operator*(const Money &money, double factor);
    /// The same the other way round.
    [[nodiscard]] friend Money operator*(double factor, const Money &money)
    {
        return money * factor;
    }
    /// See Decimal::scaled.
    [[nodiscard]] Money scaled(std::int64_t numerator, std::int64_t denominator) const
    {
        return {m_currency, m_amount.scaled(numerator, denominator)};
    }
    /// Takes over another money whole, currency and amount.
    Money &assign(const Money &other) noexcept { return *this = other; }

    /// This amount rounded by `rounder` to `digits` digits behind the point.
    [[nodiscard]] Money round(const Rounder &rounder, unsigned digits) const;
    /// This amount rounded half to even to its currency's minor unit.
    [[nodiscard]] Money rounded() const;
    /// This amount in `currency` at the converter's present rate, not rounded
    /// to the minor unit; itself when it is in `currency` already or empty.
    [[nodiscard]] Money convertedTo(const Currency &currency) const;

    friend bool operator==(const Money &, const Money &) noexcept = default;
    /// Whether a is the smaller amount, b converted where needed.
    friend bool operator<(const Money &a, const Money &b) { return a.against(b) < 0; }
    /// Whether a is the larger amount, b converted where needed.
    friend bool operator>(const Money &a, const Money &b) { return a.against(b) > 0; }
    /// Whether a is not the larger amount, b converted where needed.
    friend bool operator<=(const Money &a, const Money &b) { return a.against(b) <= 0; }
    /// Whether a is not the smaller amount, b converted where needed.
    friend bool operator>=(const Money &a, const Money &b) { return a.against(b) >= 0; }
    /// Whether the amount is this whole number, whatever its currency.
    template <std::integral Integer>
    friend bool operator==(const Money &money, Integer number)
    {
        return money.m_amount == Decimal(static_cast<std::int64_t>(number));
    }

private:
    /// The order of the amounts, the right one converted.
    [[nodiscard]] std::strong_ordering against(const Money &right) const;

    Currency m_currency;
    Decimal m_amount;
};

/// An order of amounts by currency and then by number, which asks for no rate:
/// for keys and sets.
[[nodiscard]] NUMIRA_EXPORT std::strong_ordering compareExactly(const Money &a,
                                                                const Money &b) noexcept;

/// The amount as plain decimal text with at least the currency's minor-unit
/// digits, without the currency: "1234.50".
[[nodiscard]] NUMIRA_EXPORT std::string toText(const Money &money);

/// Reads the text that toText writes, and whatever Decimal::fromText reads.
[[nodiscard]] NUMIRA_EXPORT Money toMoney(const Currency &currency, std::string_view text);

/// The amount for people, in the library's locale, with the currency's symbol
/// and every digit that it has: "$1,234.50".
[[nodiscard]] NUMIRA_EXPORT std::string toLocalText(const Money &money);

/// "1234.50 USD".
NUMIRA_EXPORT std::ostream &operator<<(std::ostream &out, const Money &money);

namespace math {
/// The sum, in `currency`, of what `accessor` gives for each element.
template <typename Range, typename Accessor>
[[nodiscard]] Money sum(const Currency &currency, const Range &range, Accessor accessor)
{
    Money total(currency);
    for (const auto &element : range)
        total += std::invoke(accessor, element);
    return total;
}
} // namespace math

} // namespace numira

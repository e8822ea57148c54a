// SPDX-License-Identifier: GPL-3.0-or-later
#include "numira/money.h"

#include "numira/internal/faults.h"
#include "numira/library.h"

#include <ostream>
#include <string>

namespace numira {
namespace {

constexpr std::uint16_t fractionsInMinorUnit = 10'000;
constexpr unsigned fractionDigits = 4;

std::int64_t powerOfTen(unsigned exponent)
{
    std::int64_t power = 1;
    while (exponent-- > 0)
        power *= 10;
    return power;
}

/// Zero in no currency: it meets every currency without a rate.
bool isEmpty(const Money &money)
{
    return money.isZero() && money.code() == Currency();
}

} // namespace

Money::Money(const Currency &currency, std::int64_t major, std::uint16_t minor,
             std::uint16_t fraction)
    : m_currency(currency), m_amount(major)
{
    const unsigned digits = minorUnitDigits(currency);
    if (minor >= powerOfTen(digits))
        throw internal::noSuchMinorUnits(minor, toStdString(currency));
    if (fraction >= fractionsInMinorUnit)
        throw internal::noSuchFraction(fraction);
    const Decimal behindPoint = Decimal(std::int64_t{minor} * fractionsInMinorUnit + fraction)
                                    .scaled(1, powerOfTen(digits + fractionDigits));
    if (major < 0)
        m_amount -= behindPoint;
    else
        m_amount += behindPoint;
}

Money &Money::operator+=(const Money &other)
{
    if (isEmpty(*this))
        return *this = other;
    m_amount += other.convertedTo(m_currency).m_amount;
    return *this;
}

Money &Money::operator-=(const Money &other)
{
    return *this += -other;
}

Money operator*(const Money &money, double factor)
{
    return {money.m_currency, money.m_amount.times(factor)};
}

Money Money::round(const Rounder &rounder, unsigned digits) const
{
    return {m_currency, rounder(m_amount, digits, RoundingMode::HalfToEven)};
}

Money Money::rounded() const
{
    return {m_currency, m_amount.roundedHalfEven(minorUnitDigits(m_currency))};
}

Money Money::convertedTo(const Currency &currency) const
{
    if (m_currency == currency || isEmpty(*this))
        return *this;
    const FloatingPoint rate = conversionRate(m_currency, currency);
    return {currency, m_amount.times(rate.str(0, std::ios_base::scientific))};
}

std::strong_ordering Money::against(const Money &right) const
{
    if (isEmpty(*this) || isEmpty(right))
        return m_amount <=> right.m_amount;
    return m_amount <=> right.convertedTo(m_currency).m_amount;
}

std::strong_ordering compareExactly(const Money &a, const Money &b) noexcept
{
    const std::strong_ordering byCurrency = a.code() <=> b.code();
    return byCurrency != 0 ? byCurrency : a.amount() <=> b.amount();
}

std::string toText(const Money &money)
{
    return money.amount().toText(minorUnitDigits(money.code()));
}

Money toMoney(const Currency &currency, std::string_view text)
{
    return {currency, Decimal::fromText(text)};
}

std::ostream &operator<<(std::ostream &out, const Money &money)
{
    return out << toText(money) << ' ' << money.code();
}

} // namespace numira

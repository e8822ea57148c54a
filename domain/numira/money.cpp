// SPDX-License-Identifier: GPL-3.0-or-later
#include "numira/money.h"

#include "numira/error.h"
#include "numira/library.h"

#include <unicode/numberformatter.h>

#include <map>
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

icu::number::LocalizedNumberFormatter makeFormatter(const Currency &currency)
{
    const auto digits = static_cast<int32_t>(minorUnitDigits(currency));
    icu::number::UnlocalizedNumberFormatter formatter =
        icu::number::NumberFormatter::with()
            .precision(icu::number::Precision::minMaxFraction(
                digits, static_cast<int32_t>(Decimal::scaleDigits)))
            .roundingMode(UNUM_ROUND_HALFEVEN);
    if (currency != Currency()) {
        UErrorCode status = U_ZERO_ERROR;
        const icu::CurrencyUnit unit(
            icu::StringPiece(currency.code().data(), static_cast<int32_t>(currency.code().size())),
            status);
        formatter = formatter.unit(unit);
    }
    return formatter.locale(icu::Locale(libraryLocale().c_str()));
}

/// The formatter for the currency in the library's locale. Making one takes
/// ICU far longer than using it.
const icu::number::LocalizedNumberFormatter &formatterFor(const Currency &currency)
{
    thread_local std::string locale;
    thread_local std::map<Currency, icu::number::LocalizedNumberFormatter> formatters;
    if (locale != libraryLocale()) {
        formatters.clear();
        locale = libraryLocale();
    }
    auto found = formatters.find(currency);
    if (found == formatters.end())
        found = formatters.emplace(currency, makeFormatter(currency)).first;
    return found->second;
}

} // namespace

Money::Money(const Currency &currency, std::int64_t major, std::uint16_t minor,
             std::uint16_t fraction)
    : m_currency(currency), m_amount(major)
{
    const unsigned digits = minorUnitDigits(currency);
    if (minor >= powerOfTen(digits))
        throw InvalidAmount("There are not " + std::to_string(minor) + " minor units in " +
                            toStdString(currency) + ".");
    if (fraction >= fractionsInMinorUnit)
        throw InvalidAmount("A minor unit has no " + std::to_string(fraction) +
                            " ten-thousandths.");
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

std::string toLocalText(const Money &money)
{
    const std::string plain = money.amount().toText();
    UErrorCode status = U_ZERO_ERROR;
    std::string text;
    formatterFor(money.code())
        .formatDecimal(icu::StringPiece(plain.data(), static_cast<int32_t>(plain.size())), status)
        .toString(status)
        .toUTF8String(text);
    if (U_SUCCESS(status))
        return text;
    // Without the locale's data an amount is still shown, and shown exactly.
    return toText(money) + ' ' + toStdString(money.code());
}

std::ostream &operator<<(std::ostream &out, const Money &money)
{
    return out << toText(money) << ' ' << money.code();
}

} // namespace numira

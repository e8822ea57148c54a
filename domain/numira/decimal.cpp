// SPDX-License-Identifier: GPL-3.0-or-later
#include "numira/decimal.h"

#include "numira/internal/faults.h"

#include <boost/multiprecision/cpp_int.hpp>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <memory>
#include <ostream>

namespace numira {
namespace {

using boost::multiprecision::cpp_int;
/// Wide enough for the product of two amounts, and checked all the same.
using Wide = boost::multiprecision::checked_int256_t;
__extension__ using Units = __int128;
__extension__ using Magnitude = unsigned __int128;

constexpr Units highest = static_cast<Units>(~Magnitude{} >> 1U);
constexpr unsigned scale = Decimal::scaleDigits;
/// The most digits that the units can have.
constexpr int unitDigitsMax = 39;

constexpr Units powerOfTen(unsigned exponent)
{
    Units power = 1;
    while (exponent-- > 0)
        power *= 10;
    return power;
}

constexpr Units one = powerOfTen(scale);
constexpr auto powersOfTen = [] {
    std::array<Units, scale + 1> powers{};
    for (unsigned exponent = 0; exponent <= scale; ++exponent)
        powers[exponent] = powerOfTen(exponent);
    return powers;
}();

constexpr bool isDigit(char c) noexcept
{
    return c >= '0' && c <= '9';
}

constexpr Magnitude magnitude(Units units) noexcept
{
    return units < 0 ? -static_cast<Magnitude>(units) : static_cast<Magnitude>(units);
}

/// Whether a quotient must move away from zero, by what is left of the division.
template <typename Integer>
bool roundsAway(const Integer &remainder, const Integer &divisor, bool quotientIsOdd)
{
    const Integer rest = divisor - remainder;
    return remainder > rest || (remainder == rest && quotientIsOdd);
}

template <typename Integer>
Units narrowed(const Integer &value)
{
    if (value > Integer(highest) || value < -Integer(highest))
        throw internal::amountTooLarge();
    return static_cast<Units>(value);
}

/// numerator ÷ denominator, rounded half to even; the denominator is not zero.
template <typename Integer>
Units quotient(const Integer &numerator, const Integer &denominator)
{
    Integer whole;
    Integer remainder;
    const Integer divisor = abs(denominator);
    divide_qr(Integer(abs(numerator)), divisor, whole, remainder);
    if (roundsAway<Integer>(remainder, divisor, bit_test(whole, 0)))
        ++whole;
    const bool isNegative = (numerator < 0) != (denominator < 0);
    return narrowed<Integer>(isNegative ? Integer(-whole) : whole);
}

/// A number that a text gives exactly: digits × 10^exponent.
struct Exact {
    cpp_int digits;
    int digitCount; ///< leading zeros are counted, too
    long long exponent;
};

/// Reads "-1.25e-7". An exponent that no number has is kept as it is; what
/// comes of it is decided where the number is used.
Exact readExact(std::string_view text)
{
    std::string_view rest = text;
    const bool isNegative = rest.starts_with('-');
    if (isNegative || rest.starts_with('+'))
        rest.remove_prefix(1);
    std::string digits;
    long long exponent = 0;
    bool isBehindPoint = false;
    std::size_t at = 0;
    for (; at < rest.size() && (isDigit(rest[at]) || (rest[at] == '.' && !isBehindPoint)); ++at) {
        if (rest[at] == '.') {
            isBehindPoint = true;
        } else {
            digits += rest[at];
            exponent -= isBehindPoint ? 1 : 0;
        }
    }
    if (digits.empty())
        throw internal::notAnAmount(text);
    if (at < rest.size()) {
        if (rest[at] != 'e' && rest[at] != 'E')
            throw internal::notAnAmount(text);
        // std::from_chars takes no plus sign.
        at += rest.substr(at + 1).starts_with('+') ? 2 : 1;
        int written = 0;
        const char *end = std::to_address(rest.end());
        const auto [stop, fault] = std::from_chars(rest.data() + at, end, written);
        if (fault != std::errc() || stop != end)
            throw internal::notAnAmount(text);
        exponent += written;
    }
    cpp_int number;
    // A leading zero would make the number octal.
    if (const std::size_t first = digits.find_first_not_of('0'); first != std::string::npos)
        number.assign(digits.substr(first));
    return {isNegative ? cpp_int(-number) : number, static_cast<int>(digits.size()), exponent};
}

/// units × number, rounded half to even.
Units product(Units units, const Exact &number)
{
    // Beyond these bounds the result, an overflow or zero, is the same as on them.
    const long long above = std::min<long long>(number.exponent, unitDigitsMax);
    const long long below =
        std::min<long long>(-number.exponent, unitDigitsMax + number.digitCount + 1);
    const auto power = [](long long exponent) -> cpp_int {
        return pow(cpp_int(10), static_cast<unsigned>(std::max(exponent, 0LL)));
    };
    return quotient<cpp_int>(cpp_int(units) * number.digits * power(above), power(below));
}

/// The shortest decimal that reads back as `value`.
std::string_view shortestText(double value, std::array<char, 32> &buffer)
{
    if (!std::isfinite(value))
        throw internal::numberNotFinite();
    // Without an exponent large integers would be written with all their binary digits.
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                       std::chars_format::scientific);
    return {buffer.data(), written.ptr};
}

/// Room for a sign, a point, a zero before it and all digits.
using DecimalBuffer = std::array<char, unitDigitsMax + 4>;

/// Writes from the back of the buffer.
std::string_view writeUnits(Units units, unsigned digitsMin, DecimalBuffer &buffer) noexcept
{
    char *const end = buffer.data() + buffer.size();
    char *begin = end;
    Magnitude left = magnitude(units);
    bool isNeeded = false;
    for (unsigned digit = scale; digit > 0; --digit, left /= 10) {
        isNeeded = isNeeded || digit <= digitsMin || left % 10 != 0;
        if (isNeeded)
            *--begin = static_cast<char>('0' + static_cast<int>(left % 10));
    }
    if (begin != end)
        *--begin = '.';
    do {
        *--begin = static_cast<char>('0' + static_cast<int>(left % 10));
        left /= 10;
    } while (left != 0);
    if (units < 0)
        *--begin = '-';
    return {begin, end};
}

} // namespace

Decimal::Decimal(std::int64_t whole) noexcept : m_units(Units{whole} * one) {}

Decimal Decimal::fromText(std::string_view text)
{
    std::string_view rest = text;
    const bool isNegative = rest.starts_with('-');
    if (isNegative || rest.starts_with('+'))
        rest.remove_prefix(1);
    const std::size_t point = std::min(rest.find('.'), rest.size());
    const std::string_view whole = rest.substr(0, point);
    const std::string_view behind = rest.substr(std::min(point + 1, rest.size()));
    if (whole.empty() || behind.size() > scale || (behind.empty() && point != rest.size()) ||
        !std::ranges::all_of(whole, isDigit) || !std::ranges::all_of(behind, isDigit))
        throw internal::notAnAmount(text);

    // In 64 bits as long as they hold all digits, which is nearly always and much
    // faster, and then in 128.
    std::uint64_t leading = 0;
    Units units = 0;
    const bool isShort =
        whole.size() + behind.size() <= std::numeric_limits<std::uint64_t>::digits10;
    const auto multiplyAndAdd = [&units](Units factor, int digit) {
        if (__builtin_mul_overflow(units, factor, &units) ||
            __builtin_add_overflow(units, Units{digit}, &units))
            throw internal::amountTooLarge();
    };
    for (const std::string_view digits : {whole, behind}) {
        for (const char digit : digits) {
            if (isShort)
                leading = leading * 10 + static_cast<std::uint64_t>(digit - '0');
            else
                multiplyAndAdd(10, digit - '0');
        }
    }
    if (isShort)
        units = leading;
    multiplyAndAdd(powersOfTen[scale - behind.size()], 0);
    Decimal decimal;
    decimal.m_units = isNegative ? -units : units;
    return decimal;
}

Decimal Decimal::fromUnits(std::int64_t units, unsigned digits)
{
    if (digits > scale)
        throw internal::tooManyDigits();
    Decimal decimal;
    decimal.m_units = Units{units} * powersOfTen[scale - digits];
    return decimal;
}

std::optional<std::int64_t> Decimal::unitsOf(unsigned digits) const noexcept
{
    if (digits > scale)
        return std::nullopt;
    const Units step = powersOfTen[scale - digits];
    const Units units = m_units / step;
    const auto narrow = static_cast<std::int64_t>(units);
    if (narrow != units || units * step != m_units)
        return std::nullopt;
    return narrow;
}

Decimal Decimal::fromDouble(double value)
{
    std::array<char, 32> buffer;
    Decimal decimal;
    decimal.m_units = product(one, readExact(shortestText(value, buffer)));
    return decimal;
}

std::string Decimal::toText(unsigned digitsMin) const
{
    DecimalBuffer buffer;
    std::string text(writeUnits(m_units, digitsMin, buffer));
    if (digitsMin > scale)
        text.append(digitsMin - scale, '0');
    return text;
}

double Decimal::toDouble() const noexcept
{
    DecimalBuffer buffer;
    const std::string_view text = writeUnits(m_units, 0, buffer);
    double value = 0;
    std::from_chars(text.data(), std::to_address(text.end()), value);
    return value;
}

unsigned Decimal::digits() const noexcept
{
    unsigned digits = scale;
    for (Magnitude left = magnitude(m_units); digits > 0 && left % 10 == 0; left /= 10)
        --digits;
    return digits;
}

Decimal &Decimal::operator+=(const Decimal &other)
{
    Units sum = 0;
    if (__builtin_add_overflow(m_units, other.m_units, &sum) || sum < -highest)
        throw internal::amountTooLarge();
    m_units = sum;
    return *this;
}

Decimal &Decimal::operator-=(const Decimal &other)
{
    return *this += -other;
}

Decimal Decimal::operator-() const
{
    Decimal negated;
    negated.m_units = -m_units;
    return negated;
}

Decimal operator*(const Decimal &a, const Decimal &b)
{
    Decimal result;
    result.m_units = quotient<Wide>(Wide(a.m_units) * Wide(b.m_units), Wide(one));
    return result;
}

Decimal Decimal::times(std::string_view factor) const
{
    Decimal result;
    result.m_units = product(m_units, readExact(factor));
    return result;
}

Decimal Decimal::times(double factor) const
{
    std::array<char, 32> buffer;
    return times(shortestText(factor, buffer));
}

Decimal Decimal::scaled(std::int64_t numerator, std::int64_t denominator) const
{
    if (denominator == 0)
        throw internal::divisionByZero();
    Decimal result;
    result.m_units = quotient<Wide>(Wide(m_units) * Wide(numerator), Wide(denominator));
    return result;
}

Decimal Decimal::roundedHalfEven(unsigned digits) const
{
    if (digits >= scale)
        return *this;
    const auto step = static_cast<Magnitude>(powerOfTen(scale - digits));
    const Magnitude all = magnitude(m_units);
    Magnitude whole = all / step;
    if (roundsAway<Magnitude>(all % step, step, whole % 2 != 0))
        ++whole;
    // The quotient is far below the highest magnitude, its product is not.
    if (whole > static_cast<Magnitude>(highest) / step)
        throw internal::amountTooLarge();
    const auto units = static_cast<Units>(whole * step);
    Decimal result;
    result.m_units = m_units < 0 ? -units : units;
    return result;
}

Decimal Decimal::abs() const
{
    return m_units < 0 ? -*this : *this;
}

namespace rounders {

Decimal currency_even(const Decimal &value, unsigned digits, RoundingMode mode)
{
    if (mode != RoundingMode::HalfToEven)
        throw internal::unknownRounding();
    return value.roundedHalfEven(digits);
}

} // namespace rounders

std::ostream &operator<<(std::ostream &out, const Decimal &decimal)
{
    return out << decimal.toText();
}

} // namespace numira

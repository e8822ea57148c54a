// SPDX-License-Identifier: GPL-3.0-or-later
// Decimals against a model of unbounded integers that count 10^-12.

#include "support/suite.h"

#include "numira/decimal.h"
#include "numira/error.h"

#include <boost/multiprecision/cpp_int.hpp>
#include <rapidcheck.h>

#include <cstdlib>
#include <optional>

using boost::multiprecision::cpp_int;
using numira::Decimal;

namespace {

const cpp_int one = pow(cpp_int(10), Decimal::scaleDigits);
const cpp_int highest = (cpp_int(1) << 127) - 1;

std::string textOf(const cpp_int &units)
{
    std::string digits = cpp_int(abs(units)).str();
    digits.insert(0, digits.size() > 12 ? 0 : 13 - digits.size(), '0');
    digits.insert(digits.size() - 12, ".");
    return (units < 0 ? "-" : "") + digits;
}

Decimal decimal(const cpp_int &units)
{
    return Decimal::fromText(textOf(units));
}

cpp_int halfEven(const cpp_int &numerator, const cpp_int &denominator)
{
    const cpp_int twice = 2 * abs(numerator);
    const cpp_int positive = abs(denominator);
    cpp_int result = (twice + positive) / (2 * positive);
    if ((twice + positive) % (2 * positive) == 0 && result % 2 != 0)
        --result;
    return (numerator < 0) != (denominator < 0) ? cpp_int(-result) : result;
}

/// Whether the operation gives the model's result, or refuses it when it is too large.
template <typename Operation>
bool gives(const cpp_int &expected, Operation operation)
{
    std::optional<Decimal> result;
    try {
        result = operation();
    } catch (const numira::OverflowError &) {
    }
    return abs(expected) > highest ? !result : result && *result == decimal(expected);
}

/// Units of every magnitude, the highest ones included.
cpp_int anyUnits()
{
    const cpp_int all = (cpp_int(*rc::gen::arbitrary<std::uint64_t>()) << 64) |
                        *rc::gen::arbitrary<std::uint64_t>();
    const cpp_int units =
        (*rc::gen::arbitrary<bool>() ? highest : all & highest) >> *rc::gen::inRange(0, 127);
    return *rc::gen::arbitrary<bool>() ? cpp_int(-units) : units;
}

} // namespace

class tst_Decimal : public QObject {
    Q_OBJECT

private slots:
    void addsAndSubtractsExactlyOrRefuses()
    {
        QVERIFY(rc::check("sum, difference and order", [] {
            const cpp_int a = anyUnits();
            const cpp_int b = anyUnits();
            Decimal changed = decimal(a);
            RC_ASSERT(gives(a + b, [&] { return changed += decimal(b); }));
            RC_ASSERT(changed == decimal(abs(cpp_int(a + b)) > highest ? a : cpp_int(a + b)));
            RC_ASSERT(gives(a - b, [&] { return decimal(a) - decimal(b); }));
            RC_ASSERT(decimal(a).abs() == decimal(abs(a)));
            RC_ASSERT((decimal(a) < decimal(b)) == (a < b));
            RC_ASSERT(decimal(a).sign() == a.sign());
        }));
    }

    void multipliesAndScalesHalfToEven()
    {
        QVERIFY(rc::check("product, ratio and rounding", [] {
            const cpp_int a = anyUnits();
            const cpp_int b = anyUnits();
            RC_ASSERT(gives(halfEven(a * b, one), [&] { return decimal(a) * decimal(b); }));
            const auto numerator = *rc::gen::arbitrary<std::int64_t>();
            const auto denominator = *rc::gen::nonZero<std::int64_t>();
            RC_ASSERT(gives(halfEven(a * numerator, denominator),
                            [&] { return decimal(a).scaled(numerator, denominator); }));
            const auto digits = *rc::gen::inRange(0U, 15U);
            const cpp_int step = pow(cpp_int(10), digits > 12 ? 0 : 12 - digits);
            RC_ASSERT(gives(halfEven(a, step) * step,
                            [&] { return decimal(a).roundedHalfEven(digits); }));
        }));
    }

    void multipliesByTheShortestDecimalOfADouble()
    {
        // Up to 15 digits survive the way through a double.
        QVERIFY(rc::check("product with a double", [] {
            const cpp_int a = anyUnits();
            const auto digits = *rc::gen::inRange(-999'999'999'999'999, 1'000'000'000'000'000);
            const auto exponent = *rc::gen::inRange(-60, 20);
            const std::string text = std::to_string(digits) + 'e' + std::to_string(exponent);
            const double factor = std::strtod(text.c_str(), nullptr);
            const cpp_int power = pow(cpp_int(10), static_cast<unsigned>(std::abs(exponent)));
            const cpp_int up = (exponent > 0 ? power : 1) * digits;
            const cpp_int down = exponent < 0 ? power : 1;
            RC_ASSERT(gives(halfEven(a * up, down), [&] { return decimal(a).times(factor); }));
            RC_ASSERT(gives(halfEven(one * up, down), [&] { return Decimal::fromDouble(factor); }));
        }));
    }

    void textRoundTripIsExact()
    {
        QVERIFY(rc::check("text and back", [] {
            const cpp_int units = anyUnits();
            const auto digitsMin = *rc::gen::inRange(0U, 15U);
            const Decimal value = decimal(units);
            const std::string text = value.toText(digitsMin);
            RC_ASSERT(Decimal::fromText(text.substr(0, text.find('.') + 13)) == value);
            const std::size_t point = std::min(text.find('.'), text.size() - 1);
            RC_ASSERT(text.size() - 1 - point == std::max(value.digits(), digitsMin));
            RC_ASSERT(value.toDouble() == std::strtod(textOf(units).c_str(), nullptr));
        }));
    }

    void textIsReadOrRefused()
    {
        QCOMPARE(Decimal::fromText("+5").toText(), "5");
        QCOMPARE(Decimal::fromText("-0.00").toText(), "0");
        QCOMPARE(Decimal::fromText(std::string(60, '0') + "7.10").toText(), "7.1");
        for (const std::string_view text :
             {"", "-", ".5", "5.", "1e3", "12,3x", "1 000", " 1", "1\n", "+-1", "1.2.3", "0x10",
              "inf", "1.-5", "١", "0.0000000000001"})
            QVERIFY_THROWS_EXCEPTION(numira::InvalidAmount, (void)Decimal::fromText(text));
    }

    void tiesGoToTheEvenNeighbour()
    {
        // Random numbers hardly ever lie exactly between two others.
        const std::initializer_list<std::tuple<const char *, unsigned, const char *>> roundings{
            {"0.125", 2, "0.12"},
            {"0.375", 2, "0.38"},
            {"-2.5", 0, "-2"},
            {"-3.5", 0, "-4"},
            {"2.500000000001", 0, "3"},
            {"3.499999999999", 0, "3"},
            {"0.000000000001", 13, "0.000000000001"}};
        for (const auto &[value, digits, rounded] : roundings)
            QCOMPARE(numira::rounders::currency_even(Decimal::fromText(value), digits,
                                                     numira::RoundingMode::HalfToEven)
                         .toText(),
                     rounded);
        const std::initializer_list<std::pair<double, const char *>> doubles{
            {0.5e-12, "0"},
            {-1.5e-12, "-0.000000000002"},
            {0.50001e-12, "0.000000000001"},
            {4.9e-324, "0"}};
        for (const auto &[value, read] : doubles) {
            QCOMPARE(Decimal::fromDouble(value).toText(), read);
            QCOMPARE(Decimal(1).times(value).toText(), read);
        }
        QCOMPARE((Decimal::fromText("-0.000001") * Decimal::fromText("0.0000005")).sign(), 0);
        // At the highest amount nothing overflows yet, and one unit more does.
        QVERIFY_THROWS_EXCEPTION(numira::OverflowError, (void)decimal(highest + 1));
        QCOMPARE(decimal(highest).scaled(-1, 1), decimal(-highest));
        QCOMPARE(decimal(-highest).scaled(-1, 1), decimal(highest));
        // The widest exponents that still change something.
        QCOMPARE(decimal(highest).times("9E-39").toText(), "0.000000000002");
        QCOMPARE(decimal(1).times("1e38").toText(), '1' + std::string(26, '0'));
        QCOMPARE(Decimal::fromText("0.000000000001").scaled(-3, 2).toText(), "-0.000000000002");
    }

    void uselessFactorsAreRefused()
    {
        const Decimal value(1);
        QVERIFY_THROWS_EXCEPTION(std::logic_error, (void)value.scaled(1, 0));
        QVERIFY_THROWS_EXCEPTION(std::logic_error, (void)numira::rounders::currency_even(
                                                       value, 2, numira::RoundingMode{1}));
        QVERIFY_THROWS_EXCEPTION(numira::InvalidAmount, (void)Decimal::fromDouble(-HUGE_VAL));
        QVERIFY_THROWS_EXCEPTION(numira::InvalidAmount, (void)value.times(std::nan("")));
        for (const char *text :
             {"", "1e", "1ex", "e5", "1e99999999999", "1e5x", "5x", "1.5.", "--1"})
            QVERIFY_THROWS_EXCEPTION(numira::InvalidAmount, (void)value.times(text));
        // A text ends where it says, whatever stands behind it.
        QCOMPARE(value.times(std::string_view("25", 1)).toText(), "2");
        QCOMPARE(value.times("+010.0").toText(), "10"); // and is never octal
        for (const std::size_t length : {40U, 41U}) {
            try {
                (void)Decimal::fromText(std::string(length, 'x'));
                QFAIL("It was read.");
            } catch (const numira::InvalidAmount &error) {
                QCOMPARE(error.what(), "'" + std::string(40, 'x') + (length > 40 ? "..." : "") +
                                           "' is not a decimal amount.");
            }
        }
        // Exponents at which the powers of ten would fill the memory.
        QVERIFY_THROWS_EXCEPTION(numira::OverflowError, (void)value.times("1e2000000000"));
        QCOMPARE(value.times("1e-2000000000").sign(), 0);
    }
};

static const kiv::test::Suite<tst_Decimal> suite;
#include "tst_decimal.moc"

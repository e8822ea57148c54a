// SPDX-License-Identifier: GPL-3.0-or-later
// Decimals against a model of unbounded integers that count 10^-12.
#include <QtTest/QtTest>

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

/// numerator ÷ denominator half to even, by halves of the denominator.
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
    const auto high = *rc::gen::arbitrary<std::uint64_t>();
    const auto low = *rc::gen::arbitrary<std::uint64_t>();
    const auto width = *rc::gen::inRange(0, 128);
    const cpp_int all = (cpp_int(high) << 64) | low;
    const cpp_int units = (*rc::gen::arbitrary<bool>() ? highest : all) >> (128 - width - 1);
    return *rc::gen::arbitrary<bool>() ? cpp_int(-(units & highest)) : units & highest;
}

} // namespace

class tst_Decimal : public QObject {
    Q_OBJECT

private slots:
    void addsAndSubtractsExactlyOrRefuses();
    void multipliesAndScalesHalfToEven();
    void multipliesByTheShortestDecimalOfADouble();
    void textRoundTripIsExact();
    void ordersAsTheModel();
    void readsText_data();
    void readsText();
    void readsDoubles_data();
    void readsDoubles();
    void roundsHalfToEven_data();
    void roundsHalfToEven();
    void refusesProgrammingErrors();
};

void tst_Decimal::addsAndSubtractsExactlyOrRefuses()
{
    QVERIFY(rc::check("sum and difference", [] {
        const cpp_int a = anyUnits();
        const cpp_int b = anyUnits();
        Decimal changed = decimal(a);
        RC_ASSERT(gives(a + b, [&] { return changed += decimal(b); }));
        RC_ASSERT(changed == decimal(abs(cpp_int(a + b)) > highest ? a : cpp_int(a + b)));
        RC_ASSERT(gives(a - b, [&] { return decimal(a) - decimal(b); }));
        RC_ASSERT(-decimal(a) == decimal(-a));
        RC_ASSERT(decimal(a).abs() == decimal(abs(a)));
    }));
}

void tst_Decimal::multipliesAndScalesHalfToEven()
{
    QVERIFY(rc::check("product and ratio", [] {
        const cpp_int a = anyUnits();
        const cpp_int b = anyUnits();
        RC_ASSERT(gives(halfEven(a * b, one), [&] { return decimal(a) * decimal(b); }));

        const auto numerator = *rc::gen::arbitrary<std::int64_t>();
        const auto denominator = *rc::gen::nonZero<std::int64_t>();
        RC_ASSERT(gives(halfEven(a * numerator, denominator),
                        [&] { return decimal(a).scaled(numerator, denominator); }));

        const auto digits = *rc::gen::inRange(0U, 15U);
        const cpp_int step = pow(cpp_int(10), digits > 12 ? 0 : 12 - digits);
        RC_ASSERT(
            gives(halfEven(a, step) * step, [&] { return decimal(a).roundedHalfEven(digits); }));
    }));
}

void tst_Decimal::multipliesByTheShortestDecimalOfADouble()
{
    // Up to 15 digits survive the way through a double.
    QVERIFY(rc::check("product with a double", [] {
        const cpp_int a = anyUnits();
        const cpp_int digits =
            *rc::gen::inRange<std::int64_t>(-999'999'999'999'999, 1'000'000'000'000'000);
        const auto exponent = *rc::gen::inRange(-60, 20);
        const std::string text = digits.str() + 'e' + std::to_string(exponent);
        const double factor = std::strtod(text.c_str(), nullptr);
        const cpp_int power = pow(cpp_int(10), static_cast<unsigned>(std::abs(exponent)));
        const cpp_int up = exponent > 0 ? power : 1;
        const cpp_int down = exponent < 0 ? power : 1;
        RC_ASSERT(gives(halfEven(a * digits * up, down), [&] { return decimal(a).times(factor); }));
        RC_ASSERT(
            gives(halfEven(one * digits * up, down), [&] { return Decimal::fromDouble(factor); }));
    }));
}

void tst_Decimal::textRoundTripIsExact()
{
    QVERIFY(rc::check("text and back", [] {
        const cpp_int units = anyUnits();
        const auto digitsMin = *rc::gen::inRange(0U, 13U);
        const Decimal value = decimal(units);
        const std::string text = value.toText(digitsMin);
        RC_ASSERT(Decimal::fromText(text) == value);
        const std::size_t point = text.find('.');
        const std::size_t digits = point == std::string::npos ? 0 : text.size() - point - 1;
        RC_ASSERT(digits == std::max<std::size_t>(value.digits(), digitsMin));
        RC_ASSERT(text != "-0");
    }));
}

void tst_Decimal::ordersAsTheModel()
{
    QVERIFY(rc::check("order", [] {
        const cpp_int a = anyUnits();
        const cpp_int b = anyUnits();
        RC_ASSERT((decimal(a) < decimal(b)) == (a < b));
        RC_ASSERT((decimal(a) == decimal(b)) == (a == b));
        RC_ASSERT(decimal(a).sign() == a.sign());
        RC_ASSERT(decimal(a).toDouble() == std::strtod(textOf(a).c_str(), nullptr));
    }));
}

void tst_Decimal::readsText_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QByteArray>("read"); // nothing when the text is refused
    QTest::newRow("plus sign") << QByteArray("+5") << QByteArray("5");
    QTest::newRow("minus zero") << QByteArray("-0.00") << QByteArray("0");
    QTest::newRow("leading zeros beyond all places")
        << QByteArray(60, '0') + "7.10" << QByteArray("7.1");
    QTest::newRow("12 digits") << QByteArray("0.000000000001") << QByteArray("0.000000000001");
    const QList<QByteArray> refused{"",
                                    "-",
                                    ".5",
                                    "5.",
                                    "1e3",
                                    "12,3x",
                                    "1 000",
                                    " 1",
                                    "1\n",
                                    "+-1",
                                    "1.2.3",
                                    "0x10",
                                    "inf",
                                    "nan",
                                    "1.-5",
                                    "١",
                                    "0.0000000000001",
                                    QByteArray("1\0", 2)};
    for (qsizetype row = 0; row < refused.size(); ++row)
        QTest::addRow("refused %d", int(row)) << refused[row] << QByteArray();
}

void tst_Decimal::readsText()
{
    QFETCH(QByteArray, text);
    QFETCH(QByteArray, read);
    if (read.isEmpty())
        QVERIFY_EXCEPTION_THROWN((void)Decimal::fromText(text.toStdString()),
                                 numira::InvalidAmount);
    else
        QCOMPARE(Decimal::fromText(text.toStdString()).toText(), read.toStdString());
}

void tst_Decimal::readsDoubles_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QByteArray>("read");
    QTest::newRow("no binary fraction") << 0.1 << QByteArray("0.1");
    QTest::newRow("tie to the even digit below") << 0.5e-12 << QByteArray("0");
    QTest::newRow("tie to the even digit above") << -1.5e-12 << QByteArray("-0.000000000002");
    QTest::newRow("just above the tie") << 0.50001e-12 << QByteArray("0.000000000001");
    QTest::newRow("smallest double") << 4.9e-324 << QByteArray("0");
    QTest::newRow("exponent") << 1e26 << QByteArray("1") + QByteArray(26, '0');
}

void tst_Decimal::readsDoubles()
{
    QFETCH(double, value);
    QFETCH(QByteArray, read);
    QCOMPARE(Decimal::fromDouble(value).toText(), read.toStdString());
}

void tst_Decimal::roundsHalfToEven_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<uint>("digits");
    QTest::addColumn<QByteArray>("rounded");
    QTest::newRow("half above even") << QByteArray("0.125") << 2U << QByteArray("0.12");
    QTest::newRow("half above odd") << QByteArray("0.375") << 2U << QByteArray("0.38");
    QTest::newRow("negative half above even") << QByteArray("-2.5") << 0U << QByteArray("-2");
    QTest::newRow("negative half above odd") << QByteArray("-3.5") << 0U << QByteArray("-4");
    QTest::newRow("just above half") << QByteArray("2.500000000001") << 0U << QByteArray("3");
    QTest::newRow("just below half") << QByteArray("3.499999999999") << 0U << QByteArray("3");
    QTest::newRow("more digits than kept")
        << QByteArray("0.000000000001") << 13U << QByteArray("0.000000000001");
}

void tst_Decimal::roundsHalfToEven()
{
    QFETCH(QByteArray, value);
    QFETCH(uint, digits);
    QFETCH(QByteArray, rounded);
    const Decimal result = numira::rounders::currency_even(
        Decimal::fromText(value.toStdString()), digits, numira::RoundingMode::HalfToEven);
    QCOMPARE(result.toText(), rounded.toStdString());
}

void tst_Decimal::refusesProgrammingErrors()
{
    const Decimal value(1);
    QVERIFY_EXCEPTION_THROWN((void)value.scaled(1, 0), std::logic_error);
    QVERIFY_EXCEPTION_THROWN(
        (void)numira::rounders::currency_even(value, 2, numira::RoundingMode{1}), std::logic_error);
    QVERIFY_EXCEPTION_THROWN((void)Decimal::fromDouble(1e300), numira::OverflowError);
    QVERIFY_EXCEPTION_THROWN((void)Decimal::fromDouble(-HUGE_VAL), numira::InvalidAmount);
    QVERIFY_EXCEPTION_THROWN((void)value.times(std::nan("")), numira::InvalidAmount);
    // Exponents at which the powers of ten would fill the memory.
    QVERIFY_EXCEPTION_THROWN((void)value.times("1e2000000000"), numira::OverflowError);
    QCOMPARE(value.times("1e-2000000000").sign(), 0);
    for (const char *text : {"", "1e", "1ex", "e5", "1e99999999999", "1.5.", "--1"})
        QVERIFY_EXCEPTION_THROWN((void)value.times(text), numira::InvalidAmount);
}

QTEST_APPLESS_MAIN(tst_Decimal)
#include "tst_decimal.moc"

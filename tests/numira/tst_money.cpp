// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

#include "numira/error.h"
#include "numira/library.h"
#include "numira/money.h"

#include <limits>
#include <map>
#include <vector>

using numira::Currency;
using numira::FloatingPoint;
using numira::Money;

namespace {

const Currency usd(840);
const Currency eur(978);
const Currency jpy(392);
const Currency kwd(414);
const Currency clf(990);

std::string streamed(const Money &money)
{
    std::ostringstream out;
    out << money;
    return out.str();
}

/// Rates that are no inverses of each other, so that it shows which operand
/// was converted; euros to yen is not a usable rate, anything else is unknown.
FloatingPoint rate(const Currency &from, const Currency &to)
{
    if (from == usd && to == eur)
        return 2;
    if (from == eur && to == usd)
        return FloatingPoint("0.25");
    if (from == jpy && to == usd)
        return FloatingPoint(1) / 3;
    if (from == eur && to == jpy)
        return -1;
    throw numira::ConversionError("unknown");
}

} // namespace

class tst_Money : public QObject {
    Q_OBJECT

private slots:
    void init() { numira::setUpLibrary(rate, "en_US", numira::ShouldAllowFallback::No); }
    void isMadeFromUnits_data();
    void isMadeFromUnits();
    void refusesUnitsOutOfRange();
    void equalityNeverAsksForARate();
    void rightOperandIsConverted();
    void withoutAUsableRateNothingChanges();
    void overflowChangesNothing();
    void emptyMoneyTakesTheFirstCurrency();
    void convertsExactlyAndRoundsOnce();
    void multipliesAndRoundsHalfToEven();
    void sumsUpInTheAskedCurrency();
    void textHasTheMinorUnit();
    void localText_data();
    void localText();
};

void tst_Money::isMadeFromUnits_data()
{
    QTest::addColumn<int>("currency");
    QTest::addColumn<qint64>("major");
    QTest::addColumn<int>("minor");
    QTest::addColumn<int>("fraction");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("half a cent") << 840 << qint64(10) << 0 << 5000 << QByteArray("10.005 USD");
    QTest::newRow("negative") << 840 << qint64(-10) << 99 << 1 << QByteArray("-10.990001 USD");
    QTest::newRow("no minor unit") << 392 << qint64(7) << 0 << 9999 << QByteArray("7.9999 JPY");
    QTest::newRow("three digits") << 414 << qint64(0) << 999 << 1 << QByteArray("0.9990001 KWD");
    QTest::newRow("four digits") << 990 << qint64(1) << 9999 << 9999
                                 << QByteArray("1.99999999 CLF");
    QTest::newRow("highest") << 840 << std::numeric_limits<qint64>::max() << 99 << 9999
                             << QByteArray("9223372036854775807.999999 USD");
    QTest::newRow("lowest") << 840 << std::numeric_limits<qint64>::min() << 99 << 9999
                            << QByteArray("-9223372036854775808.999999 USD");
}

void tst_Money::isMadeFromUnits()
{
    QFETCH(int, currency);
    QFETCH(qint64, major);
    QFETCH(int, minor);
    QFETCH(int, fraction);
    QFETCH(QByteArray, text);
    const Money money(Currency(static_cast<std::uint16_t>(currency)), major,
                      static_cast<std::uint16_t>(minor), static_cast<std::uint16_t>(fraction));
    QCOMPARE(streamed(money), text.toStdString());
    QCOMPARE(numira::toMoney(money.code(), numira::toText(money)), money);
}

void tst_Money::refusesUnitsOutOfRange()
{
    QVERIFY_EXCEPTION_THROWN(Money(usd, 1, 100), numira::InvalidAmount);
    QVERIFY_EXCEPTION_THROWN(Money(usd, 1, 0, 10'000), numira::InvalidAmount);
    QVERIFY_EXCEPTION_THROWN(Money(jpy, 1, 1), numira::InvalidAmount);
    QVERIFY_EXCEPTION_THROWN(Money(kwd, 1, 1000), numira::InvalidAmount);
    QVERIFY_EXCEPTION_THROWN(Money(clf, 1, 10'000), numira::InvalidAmount);
}

void tst_Money::equalityNeverAsksForARate()
{
    QVERIFY(Money(usd, 1, 0) != Money(eur, 2, 0));
    QVERIFY(Money(usd) != Money(jpy));
    QVERIFY(Money(usd, 1, 0) == Money(usd, 1, 0));
    QVERIFY(Money(usd, 3, 0) == 3);
    QVERIFY(Money(usd, 3, 0, 1) != 3);
    QVERIFY(Money() == 0 && Money(usd) != Money());
    const std::vector<Money> ordered{Money(jpy, 9, 0), Money(usd, -1, 0), Money(usd, 5, 0),
                                     Money(eur, 1, 0)};
    for (std::size_t a = 0; a < ordered.size(); ++a) {
        for (std::size_t b = 0; b < ordered.size(); ++b)
            QVERIFY(numira::compareExactly(ordered[a], ordered[b]) == (a <=> b));
    }
}

void tst_Money::rightOperandIsConverted()
{
    QCOMPARE(Money(usd, 1, 0) + Money(eur, 4, 0), Money(usd, 2, 0));
    QCOMPARE(Money(eur, 1, 0) - Money(usd, 1, 0), Money(eur, -1, 0));
    // 3 EUR are 0.75 USD, yet 1 USD is 2 EUR.
    const Money dollar(usd, 1, 0);
    const Money euros(eur, 3, 0);
    QVERIFY(dollar > euros && dollar >= euros && !(dollar < euros) && !(dollar <= euros));
    QVERIFY(euros > dollar && euros >= dollar && !(euros < dollar) && !(euros <= dollar));
    QVERIFY(dollar <= Money(eur, 4, 0) && dollar >= Money(eur, 4, 0));
}

void tst_Money::withoutAUsableRateNothingChanges()
{
    Money yen(jpy, 5, 0);
    QVERIFY_EXCEPTION_THROWN(yen += Money(eur, 1, 0), numira::ConversionError);
    QVERIFY_EXCEPTION_THROWN(yen -= Money(usd, 1, 0), numira::ConversionError);
    QVERIFY_EXCEPTION_THROWN((void)(yen < Money(usd)), numira::ConversionError);
    for (const char *unusable : {"0", "inf", "nan"}) {
        numira::setUpLibrary(
            [&](const Currency &, const Currency &) { return FloatingPoint(unusable); }, "en_US",
            numira::ShouldAllowFallback::No);
        QVERIFY_EXCEPTION_THROWN(yen += Money(usd, 1, 0), numira::ConversionError);
    }
    numira::setUpLibrary({}, "en_US", numira::ShouldAllowFallback::No);
    QVERIFY_EXCEPTION_THROWN(yen += Money(usd, 1, 0), numira::ConversionError);
    QCOMPARE(yen, Money(jpy, 5, 0));
}

void tst_Money::overflowChangesNothing()
{
    const Money largest = numira::toMoney(eur, "170141183460469231731687303.715884105727");
    Money money = largest;
    QVERIFY_EXCEPTION_THROWN(money += Money(eur, 0, 1), numira::OverflowError);
    QVERIFY_EXCEPTION_THROWN(money -= -largest, numira::OverflowError);
    QVERIFY_EXCEPTION_THROWN(money = money * 1.000000001, numira::OverflowError);
    QVERIFY_EXCEPTION_THROWN(money = money.rounded(), numira::OverflowError);
    Money dollars = numira::toMoney(usd, "170141183460469231731687303");
    QVERIFY_EXCEPTION_THROWN(dollars = dollars.convertedTo(eur), numira::OverflowError);
    QVERIFY_EXCEPTION_THROWN(money += Money(usd, 1, 0), numira::OverflowError);
    QCOMPARE(money, largest);
    QCOMPARE(-money + money, Money(eur));
}

void tst_Money::emptyMoneyTakesTheFirstCurrency()
{
    Money total;
    total += Money();
    QCOMPARE(total.code(), Currency());
    total -= Money(usd, 2, 50);
    QCOMPARE(total, Money(usd, -2, 50));
    total += Money();
    QCOMPARE(total, Money(usd, -2, 50));
    QVERIFY(total < Money() && Money() < Money(jpy, 1, 0) && !(Money() < Money(jpy)));
    QCOMPARE(Money().convertedTo(usd), Money());
}

void tst_Money::convertsExactlyAndRoundsOnce()
{
    QCOMPARE(Money(usd, 5, 0).convertedTo(usd), Money(usd, 5, 0));
    QCOMPARE(Money(jpy, 1, 0).convertedTo(usd), numira::toMoney(usd, "0.333333333333"));
    QCOMPARE(Money(jpy, 3'000'000'000'000, 0).convertedTo(usd), Money(usd, 1'000'000'000'000, 0));
    // Ties at the 12th digit go to the even neighbour.
    const std::map<std::string, std::string> ties{{"0.000000000002", "0"},
                                                  {"0.000000000006", "0.000000000002"},
                                                  {"-0.00000000001", "-0.000000000002"},
                                                  {"-0.000000000014", "-0.000000000004"}};
    for (const auto &[euros, dollars] : ties)
        QCOMPARE(numira::toMoney(eur, euros).convertedTo(usd), numira::toMoney(usd, dollars));
}

void tst_Money::multipliesAndRoundsHalfToEven()
{
    QCOMPARE(Money(usd, 19, 99) * 0.1, numira::toMoney(usd, "1.999"));
    QCOMPARE(3.0 * Money(eur, 0, 10), Money(eur, 0, 30));
    QCOMPARE(numira::toMoney(usd, "0.000000000001") * 0.5, Money(usd));
    QCOMPARE(numira::toMoney(usd, "-0.000000000003") * 0.5,
             numira::toMoney(usd, "-0.000000000002"));
    QCOMPARE(numira::toMoney(usd, "2.345").rounded(), Money(usd, 2, 34));
    QCOMPARE(numira::toMoney(jpy, "-1.5").rounded(), Money(jpy, -2, 0));
    QCOMPARE(Money(usd, 10, 0).scaled(1, -3), numira::toMoney(usd, "-3.333333333333"));
    const Money::Rounder rounder = numira::rounders::currency_even;
    QCOMPARE(numira::toMoney(kwd, "0.0005").round(rounder, numira::minorUnitDigits(kwd)),
             Money(kwd));
}

void tst_Money::sumsUpInTheAskedCurrency()
{
    const std::map<int, Money> amounts{{1, Money(usd, 1, 0)}, {2, Money(eur, 8, 0)}};
    const auto second = &std::map<int, Money>::value_type::second;
    QCOMPARE(numira::math::sum(usd, amounts, second), Money(usd, 3, 0));
    QCOMPARE(numira::math::sum(eur, std::map<int, Money>(), second), Money(eur));
}

void tst_Money::textHasTheMinorUnit()
{
    QCOMPARE(numira::toText(Money(usd, 1234, 50)), std::string("1234.50"));
    QCOMPARE(numira::toText(Money(jpy)), std::string("0"));
    QCOMPARE(streamed(numira::toMoney(kwd, "-0.1")), std::string("-0.100 KWD"));
}

void tst_Money::localText_data()
{
    QTest::addColumn<QByteArray>("locale");
    QTest::addColumn<int>("currency");
    QTest::addColumn<QByteArray>("amount");
    QTest::addColumn<QString>("text");
    QTest::newRow("minor unit") << QByteArray("en_US") << 840 << QByteArray("-1234.5")
                                << u"-$1,234.50"_qs;
    QTest::newRow("no minor unit")
        << QByteArray("en_US") << 392 << QByteArray("1234") << u"¥1,234"_qs;
    QTest::newRow("every digit") << QByteArray("en_US") << 840
                                 << QByteArray("12345678901234567890.123456789012")
                                 << u"$12,345,678,901,234,567,890.123456789012"_qs;
    QTest::newRow("another locale")
        << QByteArray("de_DE") << 978 << QByteArray("1234.5") << u"1.234,50\u00A0€"_qs;
    QTest::newRow("digits of the standard")
        << QByteArray("en_US") << 8 << QByteArray("3") << u"ALL\u00A03.00"_qs;
    QTest::newRow("no currency") << QByteArray("en_US") << 999 << QByteArray("1.5") << u"1.5"_qs;
}

void tst_Money::localText()
{
    QFETCH(QByteArray, locale);
    QFETCH(int, currency);
    QFETCH(QByteArray, amount);
    QFETCH(QString, text);
    numira::setUpLibrary({}, locale.toStdString(), numira::ShouldAllowFallback::No);
    const Money money =
        numira::toMoney(Currency(static_cast<std::uint16_t>(currency)), amount.toStdString());
    QCOMPARE(QString::fromStdString(numira::toLocalText(money)), text);
}

QTEST_APPLESS_MAIN(tst_Money)
#include "tst_money.moc"

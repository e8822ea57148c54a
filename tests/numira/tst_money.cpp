// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/suite.h"

#include "numira/error.h"
#include "numira/library.h"
#include "numira/local_text.h"
#include "numira/money.h"

#include <limits>
#include <map>
#include <sstream>
#include <vector>

using numira::Currency;
using numira::FloatingPoint;
using numira::Money;
using numira::toMoney;

namespace {

const Currency usd(840);
const Currency eur(978);
const Currency jpy(392);
const Currency kwd(414);
const Currency clf(990);

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

    void isMadeFromUnits()
    {
        constexpr auto high = std::numeric_limits<std::int64_t>::max();
        constexpr auto low = std::numeric_limits<std::int64_t>::min();
        const std::vector<std::pair<Money, std::string>> made{
            {Money(usd, 10, 0, 5000), "10.005 USD"},
            {Money(usd, -10, 99, 1), "-10.990001 USD"},
            {Money(jpy, 7, 0, 9999), "7.9999 JPY"},
            {Money(kwd, 0, 999, 1), "0.9990001 KWD"},
            {Money(kwd, -1, 100), "-1.100 KWD"},
            {Money(clf, 1, 9999, 9999), "1.99999999 CLF"},
            {Money(usd, high, 99, 9999), "9223372036854775807.999999 USD"},
            {Money(usd, low, 99, 9999), "-9223372036854775808.999999 USD"}};
        for (const auto &[money, text] : made) {
            std::ostringstream out;
            out << money;
            QCOMPARE(out.str(), text);
            QCOMPARE(toMoney(money.code(), numira::toText(money)), money);
        }
        QVERIFY_THROWS_EXCEPTION(numira::InvalidAmount, Money(usd, 1, 100));
        QVERIFY_THROWS_EXCEPTION(numira::InvalidAmount, Money(usd, 1, 0, 10'000));
        QVERIFY_THROWS_EXCEPTION(numira::InvalidAmount, Money(jpy, 1, 1));
        QVERIFY_THROWS_EXCEPTION(numira::InvalidAmount, Money(kwd, 1, 1000));
        QVERIFY_THROWS_EXCEPTION(numira::InvalidAmount, Money(clf, 1, 10'000));
    }

    void equalityNeverAsksForARate()
    {
        QVERIFY(Money(usd, 1, 0) != Money(eur, 2, 0) && Money(usd) != Money(jpy));
        QVERIFY(Money(usd, 3, 0) == 3 && Money(usd, 3, 0, 1) != 3);
        QVERIFY(Money() == 0 && Money(usd) != Money());
        QVERIFY(compareExactly(Money(jpy, 9, 0), Money(usd, -1, 0)) < 0);
        QVERIFY(compareExactly(Money(usd, 5, 0), Money(usd, -1, 0)) > 0);
    }

    void rightOperandIsConverted()
    {
        QCOMPARE(Money(usd, 1, 0) + Money(eur, 4, 0), Money(usd, 2, 0));
        QCOMPARE(Money(eur, 1, 0) - Money(usd, 1, 0), Money(eur, -1, 0));
        // 3 EUR are 0.75 USD, yet 1 USD is 2 EUR.
        const Money dollar(usd, 1, 0);
        const Money euros(eur, 3, 0);
        QVERIFY(dollar > euros && dollar >= euros && !(dollar < euros) && !(dollar <= euros));
        QVERIFY(euros > dollar && euros >= dollar && !(euros < dollar) && !(euros <= dollar));
        QVERIFY(dollar <= Money(eur, 4, 0) && dollar >= Money(eur, 4, 0));
        const std::map<int, Money> amounts{{1, dollar}, {2, Money(eur, 8, 0)}};
        const auto amount = &std::map<int, Money>::value_type::second;
        QCOMPARE(numira::math::sum(usd, amounts, amount), Money(usd, 3, 0));
    }

    void withoutAUsableRateNothingChanges()
    {
        Money yen(jpy, 5, 0);
        QVERIFY_THROWS_EXCEPTION(numira::ConversionError, yen += Money(eur, 1, 0));
        QVERIFY_THROWS_EXCEPTION(numira::ConversionError, yen -= Money(usd, 1, 0));
        QVERIFY_THROWS_EXCEPTION(numira::ConversionError, (void)(yen < Money(usd)));
        for (const char *unusable : {"0", "inf", "nan"}) {
            const auto give = [&](const auto &, const auto &) { return FloatingPoint(unusable); };
            numira::setUpLibrary(give, "en_US", numira::ShouldAllowFallback::No);
            QVERIFY_THROWS_EXCEPTION(numira::ConversionError, yen += Money(usd, 1, 0));
        }
        numira::setUpLibrary({}, "en_US", numira::ShouldAllowFallback::No);
        QVERIFY_THROWS_EXCEPTION(numira::ConversionError, yen += Money(usd, 1, 0));
        QCOMPARE(yen, Money(jpy, 5, 0));
    }

    void overflowChangesNothing()
    {
        const Money largest = toMoney(eur, "170141183460469231731687303.715884105727");
        const Money dollars = toMoney(usd, "170141183460469231731687303");
        Money money = largest;
        QVERIFY_THROWS_EXCEPTION(numira::OverflowError, money += Money(eur, 0, 1));
        QVERIFY_THROWS_EXCEPTION(numira::OverflowError, money -= -largest);
        QVERIFY_THROWS_EXCEPTION(numira::OverflowError,
                                 (void)(-largest - toMoney(eur, "0.000000000001")));
        QVERIFY_THROWS_EXCEPTION(numira::OverflowError, money += dollars);
        QVERIFY_THROWS_EXCEPTION(numira::OverflowError, (void)(money * 1.000000001));
        QVERIFY_THROWS_EXCEPTION(numira::OverflowError, (void)money.rounded());
        QCOMPARE(money, largest);
        QCOMPARE(-money + money, Money(eur));
    }

    void emptyMoneyTakesTheFirstCurrency()
    {
        Money total;
        total += Money();
        QCOMPARE(total.code(), Currency());
        total -= Money(usd, 2, 50);
        total += Money();
        QCOMPARE(total, Money(usd, -2, 50));
        QVERIFY(total < Money() && Money() < Money(jpy, 1, 0) && !(Money() < Money(jpy)));
        QCOMPARE(Money().convertedTo(usd), Money());
    }

    void convertsExactlyAndRoundsOnce()
    {
        QCOMPARE(Money(kwd, 5, 0).convertedTo(kwd), Money(kwd, 5, 0));
        QCOMPARE(Money(jpy, 1, 0).convertedTo(usd), toMoney(usd, "0.333333333333"));
        QCOMPARE(Money(jpy, 3'000'000'000'000, 0).convertedTo(usd),
                 Money(usd, 1'000'000'000'000, 0));
        const std::map<std::string, std::string> ties{{"0.000000000002", "0"},
                                                      {"0.000000000006", "0.000000000002"},
                                                      {"-0.00000000001", "-0.000000000002"},
                                                      {"-0.000000000014", "-0.000000000004"}};
        for (const auto &[euros, dollars] : ties)
            QCOMPARE(toMoney(eur, euros).convertedTo(usd), toMoney(usd, dollars));
    }

    void roundsToItsCurrency()
    {
        QCOMPARE(3.0 * Money(usd, 19, 99) * 0.1, toMoney(usd, "5.997"));
        QCOMPARE(toMoney(usd, "2.345").rounded(), Money(usd, 2, 34));
        QCOMPARE(toMoney(jpy, "-1.5").rounded(), Money(jpy, -2, 0));
        const Money::Rounder rounder = numira::rounders::currency_even;
        QCOMPARE(toMoney(kwd, "0.0005").round(rounder, numira::minorUnitDigits(kwd)), Money(kwd));
    }

    void localTextHasEveryDigit()
    {
        const auto text = [](const char *currency, const char *amount) {
            return QString::fromStdString(
                numira::toLocalText(toMoney(numira::toCurrency(currency), amount)));
        };
        QCOMPARE(text("USD", "-1234.5"), u"-$1,234.50"_qs);
        QCOMPARE(text("JPY", "1234"), u"¥1,234"_qs);
        QCOMPARE(text("USD", "12345678901234567890.123456789012"),
                 u"$12,345,678,901,234,567,890.123456789012"_qs);
        QCOMPARE(text("ALL", "3"), u"ALL\u00A03.00"_qs);
        QCOMPARE(text("XXX", "1.5"), u"1.5"_qs);
        const auto withCode = [] {
            return QString::fromStdString(numira::toLocalTextWithCode(Money(usd, 1234, 50)));
        };
        QCOMPARE(withCode(), u"USD\u00A01,234.50"_qs);
        numira::setLocale("de_DE.UTF-8", numira::ShouldAllowFallback::No);
        QCOMPARE(text("USD", "1234.5"), u"1.234,50\u00A0$"_qs);
        QCOMPARE(withCode(), u"1.234,50\u00A0USD"_qs);
        QCOMPARE(numira::toLocalText(numira::Decimal::fromText("1234.25")), std::string("1234,25"));
        QCOMPARE(Money(eur, 1, 0).convertedTo(usd), Money(usd, 0, 25)); // the converter stays
    }

    void localTextIsReadWhenItHasOneMeaning_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("plain");
        const auto row = [](const char *name, const char *locale, const char16_t *text,
                            const char *plain) {
            QTest::newRow(name) << QString::fromLatin1(locale) << QString::fromUtf16(text)
                                << QString::fromLatin1(plain);
        };
        row("groups and decimals", "de_DE", u"-1.234.567,50", "-1234567.50");
        row("decimals alone", "de_DE", u"1234,5", "1234.5");
        row("a short first group", "en_US", u"12,345.60", "12345.60");
        row("a typewriter's apostrophe", "de_CH", u"1'234.50", "1234.50");
        row("a typewriter's blank", "fr_FR", u"1 234,50", "1234.50");
        row("a true minus", "sv_SE", u"\u22121,5", "-1.5");
        row("groups alone", "de_DE", u"1.234", "");
        row("a torn group", "de_DE", u"1.23,50", "");
        row("digits before whole groups", "de_DE", u"1234.567,50", "");
        row("another country's", "de_DE", u"1,234.50", "");
        row("no digits behind", "de_DE", u"12,", "");
        row("no digits before", "de_DE", u",50", "");
        row("a currency", "de_DE", u"12,50 EUR", "");
    }

    void localTextIsReadWhenItHasOneMeaning()
    {
        QFETCH(const QString, locale);
        QFETCH(const QString, text);
        QFETCH(const QString, plain);
        numira::setLocale(locale.toStdString(), numira::ShouldAllowFallback::No);
        QCOMPARE(numira::fromLocalText(text.toStdString()).value_or(std::string()),
                 plain.toStdString());
    }
};

static const kiv::test::Suite<tst_Money> suite;
#include "tst_money.moc"

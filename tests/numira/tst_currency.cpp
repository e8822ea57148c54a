// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

#include "numira/currency.h"
#include "numira/error.h"
#include "numira/library.h"

#include <map>

using numira::Currency;

class tst_Currency : public QObject {
    Q_OBJECT

private slots:
    void init() { numira::setUpLibrary({}, "en_US", numira::ShouldAllowFallback::No); }
    void minorUnitsAreThoseOfTheStandard();
    void bothCodesNameTheSameCurrency();
    void unknownCodesAreRefused();
    void activeCurrenciesAreThoseThatPeopleArePaidIn();
    void symbolsFollowTheLocale();
    void localeIsFoundOrReplaced_data();
    void localeIsFoundOrReplaced();
    void unknownLocaleInstallsNothing();
};

void tst_Currency::minorUnitsAreThoseOfTheStandard()
{
    // All that ISO 4217's list one (2023) gives anything but 2; "not applicable" is 0.
    const std::map<unsigned, std::string> others{
        {0, "BIF CLP DJF GNF ISK JPY KMF KRW PYG RWF UGX UYI VND VUV XAF XOF XPF "
            "XAG XAU XBA XBB XBC XBD XDR XPD XPT XSU XTS XUA XXX"},
        {3, "BHD IQD JOD KWD LYD OMR TND"},
        {4, "CLF UYW"}};
    std::map<std::string, unsigned> expected;
    for (const auto &[digits, codes] : others) {
        for (std::size_t at = 0; at < codes.size(); at += 4)
            expected[codes.substr(at, 3)] = digits;
    }
    std::size_t found = 0;
    for (std::uint16_t number = 0; number < 1000; ++number) {
        std::optional<Currency> currency;
        try {
            currency = Currency(number);
        } catch (const numira::UnknownCurrency &) {
            continue;
        }
        const auto other = expected.find(numira::toStdString(*currency));
        found += other != expected.end() ? 1 : 0;
        QVERIFY2(numira::minorUnitDigits(*currency) ==
                     (other != expected.end() ? other->second : 2),
                 numira::toStdString(*currency).c_str());
    }
    QCOMPARE(found, expected.size());
}

void tst_Currency::bothCodesNameTheSameCurrency()
{
    QCOMPARE(numira::toStdString(Currency(840)), std::string("USD"));
    QCOMPARE(numira::toCurrency("EUR").numericCode(), std::uint16_t{978});
    QCOMPARE(numira::toCurrency("XXX"), Currency());
    QCOMPARE(Currency(999), Currency());
    for (const Currency &currency : numira::activeCurrencies()) {
        QCOMPARE(numira::toCurrency(numira::toStdString(currency)), currency);
        QCOMPARE(Currency(currency.numericCode()).code(), currency.code());
    }
    QVERIFY(Currency(392) < Currency(840));
}

void tst_Currency::unknownCodesAreRefused()
{
    // The last two are withdrawn: German marks and Turkish lira until 2005.
    for (const char *code : {"", "usd", "US", "USDD", "USD ", "$", "ZZZ", "US\xC3", "DEM", "TRL"})
        QVERIFY_EXCEPTION_THROWN((void)numira::toCurrency(code), numira::UnknownCurrency);
    for (const int number : {0, 1, 276, 792, 1000, 65535})
        QVERIFY_EXCEPTION_THROWN(Currency{static_cast<std::uint16_t>(number)},
                                 numira::UnknownCurrency);
}

void tst_Currency::activeCurrenciesAreThoseThatPeopleArePaidIn()
{
    const auto &active = numira::activeCurrencies();
    for (const char *code : {"USD", "EUR", "JPY", "ALL", "ZMW"})
        QVERIFY2(active.contains(numira::toCurrency(code)), code);
    // Known, since a budget may be kept in them, but not offered: the last one
    // is no longer used although the standard still lists it.
    for (const char *code : {"XXX", "XAU", "XTS", "CLF", "SVC"})
        QVERIFY2(!active.contains(numira::toCurrency(code)), code);
}

void tst_Currency::symbolsFollowTheLocale()
{
    const auto symbol = [](const char *code) {
        return numira::currencySymbol(numira::toCurrency(code)).value_or("none");
    };
    QCOMPARE(symbol("USD"), std::string("$"));
    QCOMPARE(symbol("CAD"), std::string("CA$"));
    QCOMPARE(symbol("PLN"), std::string("none"));
    QCOMPARE(symbol("XXX"), std::string("none"));
    numira::setUpLibrary({}, "pl_PL", numira::ShouldAllowFallback::No);
    QCOMPARE(symbol("PLN"), std::string("zł"));
    QCOMPARE(numira::currencyName(Currency(840)), std::string("US Dollar"));
}

void tst_Currency::localeIsFoundOrReplaced_data()
{
    QTest::addColumn<QByteArray>("asked");
    QTest::addColumn<bool>("isKnown");
    QTest::addColumn<QByteArray>("used");
    QTest::newRow("known") << QByteArray("de_AT") << true << QByteArray("de_AT");
    QTest::newRow("POSIX name") << QByteArray("fr_FR.UTF-8") << true << QByteArray("fr_FR");
    QTest::newRow("older name") << QByteArray("zh_CN") << true << QByteArray("zh_CN");
    QTest::newRow("unknown region") << QByteArray("de_QQ") << false << QByteArray("de");
    QTest::newRow("unknown language") << QByteArray("qq_DE") << false << QByteArray("en_US");
    QTest::newRow("C") << QByteArray("C") << false << QByteArray("en_US");
    QTest::newRow("nothing") << QByteArray("") << false << QByteArray("en_US");
    QTest::newRow("far too long") << QByteArray(5000, 'x') << false << QByteArray("en_US");
}

void tst_Currency::localeIsFoundOrReplaced()
{
    QFETCH(QByteArray, asked);
    QFETCH(bool, isKnown);
    QFETCH(QByteArray, used);
    numira::setUpLibrary({}, asked.toStdString(), numira::ShouldAllowFallback::Yes);
    QCOMPARE(numira::libraryLocale(), used.toStdString());
    if (!isKnown)
        QVERIFY_EXCEPTION_THROWN(
            numira::setUpLibrary({}, asked.toStdString(), numira::ShouldAllowFallback::No),
            numira::Error);
}

void tst_Currency::unknownLocaleInstallsNothing()
{
    const auto doubling = [](const Currency &, const Currency &) {
        return numira::FloatingPoint(2);
    };
    numira::setUpLibrary(doubling, "de_DE", numira::ShouldAllowFallback::No);
    QVERIFY_EXCEPTION_THROWN(numira::setUpLibrary({}, "qq", numira::ShouldAllowFallback::No),
                             numira::Error);
    QCOMPARE(numira::libraryLocale(), std::string("de_DE"));
    QVERIFY(numira::conversionRate(Currency(840), Currency(978)) == 2);
    QVERIFY(numira::conversionRate(Currency(840), Currency(840)) == 1);
}

QTEST_APPLESS_MAIN(tst_Currency)
#include "tst_currency.moc"

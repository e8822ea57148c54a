// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

#include "numira/currency.h"
#include "numira/error.h"
#include "numira/library.h"

#include <map>

using numira::Currency;
using numira::setUpLibrary;
using numira::toCurrency;

namespace {

constexpr auto strict = numira::ShouldAllowFallback::No;

} // namespace

class tst_Currency : public QObject {
    Q_OBJECT

private slots:
    void init() { setUpLibrary({}, "en_US", strict); }

    void minorUnitsAreThoseOfTheStandard()
    {
        // All that ISO 4217's list one (2023) gives anything but 2; "not applicable" is 0.
        const std::map<unsigned, std::string> others{
            {0, "BIF CLP DJF GNF ISK JPY KMF KRW PYG RWF UGX UYI VND VUV XAF XOF XPF "
                "XAG XAU XBA XBB XBC XBD XDR XPD XPT XSU XTS XUA XXX"},
            {3, "BHD IQD JOD KWD LYD OMR TND"},
            {4, "CLF UYW"}};
        std::map<std::string, unsigned> expected;
        for (const Currency &currency : numira::activeCurrencies())
            expected[numira::toStdString(currency)] = 2;
        QVERIFY(expected.size() > 150);
        for (const auto &[digits, codes] : others) {
            for (std::size_t at = 0; at < codes.size(); at += 4)
                expected[codes.substr(at, 3)] = digits;
        }
        for (const auto &[code, digits] : expected)
            QVERIFY2(numira::minorUnitDigits(toCurrency(code)) == digits, code.c_str());
    }

    void bothCodesNameTheSameCurrency()
    {
        QCOMPARE(numira::toStdString(Currency(840)), "USD");
        QCOMPARE(toCurrency("XXX"), Currency());
        QCOMPARE(Currency(999), Currency());
        for (const Currency &currency : numira::activeCurrencies()) {
            QCOMPARE(toCurrency(numira::toStdString(currency)), currency);
            QCOMPARE(Currency(currency.numericCode()).code(), currency.code());
        }
        // The last two are withdrawn: German marks and Turkish lira until 2005.
        for (const char *code :
             {"", "usd", "US", "USDD", "USD ", "$", "ZZZ", "US\xC3", "DEM", "TRL"})
            QVERIFY_THROWS_EXCEPTION(numira::UnknownCurrency, (void)toCurrency(code));
        for (const int number : {0, 1, 276, 792, 1000, 65535})
            QVERIFY_THROWS_EXCEPTION(numira::UnknownCurrency,
                                     Currency{static_cast<std::uint16_t>(number)});
    }

    void onlyWhatPeopleArePaidInIsActive()
    {
        // Known, since a budget may be kept in them, but not offered.
        for (const char *code : {"XXX", "XAU", "XTS", "CLF", "SVC"})
            QVERIFY2(!numira::activeCurrencies().contains(toCurrency(code)), code);
    }

    void symbolsFollowTheLocale()
    {
        const auto symbol = [](const char *code) {
            return numira::currencySymbol(toCurrency(code)).value_or("none");
        };
        QCOMPARE(symbol("USD"), "$");
        QCOMPARE(symbol("CAD"), "CA$");
        QCOMPARE(symbol("PLN"), "none");
        QCOMPARE(symbol("XXX"), "none");
        setUpLibrary({}, "pl_PL", strict);
        QCOMPARE(symbol("PLN"), "zł");
        QCOMPARE(numira::currencyName(Currency(840)), "US Dollar");
    }

    void localeIsFoundOrReplaced()
    {
        const std::map<std::string, std::string> known{
            {"de_AT", "de_AT"}, {"fr_FR.UTF-8", "fr_FR"}, {"zh_CN", "zh_CN"}};
        for (const auto &[asked, used] : known) {
            setUpLibrary({}, asked, strict);
            QCOMPARE(numira::libraryLocale(), used);
        }
        const std::map<std::string, std::string> unknown{{"de_QQ", "de"},
                                                         {"qq_DE", "en_US"},
                                                         {"C", "en_US"},
                                                         {"", "en_US"},
                                                         {std::string(5000, 'x'), "en_US"}};
        for (const auto &[asked, used] : unknown) {
            setUpLibrary([](auto &, auto &) { return numira::FloatingPoint(2); }, "it_IT", strict);
            QVERIFY_THROWS_EXCEPTION(numira::Error, setUpLibrary({}, asked, strict));
            QCOMPARE(numira::libraryLocale(), "it_IT");
            QVERIFY(numira::conversionRate(Currency(840), Currency(978)) == 2);
            QVERIFY(numira::conversionRate(Currency(840), Currency(840)) == 1);
            setUpLibrary({}, asked, numira::ShouldAllowFallback::Yes);
            QCOMPARE(numira::libraryLocale(), used);
        }
    }
};

QTEST_APPLESS_MAIN(tst_Currency)
#include "tst_currency.moc"

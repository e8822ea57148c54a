// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/suite.h"

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

    void everyCurrencyOfTheStandardHasItsCodesAndDigits()
    {
        // ISO 4217's list one as published on 2024-06-25: all codes with their
        // numbers, by minor-unit digits; "not applicable" is 0.
        const std::map<unsigned, const char *> listed{
            {0, "BIF108 CLP152 DJF262 GNF324 ISK352 JPY392 KMF174 KRW410 PYG600 RWF646 UGX800 "
                "UYI940 VND704 VUV548 XAF950 XAG961 XAU959 XBA955 XBB956 XBC957 XBD958 XDR960 "
                "XOF952 XPD964 XPF953 XPT962 XSU994 XTS963 XUA965 XXX999"},
            {2, "AED784 AFN971 ALL008 AMD051 ANG532 AOA973 ARS032 AUD036 AWG533 AZN944 BAM977 "
                "BBD052 BDT050 BGN975 BMD060 BND096 BOB068 BOV984 BRL986 BSD044 BTN064 BWP072 "
                "BYN933 BZD084 CAD124 CDF976 CHE947 CHF756 CHW948 CNY156 COP170 COU970 CRC188 "
                "CUC931 CUP192 CVE132 CZK203 DKK208 DOP214 DZD012 EGP818 ERN232 ETB230 EUR978 "
                "FJD242 FKP238 GBP826 GEL981 GHS936 GIP292 GMD270 GTQ320 GYD328 HKD344 HNL340 "
                "HTG332 HUF348 IDR360 ILS376 INR356 IRR364 JMD388 KES404 KGS417 KHR116 KPW408 "
                "KYD136 KZT398 LAK418 LBP422 LKR144 LRD430 LSL426 MAD504 MDL498 MGA969 MKD807 "
                "MMK104 MNT496 MOP446 MRU929 MUR480 MVR462 MWK454 MXN484 MXV979 MYR458 MZN943 "
                "NAD516 NGN566 NIO558 NOK578 NPR524 NZD554 PAB590 PEN604 PGK598 PHP608 PKR586 "
                "PLN985 QAR634 RON946 RSD941 RUB643 SAR682 SBD090 SCR690 SDG938 SEK752 SGD702 "
                "SHP654 SLE925 SOS706 SRD968 SSP728 STN930 SVC222 SYP760 SZL748 THB764 TJS972 "
                "TMT934 TOP776 TRY949 TTD780 TWD901 TZS834 UAH980 USD840 USN997 UYU858 UZS860 "
                "VED926 VES928 WST882 XCD951 YER886 ZAR710 ZMW967 ZWG924"},
            {3, "BHD048 IQD368 JOD400 KWD414 LYD434 OMR512 TND788"},
            {4, "CLF990 UYW927"}};
        std::size_t count = 0;
        std::string wrong;
        for (const auto &[digits, codes] : listed) {
            for (const QByteArray &entry : QByteArray(codes).split(' ')) {
                try {
                    const Currency currency = toCurrency(entry.first(3).toStdString());
                    if (currency.numericCode() != entry.sliced(3).toUInt() ||
                        numira::minorUnitDigits(currency) != digits)
                        wrong += entry.toStdString() + ' ';
                } catch (const numira::UnknownCurrency &) {
                    wrong += "no " + entry.toStdString() + ' ';
                }
                ++count;
            }
        }
        QVERIFY2(wrong.empty(), wrong.c_str());
        QCOMPARE(count, 179U);
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

static const kiv::test::Suite<tst_Currency> suite;
#include "tst_currency.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "conversion/conversion_map.h"
#include "conversion/errors.h"

#include <rapidcheck.h>

using kiv::conversion::ConversionError;
using kiv::conversion::ConversionMap;
using numira::Currency;
using numira::FloatingPoint;
using namespace Qt::StringLiterals;

namespace {

const Currency usd(840);
const Currency eur(978);
const Currency jpy(392);
const Currency gbp(826);
const QDateTime noon(QDate(2026, 3, 31), QTime(12, 0), Qt::UTC);

} // namespace

class tst_ConversionMap : public QObject {
    Q_OBJECT

private slots:
    void refusesWhatIsNoTable()
    {
        for (const char *rate : {"1e-12", "1", "1e12"})
            QCOMPARE(ConversionMap(usd, noon, {{eur, FloatingPoint(rate)}}).rates().size(), 1U);
        for (const char *rate : {"9.99e-13", "1.0000001e12", "0", "-0.92", "nan", "inf"}) {
            QVERIFY_THROWS_EXCEPTION(ConversionError,
                                     ConversionMap(usd, noon, {{eur, FloatingPoint(rate)}}));
        }
        QVERIFY_THROWS_EXCEPTION(ConversionError, ConversionMap(Currency(), noon, {{eur, 1}}));
        QVERIFY_THROWS_EXCEPTION(ConversionError, ConversionMap(usd, QDateTime(), {{eur, 1}}));
        QVERIFY_THROWS_EXCEPTION(ConversionError, ConversionMap(usd, noon, {{usd, 2}}));
        QCOMPARE(ConversionMap(usd, noon, {{usd, 1}}).rates().size(), 1U);
    }

    void expiresAfterADay()
    {
        constexpr qint64 day = 24LL * 60 * 60 * 1000;
        // The same moment, told in another time zone.
        const ConversionMap map(usd, noon.toOffsetFromUtc(9 * 3600), {{eur, 1}});
        for (const qint64 age : {qint64{0}, day, -day})
            QVERIFY(!map.isExpired(noon.addMSecs(age)));
        for (const qint64 age : {day + 1, -day - 1})
            QVERIFY(map.isExpired(noon.addMSecs(age)));
        QVERIFY(ConversionMap().isExpired(noon));
        QVERIFY(ConversionMap(usd, noon, {}).isExpired(noon));
    }

    void convertsThroughTheBase()
    {
        const ConversionMap map(usd, noon, {{eur, FloatingPoint("0.5")}, {jpy, 150}});
        QVERIFY(map.rate(usd, eur) == FloatingPoint("0.5") && map.rate(eur, usd) == 2);
        QVERIFY(map.rate(eur, jpy) == 300 && map.rate(gbp, gbp) == 1);
        try {
            (void)map.rate(jpy, gbp);
            QFAIL("There is no rate of GBP.");
        } catch (const ConversionError &error) {
            QCOMPARE(
                error.message(),
                u"There is no exchange rate from 'JPY' to 'GBP'; fetch the rates, or set it by hand."_s);
        }
        QVERIFY_THROWS_EXCEPTION(ConversionError, (void)ConversionMap().rate(usd, eur));
    }

    void ratesAreLaidOverEachOther()
    {
        using enum kiv::conversion::RateSource;
        const QDateTime later = noon.addDays(1);
        const ConversionMap known(usd, noon, {{usd, 1}, {eur, FloatingPoint("0.5")}, {jpy, 150}});
        // What was typed leaves the time of the fetch.
        QCOMPARE(known.updatedWith({usd, later, {{eur, 2}}, Typed}),
                 ConversionMap(usd, noon, {{usd, 1}, {eur, 2}, {jpy, 150}},
                               ConversionMap::Origins{{eur, {Typed, later.date()}}}));
        const ConversionMap typed(eur, noon, {{usd, 2}, {gbp, 4}}, Typed);
        QCOMPARE(typed.updatedWith(known),
                 ConversionMap(usd, noon,
                               {{usd, 1}, {eur, FloatingPoint("0.5")}, {jpy, 150}, {gbp, 2}},
                               ConversionMap::Origins{{gbp, {Typed, noon.date()}}}));
        // Another base that only the known rates lead to.
        QCOMPARE(typed.updatedWith({usd, later, {{jpy, 150}}}),
                 ConversionMap(usd, later, {{jpy, 150}, {eur, FloatingPoint("0.5")}, {gbp, 2}},
                               ConversionMap::Origins{{eur, {Typed, noon.date()}},
                                                      {gbp, {Typed, noon.date()}}}));
        QVERIFY_THROWS_EXCEPTION(ConversionError,
                                 (void)typed.updatedWith({jpy, later, {{Currency(756), 1}}}));
        QCOMPARE(typed.updatedWith({}), typed);
    }

    void aRateAndItsInverseGiveOne()
    {
        const auto anyRate = [] {
            return FloatingPoint(*rc::gen::inRange(1, 1'000'000'000)) *
                   pow(FloatingPoint(10), *rc::gen::inRange(-12, 3));
        };
        QVERIFY(rc::check([&] {
            const ConversionMap map(usd, noon, {{eur, anyRate()}, {jpy, anyRate()}});
            for (const auto &[from, to] : {std::pair(usd, eur), {usd, jpy}, {eur, jpy}}) {
                const FloatingPoint product = map.rate(from, to) * map.rate(to, from);
                RC_ASSERT(abs(product - 1) <= FloatingPoint("1e-15"));
            }
        }));
    }

    void printsOnOneLine()
    {
        QString text;
        QDebug(&text) << ConversionMap(usd, noon, {{eur, FloatingPoint("0.92")}, {jpy, 150}})
                      << ConversionMap();
        QCOMPARE(text.trimmed(), u"USD at 2026-03-31T12:00:00Z (JPY 150, EUR 0.92) no rates"_s);
    }
};

static const kiv::test::Suite<tst_ConversionMap> suite;
#include "tst_conversion_map.moc"

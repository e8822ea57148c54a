// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

#include "conversion/conversion_map.h"
#include "conversion/errors.h"

#include <rapidcheck.h>

using kiv::conversion::ConversionError;
using kiv::conversion::ConversionMap;
using numira::Currency;
using numira::FloatingPoint;

namespace {

const Currency usd(840);
const Currency eur(978);
const Currency jpy(392);
const QDateTime noon(QDate(2026, 3, 31), QTime(12, 0), Qt::UTC);

} // namespace

class tst_ConversionMap : public QObject {
    Q_OBJECT

private slots:
    void refusesWhatIsNoRate_data()
    {
        QTest::addColumn<QString>("rate");
        QTest::addColumn<bool>("isAccepted");
        QTest::newRow("smallest") << "1e-12" << true;
        QTest::newRow("below") << "9.99e-13" << false;
        QTest::newRow("largest") << "1e12" << true;
        QTest::newRow("above") << "1.0000001e12" << false;
        QTest::newRow("zero") << "0" << false;
        QTest::newRow("negative") << "-0.92" << false;
        QTest::newRow("not a number") << "nan" << false;
        QTest::newRow("infinite") << "inf" << false;
    }

    void refusesWhatIsNoRate()
    {
        QFETCH(const QString, rate);
        QFETCH(const bool, isAccepted);
        bool wasAccepted = true;
        try {
            const ConversionMap map(usd, noon, {{eur, FloatingPoint(rate.toStdString())}});
        } catch (const ConversionError &error) {
            wasAccepted = false;
            QVERIFY(error.message().contains(QStringLiteral("'EUR'")));
        }
        QCOMPARE(wasAccepted, isAccepted);
    }

    void refusesATableWithoutBaseOrTime()
    {
        QVERIFY_EXCEPTION_THROWN(ConversionMap(Currency(), noon, {{eur, 1}}), ConversionError);
        QVERIFY_EXCEPTION_THROWN(ConversionMap(usd, QDateTime(), {{eur, 1}}), ConversionError);
        QVERIFY_EXCEPTION_THROWN(ConversionMap(usd, noon, {{usd, 2}}), ConversionError);
        QCOMPARE(ConversionMap(usd, noon, {{usd, 1}}).rates().size(), 1U);
    }

    void expiresAfterADay_data()
    {
        QTest::addColumn<qint64>("ageMs");
        QTest::addColumn<bool>("isExpired");
        constexpr qint64 day = 24LL * 60 * 60 * 1000;
        QTest::newRow("new") << qint64{0} << false;
        QTest::newRow("a day old") << day << false;
        QTest::newRow("older") << day + 1 << true;
        QTest::newRow("a day ahead") << -day << false;
        QTest::newRow("further ahead") << -day - 1 << true;
    }

    void expiresAfterADay()
    {
        QFETCH(const qint64, ageMs);
        QFETCH(const bool, isExpired);
        // The same moment, told in another time zone.
        const QDateTime fetchedAt = noon.toOffsetFromUtc(9 * 3600);
        const ConversionMap map(usd, fetchedAt, {{eur, 1}});
        QCOMPARE(map.isExpired(noon.addMSecs(ageMs)), isExpired);
        QVERIFY(ConversionMap().isExpired(noon));
        QVERIFY(ConversionMap(usd, noon, {}).isExpired(noon));
    }

    void convertsThroughTheBase()
    {
        const ConversionMap map(usd, noon, {{eur, FloatingPoint("0.5")}, {jpy, 150}});
        QVERIFY(map.rate(usd, eur) == FloatingPoint("0.5"));
        QVERIFY(map.rate(eur, usd) == 2);
        QVERIFY(map.rate(eur, jpy) == 300);
        QVERIFY(map.rate(Currency(826), Currency(826)) == 1);
        try {
            (void)map.rate(jpy, Currency(826));
            QFAIL("There is no rate of GBP.");
        } catch (const ConversionError &error) {
            QCOMPARE(error.message(),
                     QStringLiteral("There is no exchange rate from 'JPY' to 'GBP'."));
        }
        QVERIFY_EXCEPTION_THROWN((void)ConversionMap().rate(usd, eur), ConversionError);
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
        QCOMPARE(text.trimmed(),
                 QStringLiteral("USD at 2026-03-31T12:00:00Z (JPY 150, EUR 0.92) no rates"));
    }
};

QTEST_APPLESS_MAIN(tst_ConversionMap)
#include "tst_conversion_map.moc"

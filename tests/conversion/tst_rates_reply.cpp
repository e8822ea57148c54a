// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

#include "conversion/internal/rates_reply.h"

#include "foundation/error.h"
#include "support/json_text.h"

#include <QtCore/QRandomGenerator>

using kiv::conversion::ConversionMap;
using kiv::conversion::internal::readRates;
using kiv::networking::Response;

namespace {

Response reply(const QByteArray &text)
{
    return Response::succeeded(jsonText(text), QStringLiteral("application/json"));
}

const QByteArray sample = "{'disclaimer': 'Ask', 'timestamp': 1772366400, 'base': 'USD',"
                          " 'rates': {'EUR': 0.92, 'GBP': 0.79, 'JPY': 150.123456}}";

/// The sample with some bytes replaced, moved or removed, and now and then a
/// number or code out of the ordinary in place of one of its own.
QByteArray damaged(QRandomGenerator &random)
{
    static const QByteArrayList oddities{
        "-1",  "0",   "1e300", "1e-300", "1e999", "null", "true", "'x'",
        "[1]", "BTC", "XXX",   "eur",    "EUR",   "",     "NaN",  "0.92e0",
    };
    QByteArray text = sample;
    const auto at = [&] { return random.bounded(int(text.size())); };
    for (int edits = random.bounded(1, 4); edits > 0 && text.size() > 8; --edits) {
        switch (random.bounded(4)) {
        case 0:
            text[at()] = char(random.bounded(256));
            break;
        case 1:
            text.remove(at(), random.bounded(1, 8));
            break;
        case 2:
            text.insert(at(), text.mid(at(), random.bounded(40)));
            break;
        default:
            static const QByteArrayList own{"0.92", "EUR", "1772366400", "USD", "150.123456"};
            text.replace(own.at(random.bounded(int(own.size()))),
                         oddities.at(random.bounded(int(oddities.size()))));
        }
    }
    return text;
}

} // namespace

class tst_RatesReply : public QObject {
    Q_OBJECT

private slots:
    void readsATable()
    {
        const ConversionMap expected(
            numira::Currency(840), QDateTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC),
            {{numira::Currency(978), numira::FloatingPoint("0.92")},
             {numira::Currency(826), numira::FloatingPoint("0.79")},
             {numira::Currency(392), numira::FloatingPoint("150.123456")}});
        QCOMPARE(readRates(reply(sample)), expected);
    }

    void refusesTheWholeReply_data()
    {
        QTest::addColumn<QByteArray>("from");
        QTest::addColumn<QByteArray>("to");
        const auto row = [](const char *name, const QByteArray &from, const QByteArray &to) {
            QTest::newRow(name) << from << to;
        };
        row("no base", "'base'", "'bass'");
        row("base is a number", "'USD'", "840");
        row("unknown base", "USD", "ZZZ");
        row("no currency as base", "USD", "XXX");
        row("no time", "'timestamp'", "'time'");
        row("time is a text", "1772366400", "'1772366400'");
        row("time zero", "1772366400", "0");
        row("time before 1970", "1772366400", "-1772366400");
        row("time with a fraction", "1772366400", "1772366400.5");
        row("time after the year 9999", "1772366400", "253402300800");
        row("absurd time", "1772366400", "1e300");
        row("no rates", "'rates'", "'rate'");
        row("rates in a list", "{'EUR': 0.92, 'GBP': 0.79, 'JPY': 150.123456}", "[0.92]");
        row("negative rate", "0.92", "-0.92");
        row("rate of zero", "0.92", "0");
        row("rate beyond reason", "0.92", "1e300");
        row("rate beyond doubles", "0.92", "1e999");
        row("vanishing rate", "0.92", "1e-300");
        row("rate as text", "0.92", "'0.92'");
        row("no rate", "0.92", "null");
        row("duplicate code", "'GBP'", "'EUR'");
        row("unknown code", "EUR", "BTC");
        row("code in lower case", "EUR", "eur");
        row("no currency", "EUR", "XXX");
        row("code with a blank", "EUR", "EUR ");
        row("rate of the base is not one", "EUR", "USD");
        row("truncated", "150.123456}}", "150.1");
    }

    void refusesTheWholeReply()
    {
        QFETCH(const QByteArray, from);
        QFETCH(const QByteArray, to);
        const QByteArray changed = QByteArray(sample).replace(from, to);
        QVERIFY(changed != sample);
        QVERIFY_EXCEPTION_THROWN((void)readRates(reply(changed)), kiv::foundation::Error);
    }

    void randomRepliesAreReadOrRefused()
    {
        const int runs = qEnvironmentVariableIntValue("KIV_RANDOM_RUNS");
        QRandomGenerator random(20260331);
        int read = 0;
        int refused = 0;
        for (int run = 0; run < (runs > 0 ? runs : 20'000); ++run) {
            const QByteArray text = damaged(random);
            try {
                const ConversionMap map = readRates(reply(text));
                ++read;
                // Whatever is read keeps the table's promises.
                QVERIFY2(map.fetchedAt().isValid() && map.base() != numira::Currency(), text);
                for (const auto &[currency, rate] : map.rates())
                    QVERIFY2(rate > 0 && rate <= 1'000'000'000'000, text);
            } catch (const kiv::foundation::Error &) {
                ++refused;
            }
        }
        // Both ways are taken, or the replies are no test.
        QVERIFY(read > refused / 50 && refused > read / 50);
    }
};

QTEST_APPLESS_MAIN(tst_RatesReply)
#include "tst_rates_reply.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "conversion/internal/rates_reply.h"

#include "foundation/error.h"
#include "support/damage.h"
#include "support/json_text.h"

using kiv::conversion::ConversionMap;
using kiv::conversion::internal::readRates;
using numira::Currency;
using numira::FloatingPoint;

namespace {

ConversionMap readTable(const QByteArray &text)
{
    return readRates(
        kiv::networking::Response::succeeded(jsonText(text), QStringLiteral("application/json")));
}

const QByteArray sample = "{'disclaimer': 'Ask', 'timestamp': 1772366400, 'base': 'USD',"
                          " 'rates': {'EUR': 0.92, 'GBP': 0.79, 'JPY': 150.123456}}";

} // namespace

class tst_RatesReply : public QObject {
    Q_OBJECT

private slots:
    void readsATable()
    {
        const QDateTime time(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
        QCOMPARE(readTable(sample), ConversionMap(Currency(840), time,
                                                  {{Currency(978), FloatingPoint("0.92")},
                                                   {Currency(826), FloatingPoint("0.79")},
                                                   {Currency(392), FloatingPoint("150.123456")}}));
    }

    void refusesTheWholeReply()
    {
        // What is in the sample, and what takes its place.
        for (const char *fault : {"'base'|'bass'",
                                  "'USD'|840",
                                  "USD|ZZZ",
                                  "USD|XXX",
                                  "'timestamp'|'time'",
                                  "1772366400|'1772366400'",
                                  "1772366400|0",
                                  "1772366400|-1772366400",
                                  "1772366400|1772366400.5",
                                  "1772366400|253402300800",
                                  "1772366400|1e300",
                                  "'rates'|'rate'",
                                  "{'EUR': 0.92, 'GBP': 0.79, 'JPY': 150.123456}|[0.92]",
                                  "0.92|-0.92",
                                  "0.92|0",
                                  "0.92|1e300",
                                  "0.92|1e999",
                                  "0.92|1e-300",
                                  "0.92|'0.92'",
                                  "0.92|null",
                                  "'GBP'|'EUR'",
                                  "EUR|BTC",
                                  "EUR|eur",
                                  "EUR|XXX",
                                  "EUR|EUR ",
                                  "EUR|USD"}) {
            const QByteArrayList edit = QByteArray(fault).split('|');
            try {
                (void)readTable(QByteArray(sample).replace(edit.front(), edit.back()));
                QFAIL(fault);
            } catch (const kiv::foundation::Error &) {
            }
        }
    }

    void randomRepliesAreReadOrRefused()
    {
        const QByteArrayList own{"0.92", "EUR", "1772366400", "USD", "150.123456"};
        const QByteArrayList odd{"-1",  "0",   "1e300", "1e-300", "1e999", "null", "true", "'x'",
                                 "[1]", "BTC", "XXX",   "eur",    "EUR",   "",     "NaN",  "9e0"};
        QRandomGenerator random(20260331);
        int read = 0;
        int refused = 0;
        const int runs = randomRuns(20'000);
        for (int run = 0; run < runs; ++run) {
            const QByteArray text = damaged(sample, own, odd, random);
            try {
                const ConversionMap map = readTable(text);
                ++read;
                // Whatever is read keeps the table's promises.
                QVERIFY2(map.fetchedAt().isValid() && map.base() != Currency(), text);
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

static const kiv::test::Suite<tst_RatesReply> suite;
#include "tst_rates_reply.moc"

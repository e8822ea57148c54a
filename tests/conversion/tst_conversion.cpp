// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "conversion/conversion_map.h"
#include "conversion/currency_converter.h"
#include "conversion/errors.h"
#include "conversion/internal/rates_reply.h"
#include "conversion/open_exchange_rates_source.h"

#include "networking/request_manager.h"

#include "support/json_text.h"
#include "support/message_log.h"
#include "support/scripted_sender.h"

using namespace kiv::conversion;
using kiv::networking::RequestManager;
using namespace numira;
using namespace std::chrono_literals;

namespace {

const Currency usd(840);
const Currency eur(978);
const Currency jpy(392);
const Currency gbp(826);
const QDateTime noon(QDate(2026, 3, 31), QTime(12, 0), Qt::UTC);

ConversionMap readTable(const QByteArray &text)
{
    return kiv::conversion::internal::readRates(
        kiv::networking::Response::succeeded(jsonText(text), u"application/json"_s));
}

const QByteArray sample = "{'disclaimer': 'Ask', 'timestamp': 1772366400, 'base': 'USD',"
                          " 'rates': {'EUR': 0.92, 'GBP': 0.79, 'JPY': 150.123456}}";

const auto appId = u"0123456789abcdef"_s;
const ConversionMap standing(usd, QDateTime(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC),
                             {{eur, FloatingPoint("0.9")}});
const QByteArray reply =
    jsonText("{'timestamp': 1772366400, 'base': 'USD', 'rates': {'EUR': 0.92, 'JPY': 150}}");
const ConversionMap fetched(usd, QDateTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC),
                            {{usd, 1}, {eur, FloatingPoint("0.92")}});
const auto failed = u"Failed to fetch the exchange rates. "_s;

/// A source over a scripted sender. Both may be destroyed.
struct Service {
    explicit Service(ScriptedSender::Script script)
        : record(std::make_shared<ScriptedSender::Record>()),
          manager(std::make_unique<RequestManager>(
              std::make_unique<ScriptedSender>(std::move(script), record), nullptr)),
          source(std::make_unique<OpenExchangeRatesSource>(*manager, appId, nullptr))
    {
    }

    std::shared_ptr<ScriptedSender::Record> record;
    std::unique_ptr<RequestManager> manager;
    std::unique_ptr<OpenExchangeRatesSource> source;
};

} // namespace

class tst_Conversion : public QObject {
    Q_OBJECT

private slots:
    void init() { CurrencyConverter::updateCache(standing); }

    void refusesWhatIsNoTable()
    {
        for (const char *rate : {"1e-12", "1", "1e12"})
            QCOMPARE(ConversionMap(usd, noon, {{eur, FloatingPoint(rate)}}).rates().size(), 1U);
        QCOMPARE(ConversionMap(usd, noon, {{usd, 1}}).rates().size(), 1U);
        for (const char *rate : {"9.99e-13", "1.0000001e12", "0", "-0.92", "nan", "inf"}) {
            QVERIFY_THROWS_EXCEPTION(ConversionError,
                                     ConversionMap(usd, noon, {{eur, FloatingPoint(rate)}}));
        }
        for (const auto &[base, fetchedAt, currency] :
             {std::tuple(Currency(), noon, eur), {usd, QDateTime(), eur}, {usd, noon, usd}})
            QVERIFY_THROWS_EXCEPTION(ConversionError,
                                     ConversionMap(base, fetchedAt, {{currency, 2}}));
    }

    void expiresAfterADay()
    {
        constexpr qint64 day = 24LL * 60 * 60 * 1000;
        // The same moment, told in another time zone.
        const ConversionMap map(usd, noon.toOffsetFromUtc(9 * 3600), {{eur, 1}});
        for (const qint64 age : {qint64{0}, day, -day, day + 1, -day - 1})
            QCOMPARE(map.isExpired(noon.addMSecs(age)), std::abs(age) > day);
        QVERIFY(ConversionMap().isExpired(noon) && ConversionMap(usd, noon, {}).isExpired(noon));
    }

    void convertsThroughTheBase()
    {
        const ConversionMap map(usd, noon, {{eur, FloatingPoint("0.5")}, {jpy, 150}});
        QVERIFY(map.rate(usd, eur) == FloatingPoint("0.5") && map.rate(eur, usd) == 2);
        QVERIFY(map.rate(eur, jpy) == 300 && map.rate(gbp, gbp) == 1);
        QVERIFY_THROWS_EXCEPTION(ConversionError, (void)map.rate(jpy, gbp));
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

    void oneFaultRefusesTheWholeReply()
    {
        const QDateTime time(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
        QCOMPARE(readTable(sample), ConversionMap(usd, time,
                                                  {{eur, FloatingPoint("0.92")},
                                                   {gbp, FloatingPoint("0.79")},
                                                   {jpy, FloatingPoint("150.123456")}}));
        // What is in the sample, and what takes its place.
        for (const auto &[good, bad] : std::initializer_list<std::pair<QByteArray, QByteArrayList>>{
                 {"'base'", {"'bass'"}},
                 {"'USD'", {"840"}},
                 {"USD", {"ZZZ", "XXX"}},
                 {"'timestamp'", {"'time'"}},
                 {"1772366400",
                  {"'1772366400'", "0", "-1772366400", "1772366400.5", "253402300800", "1e300"}},
                 {"'rates'", {"'rate'"}},
                 {"{'EUR': 0.92, 'GBP': 0.79, 'JPY': 150.123456}", {"[0.92]"}},
                 {"0.92", {"-0.92", "0", "1e300", "1e999", "1e-300", "'0.92'", "null"}},
                 {"'GBP'", {"'EUR'"}},
                 {"EUR", {"BTC", "eur", "XXX", "EUR ", "USD"}}}) {
            for (const QByteArray &instead : bad)
                QVERIFY_THROWS_EXCEPTION(
                    kiv::foundation::Error,
                    (void)readTable(QByteArray(sample).replace(good, instead)));
        }
    }

    void looksUpInTheCacheOfTheProcess()
    {
        const Service service(ScriptedSender::silence());
        const CurrencyConverter converter(*service.source);
        QVERIFY(converter.lookUp(usd, eur) == FloatingPoint("0.9"));
        QVERIFY_THROWS_EXCEPTION(ConversionError, (void)converter.lookUp(usd, gbp));
        CurrencyConverter::initialiseCache(ConversionMap(fetched));
        QCOMPARE(CurrencyConverter::cache(), fetched);
        QVERIFY(service.record->sent.isEmpty());
    }

    void answersWithTheWantedRatesAndLeavesTheCache()
    {
        struct Row {
            std::set<Currency> wanted;
            ScriptedSender::Script script;
            ConversionMap answer;
            QString warning;
            QString asked;
        };
        const auto whole = ScriptedSender::json(reply);
        const auto none = u"The reply has none of the wanted rates."_s;
        for (const auto &[wanted, script, answer, warning, asked] : std::initializer_list<Row>{
                 {{eur, usd}, whole, fetched, {}, u"USD,EUR"_s},
                 {{gbp, eur, Currency(756)},
                  whole,
                  fetched,
                  u"The source has no exchange rates of these currencies: \"CHF, GBP\""_s,
                  u"CHF,GBP,USD,EUR"_s},
                 {{gbp}, whole, standing, failed + none, u"GBP,USD"_s},
                 {{}, whole, standing, {}, {}},
                 {{eur},
                  [](const QUrl &) { return kiv::networking::Response::failed(u"Gone."_s); },
                  standing,
                  failed + u"Gone."_s,
                  u"USD,EUR"_s}}) {
            const Service service(script);
            const MessageLog log;
            QCOMPARE(CurrencyConverter(*service.source).fetchAll(wanted), answer);
            QCOMPARE(CurrencyConverter::cache(), standing);
            QCOMPARE(log.text(), warning);
            QCOMPARE(service.record->sent.size(), qsizetype(!asked.isEmpty()));
            for (const QUrl &url : service.record->sent) {
                QCOMPARE(url.toString(), u"https://openexchangerates.org/api/latest.json"
                                         "?app_id=0123456789abcdef&symbols="_s +
                                             asked);
            }
        }
    }

    void knownRatesStayUnlessNewerOnesCome()
    {
        const Service service(ScriptedSender::json(reply));
        const ConversionMap newer(usd, fetched.fetchedAt().addSecs(1),
                                  {{eur, FloatingPoint("0.9")}});
        CurrencyConverter::updateCache(newer);
        const MessageLog log;
        QCOMPARE(CurrencyConverter(*service.source).fetchAll({eur}), newer);
        QCOMPARE(log.text(), failed +
                                 u"The rates of the reply are from 2026-03-01T12:00:00Z, older "
                                 "than the known ones from 2026-03-01T12:00:01Z."_s);
        CurrencyConverter::updateCache(
            ConversionMap(usd, standing.fetchedAt(), {{eur, 1}, {gbp, 2}}));
        QVERIFY(CurrencyConverter(*service.source).fetchAll({eur}).rate(usd, gbp) == 2);
    }

    void aSecondFetchAnswersAtOnce()
    {
        const Service service(ScriptedSender::silence());
        CurrencyConverter converter(*service.source, 200ms);
        std::optional<ConversionMap> second;
        const MessageLog log;
        QTimer::singleShot(0, this, [&] { second = converter.fetchAll({eur}); });
        QCOMPARE(converter.fetchAll({eur}), standing);
        QCOMPARE(second, standing);
        QCOMPARE(service.record->sent.size(), 1);
        QCOMPARE(log.text(), failed + u"No answer came in time."_s);
        // The wait is over, so that the next one asks again.
        (void)converter.fetchAll({eur});
        QCOMPARE(service.record->sent.size(), 2);
        QCOMPARE(service.record->cancelled.size(), 2U);
    }

    void theEndOfTheSourceOrItsManagerEndsTheWait()
    {
        for (const bool isManager : {false, true}) {
            Service service(ScriptedSender::silence());
            const MessageLog log;
            QTimer::singleShot(0, this, [&] {
                if (isManager)
                    service.manager.reset();
                else
                    service.source.reset();
            });
            QElapsedTimer waited;
            waited.start();
            QCOMPARE(CurrencyConverter(*service.source, 20s).fetchAll({eur}), standing);
            QVERIFY(waited.elapsed() < 10'000);
            QCOMPARE(log.warnings().size(), 1);
            if (!isManager)
                continue;
            // A source that outlives its sender goes on failing.
            QCOMPARE(CurrencyConverter(*service.source, 20s).fetchAll({eur}), standing);
            QVERIFY(waited.elapsed() < 10'000 && log.warnings().size() == 2);
        }
    }
};

static const kiv::test::Suite<tst_Conversion> conversionSuite;
#include "tst_conversion.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "conversion/currency_converter.h"
#include "conversion/errors.h"
#include "conversion/open_exchange_rates_source.h"

#include "networking/http_request_sender.h"
#include "networking/request_manager.h"

#include "support/json_text.h"
#include "support/loopback_server.h"
#include "support/message_log.h"
#include "support/scripted_sender.h"

using kiv::conversion::ConversionError;
using kiv::conversion::ConversionMap;
using kiv::conversion::CurrencyConverter;
using kiv::conversion::OpenExchangeRatesSource;
using kiv::networking::HttpRequestSender;
using kiv::networking::RequestManager;
using numira::Currency;
using numira::FloatingPoint;
using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

const Currency usd(840);
const Currency eur(978);
const Currency gbp(826);
const auto appId = u"0123456789abcdef"_s;
const ConversionMap standing(usd, QDateTime(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC),
                             {{eur, FloatingPoint("0.9")}});
const QByteArray reply =
    jsonText("{'timestamp': 1772366400, 'base': 'USD', 'rates': {'EUR': 0.92, 'JPY': 150}}");
const ConversionMap fetched(usd, QDateTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC),
                            {{usd, 1}, {eur, FloatingPoint("0.92")}});
const auto failed = u"Failed to fetch the exchange rates. "_s;

/// A source over whatever sends, which all may be destroyed.
struct Service {
    explicit Service(std::unique_ptr<kiv::networking::RequestSender> sender,
                     const QUrl &address = OpenExchangeRatesSource::serviceAddress())
        : manager(std::make_unique<RequestManager>(std::move(sender), nullptr)),
          source(std::make_unique<OpenExchangeRatesSource>(*manager, appId, nullptr, address))
    {
    }

    std::unique_ptr<RequestManager> manager;
    std::unique_ptr<OpenExchangeRatesSource> source;
};

} // namespace

class tst_CurrencyConverter : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        CurrencyConverter::updateCache(standing);
        m_record = std::make_shared<ScriptedSender::Record>();
    }

    void looksUpInTheCacheOfTheProcess()
    {
        const Service service(scripted(ScriptedSender::silence()));
        const CurrencyConverter converter(*service.source);
        QVERIFY(converter.lookUp(usd, eur) == FloatingPoint("0.9"));
        QVERIFY_THROWS_EXCEPTION(ConversionError, (void)converter.lookUp(usd, gbp));
        CurrencyConverter::initialiseCache(ConversionMap(fetched));
        QCOMPARE(CurrencyConverter::cache(), fetched);
        QVERIFY(m_record->sent.isEmpty());
    }

    void answersWithTheWantedRatesAndLeavesTheCache_data()
    {
        QTest::addColumn<std::set<Currency>>("wanted");
        QTest::addColumn<ConversionMap>("answer");
        QTest::addColumn<QString>("warning");
        QTest::addColumn<QString>("query");
        QTest::newRow("all there") << std::set{eur, usd} << fetched << u""_s << u"USD,EUR"_s;
        QTest::newRow("some missing")
            << std::set{gbp, eur, Currency(756)} << fetched
            << u"The source has no exchange rates of these currencies: \"CHF, GBP\""_s
            << u"CHF,GBP,USD,EUR"_s;
        QTest::newRow("all missing")
            << std::set{gbp} << standing << failed + u"The reply has none of the wanted rates."_s
            << u"GBP,USD"_s;
        QTest::newRow("nothing wanted") << std::set<Currency>() << standing << u""_s << u""_s;
    }

    void answersWithTheWantedRatesAndLeavesTheCache()
    {
        QFETCH(const std::set<Currency>, wanted);
        QFETCH(const ConversionMap, answer);
        QFETCH(const QString, warning);
        QFETCH(const QString, query);
        const Service service(scripted(ScriptedSender::json(reply)));
        const MessageLog log;
        QCOMPARE(CurrencyConverter(*service.source).fetchAll(wanted), answer);
        QCOMPARE(CurrencyConverter::cache(), standing);
        QCOMPARE(log.text(), warning);
        QCOMPARE(m_record->sent.size(), qsizetype(!query.isEmpty()));
        for (const QUrl &url : m_record->sent) {
            QCOMPARE(url.toString(), u"https://openexchangerates.org/api/latest.json"
                                     "?app_id=0123456789abcdef&symbols="_s +
                                         query);
        }
    }

    void knownRatesStayUnlessNewerOnesCome()
    {
        const Service service(scripted(ScriptedSender::json(reply)));
        const ConversionMap newer(usd, fetched.fetchedAt().addSecs(1),
                                  {{eur, FloatingPoint("0.9")}});
        CurrencyConverter::updateCache(newer);
        const MessageLog log;
        QCOMPARE(CurrencyConverter(*service.source).fetchAll({eur}), newer);
        QCOMPARE(log.text(), failed + u"The reply's rates are of 2026-03-01T12:00:00Z, older than "
                                      "the known ones of 2026-03-01T12:00:01Z."_s);
        CurrencyConverter::updateCache(
            ConversionMap(usd, standing.fetchedAt(), {{eur, 1}, {gbp, 2}}));
        QVERIFY(CurrencyConverter(*service.source).fetchAll({eur}).rate(usd, gbp) == 2);
    }

    void aSecondFetchAnswersAtOnce()
    {
        const Service service(scripted(ScriptedSender::silence()));
        CurrencyConverter converter(*service.source, 200ms);
        std::optional<ConversionMap> second;
        const MessageLog log;
        QTimer::singleShot(0, this, [&] { second = converter.fetchAll({eur}); });
        QCOMPARE(converter.fetchAll({eur}), standing);
        QCOMPARE(second, standing);
        QCOMPARE(m_record->sent.size(), 1);
        QCOMPARE(log.text(), failed + u"No answer came in time."_s);
        // The wait is over, so that the next one asks again.
        (void)converter.fetchAll({eur});
        QCOMPARE(m_record->sent.size(), 2);
        QCOMPARE(m_record->cancelled.size(), 2U);
    }

    void theEndOfTheSourceOrItsManagerEndsTheWait()
    {
        for (const bool isManager : {false, true}) {
            Service service(scripted(ScriptedSender::silence()));
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

    void badServersLeaveTheRatesWithOneWarning_data()
    {
        QTest::addColumn<LoopbackServer::Behaviour>("behaviour");
        for (const auto &[name, behaviour] : LoopbackServer::badServers(reply))
            QTest::newRow(name) << behaviour;
        const auto row = [](const char *name, const char *good, const char *bad) {
            QTest::newRow(name) << LoopbackServer::answer(QByteArray(reply).replace(good, bad));
        };
        row("negative rate", "0.92", "-1");
        row("rate of zero", "0.92", "0");
        row("rate beyond all measure", "150", "1e300");
        row("code named twice", "JPY", "EUR");
        row("unknown code", "JPY", "ABQ");
        row("no time", "timestamp", "time");
    }

    void badServersLeaveTheRatesWithOneWarning()
    {
        QFETCH(const LoopbackServer::Behaviour, behaviour);
        LoopbackServer server(behaviour);
        kiv::networking::HttpLimits limits;
        limits.timeout = 400ms;
        const Service service(std::make_unique<HttpRequestSender>(limits), server.url());
        const MessageLog log;
        QCOMPARE(CurrencyConverter(*service.source).fetchAll({eur}), standing);
        QVERIFY2(log.warnings().size() == 1, qPrintable(log.text()));
        QVERIFY2(log.warnings().front().startsWith(failed), qPrintable(log.text()));
        QVERIFY2(!log.text().contains(appId), qPrintable(log.text()));
        QVERIFY(server.requests().front().contains("app_id=" + appId.toUtf8()));
        // What the systems' buffers hold goes beyond the 1 MiB that is read.
        QVERIFY(server.bytesTaken() < 12 << 20);
    }

    void aGoodServerIsBelieved()
    {
        LoopbackServer server(LoopbackServer::answer(reply));
        const Service service(std::make_unique<HttpRequestSender>(), server.url());
        QCOMPARE(CurrencyConverter(*service.source).fetchAll({eur}), fetched);
        QVERIFY(server.requests().front().startsWith("GET /latest.json?"));
    }

private:
    std::unique_ptr<ScriptedSender> scripted(ScriptedSender::Script script) const
    {
        return std::make_unique<ScriptedSender>(std::move(script), m_record);
    }

    std::shared_ptr<ScriptedSender::Record> m_record;
};

static const kiv::test::Suite<tst_CurrencyConverter> suite;
#include "tst_currency_converter.moc"

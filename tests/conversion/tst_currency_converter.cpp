// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

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
using kiv::networking::HttpLimits;
using kiv::networking::HttpRequestSender;
using kiv::networking::RequestManager;
using numira::Currency;
using numira::FloatingPoint;
using namespace std::chrono_literals;

Q_DECLARE_METATYPE(LoopbackServer::Behaviour)

namespace {

const Currency usd(840);
const Currency eur(978);
const Currency gbp(826);
const auto appId = QStringLiteral("0123456789abcdef");
const ConversionMap standing(usd, QDateTime(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC),
                             {{eur, FloatingPoint("0.9")}});
const QByteArray reply =
    jsonText("{'timestamp': 1772366400, 'base': 'USD', 'rates': {'EUR': 0.92, 'JPY': 150}}");
const QDateTime replyTime(QDate(2026, 3, 1), QTime(12, 0), Qt::UTC);
const auto failed = QStringLiteral("Failed to fetch the exchange rates. ");

/// A source over whatever sends, which all may be destroyed.
struct Service {
    explicit Service(std::unique_ptr<kiv::networking::RequestSender> sender,
                     const QUrl &address = OpenExchangeRatesSource::serviceAddress())
        : manager(std::make_unique<RequestManager>(std::move(sender), nullptr)),
          source(std::make_unique<OpenExchangeRatesSource>(*manager, appId, nullptr, address))
    {
    }
    explicit Service(ScriptedSender::Script script,
                     const std::shared_ptr<ScriptedSender::Record> &kept =
                         std::make_shared<ScriptedSender::Record>())
        : Service(std::make_unique<ScriptedSender>(std::move(script), kept))
    {
        record = kept;
    }

    std::shared_ptr<ScriptedSender::Record> record;
    std::unique_ptr<RequestManager> manager;
    std::unique_ptr<OpenExchangeRatesSource> source;
};

} // namespace

class tst_CurrencyConverter : public QObject {
    Q_OBJECT

private slots:
    void init() { CurrencyConverter::updateCache(standing); }

    void looksUpInTheCacheOfTheProcess()
    {
        Service service(ScriptedSender::silence());
        const CurrencyConverter converter(*service.source);
        QVERIFY(converter.lookUp(usd, eur) == FloatingPoint("0.9"));
        QVERIFY_EXCEPTION_THROWN((void)converter.lookUp(usd, gbp), ConversionError);
        ConversionMap others(usd, replyTime, {{gbp, FloatingPoint("0.8")}});
        CurrencyConverter::initialiseCache(ConversionMap(others));
        QCOMPARE(CurrencyConverter::cache(), others);
        QVERIFY(converter.lookUp(gbp, usd) == FloatingPoint("1.25"));
        QVERIFY(service.record->sent.isEmpty());
    }

    void fetchesTheWantedRatesAndLeavesTheCache()
    {
        Service service(ScriptedSender::json(reply));
        const MessageLog log;
        const ConversionMap fetched = CurrencyConverter(*service.source).fetchAll({eur, usd});
        QCOMPARE(fetched, ConversionMap(usd, replyTime, {{usd, 1}, {eur, FloatingPoint("0.92")}}));
        QCOMPARE(CurrencyConverter::cache(), standing);
        QCOMPARE(log.warnings(), QStringList());
        QCOMPARE(service.record->sent,
                 (QList{QUrl(QStringLiteral("https://openexchangerates.org/api/latest.json"
                                            "?app_id=0123456789abcdef&symbols=USD,EUR"))}));
    }

    void usesAReplyThatLacksSomeAndNamesThem()
    {
        Service service(ScriptedSender::json(reply));
        const MessageLog log;
        const ConversionMap fetched =
            CurrencyConverter(*service.source).fetchAll({gbp, eur, Currency(756)});
        QCOMPARE(fetched, ConversionMap(usd, replyTime, {{usd, 1}, {eur, FloatingPoint("0.92")}}));
        QCOMPARE(log.warnings(),
                 (QStringList{QStringLiteral("The source has no exchange rates of these "
                                             "currencies: \"CHF, GBP\"")}));
    }

    void keepsTheRatesWhenNoneOfTheWantedCame()
    {
        Service service(ScriptedSender::json(reply));
        const MessageLog log;
        QCOMPARE(CurrencyConverter(*service.source).fetchAll({gbp}), standing);
        QCOMPARE(log.warnings(),
                 (QStringList{failed + QStringLiteral("The reply has none of the wanted rates.")}));
    }

    void asksForNothingWhenNothingIsWanted()
    {
        Service service(ScriptedSender::json(reply));
        const MessageLog log;
        QCOMPARE(CurrencyConverter(*service.source).fetchAll({}), standing);
        QVERIFY(log.text().isEmpty() && service.record->sent.isEmpty());
    }

    void aSecondFetchAnswersAtOnce()
    {
        Service service(ScriptedSender::silence());
        CurrencyConverter converter(*service.source, 200ms);
        std::optional<ConversionMap> second;
        const MessageLog log;
        QTimer::singleShot(0, this, [&] { second = converter.fetchAll({eur}); });
        QCOMPARE(converter.fetchAll({eur}), standing);
        QCOMPARE(second, standing);
        QCOMPARE(service.record->sent.size(), 1);
        QCOMPARE(log.warnings(), (QStringList{failed + QStringLiteral("No answer came in time.")}));
        // The wait is over, so that the next one asks again.
        (void)converter.fetchAll({eur});
        QCOMPARE(service.record->sent.size(), 2);
        QCOMPARE(service.record->cancelled.size(), 2U);
    }

    void theEndOfTheSourceOrItsManagerEndsTheWait_data()
    {
        QTest::addColumn<bool>("isManager");
        QTest::addColumn<QString>("reason");
        QTest::newRow("source") << false
                                << "The source of the rates was destroyed before it answered.";
        QTest::newRow("manager") << true
                                 << "The request manager was destroyed before the answer came.";
    }

    void theEndOfTheSourceOrItsManagerEndsTheWait()
    {
        QFETCH(const bool, isManager);
        QFETCH(const QString, reason);
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
        QCOMPARE(log.warnings(), (QStringList{failed + reason}));
    }

    void aSourceWhoseSenderIsGoneFails()
    {
        Service service(ScriptedSender::json(reply));
        service.manager.reset();
        const MessageLog log;
        QCOMPARE(CurrencyConverter(*service.source).fetchAll({eur}), standing);
        QCOMPARE(log.warnings().size(), 1);
    }

    void badServersLeaveTheRatesWithOneWarning_data()
    {
        QTest::addColumn<LoopbackServer::Behaviour>("behaviour");
        const QByteArray head = "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\n\r\n";
        const auto row = [](const char *name, LoopbackServer::Behaviour behaviour) {
            QTest::newRow(name) << std::move(behaviour);
        };
        row("slow", LoopbackServer::endless(head, " ", 20));
        row("endless", LoopbackServer::endless(head, QByteArray(100'000, ' ')));
        row("truncated", LoopbackServer::raw(head + reply.left(40)));
        row("redirecting", LoopbackServer::redirect("http://localhost/latest.json"));
        row("wrong type", LoopbackServer::answer(reply, "text/html"));
        row("not JSON", LoopbackServer::answer("<html/>"));
        row("refusing the key", LoopbackServer::answer("{}", "application/json", "401 No"));
        row("negative rate", LoopbackServer::answer(QByteArray(reply).replace("0.92", "-1")));
        row("duplicate code", LoopbackServer::answer(QByteArray(reply).replace("JPY", "EUR")));
    }

    void badServersLeaveTheRatesWithOneWarning()
    {
        QFETCH(const LoopbackServer::Behaviour, behaviour);
        LoopbackServer server(behaviour);
        HttpLimits limits;
        limits.timeout = 400ms;
        Service service(std::make_unique<HttpRequestSender>(limits), server.url());
        const MessageLog log;
        QCOMPARE(CurrencyConverter(*service.source).fetchAll({eur}), standing);
        QVERIFY2(log.warnings().size() == 1, qPrintable(log.text()));
        QVERIFY2(log.warnings().front().startsWith(failed), qPrintable(log.text()));
        QVERIFY2(!log.text().contains(appId), qPrintable(log.text()));
        QVERIFY(server.requests().front().contains("app_id=" + appId.toUtf8()));
    }

    void aGoodServerIsBelieved()
    {
        LoopbackServer server(LoopbackServer::answer(reply));
        Service service(std::make_unique<HttpRequestSender>(), server.url());
        const ConversionMap fetched = CurrencyConverter(*service.source).fetchAll({eur});
        QVERIFY(fetched.rate(usd, eur) == FloatingPoint("0.92"));
        QVERIFY(server.requests().front().startsWith("GET /latest.json?"));
    }
};

QTEST_GUILESS_MAIN(tst_CurrencyConverter)
#include "tst_currency_converter.moc"

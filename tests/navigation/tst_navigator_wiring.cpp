// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "navigator_desk.h"

#include "conversion/currency_converter.h"
#include "conversion/errors.h"
#include "conversion/open_exchange_rates_source.h"
#include "navigation/internal/update_notifier.h"
#include "networking/request_manager.h"
#include "updating/release_information_fetcher.h"

using namespace conversion;

namespace {

const numira::Currency eur = numira::toCurrency("EUR");

ConversionMap rates(const char *eurPerUsd, int hoursOld)
{
    return ConversionMap(numira::toCurrency("USD"),
                         QDateTime::currentDateTimeUtc().addSecs(-3600 * hoursOld),
                         {{eur, numira::FloatingPoint(eurPerUsd)}});
}

std::shared_ptr<MemoryDisk> diskWithRates(int hoursOld)
{
    auto disk = std::make_shared<MemoryDisk>();
    disk->rates = rates("0.25", hoursOld);
    return disk;
}

QByteArray serviceReply()
{
    return QByteArray("{\"timestamp\": ") + QByteArray::number(QDateTime::currentSecsSinceEpoch()) +
           ", \"base\": \"USD\", \"rates\": {\"EUR\": 0.5}}";
}

numira::Money oneDollarInEuros()
{
    numira::Money sum(eur);
    sum += usd("1");
    return sum;
}

} // namespace

class NavigatorWiring : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_settings.reset();
        CurrencyConverter::updateCache({});
    }

    void theFirstNavigatorConvertsForTheProcess()
    {
        auto first = std::make_unique<Desk>();
        auto second = std::make_unique<Desk>();
        CurrencyConverter::updateCache(rates("0.5", 0));
        QCOMPARE(oneDollarInEuros(), money("EUR", "0.50"));
        second.reset();
        QCOMPARE(oneDollarInEuros(), money("EUR", "0.50"));
        delete first->navigator->findChild<conversion::OpenExchangeRatesSource *>();
        QVERIFY_THROWS_EXCEPTION(foundation::Error, oneDollarInEuros());
        first.reset();
        QVERIFY_THROWS_EXCEPTION(foundation::Error, oneDollarInEuros());
        // For ever: another one does not step in.
        const Desk third;
        QVERIFY_THROWS_EXCEPTION(foundation::Error, oneDollarInEuros());
    }

    void everythingThatCrossesIsRegistered()
    {
        const Desk desk; // registers the types
        const QMetaObject &meta = Navigator::staticMetaObject;
        QList<QByteArray> names{
            "kiv::navigation::Navigator", "kiv::navigation::internal::UpdateNotifier",
            "std::chrono::duration<long,std::ratio<86400>>",
            "std::chrono::duration<long,std::ratio<1,1000>>", "std::chrono::milliseconds"};
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            const QMetaMethod method = meta.method(i);
            names.append(method.parameterTypes());
            for (int p = 0; p < method.parameterCount(); ++p) {
                const QMetaType type = method.parameterMetaType(p);
                QVERIFY2(type.isValid() && type == QMetaType::fromName(method.parameterTypeName(p)),
                         method.parameterTypeName(p));
                QVERIFY2(type.hasRegisteredDebugStreamOperator(), type.name());
            }
        }
        for (const QByteArray &name : names)
            QVERIFY2(QMetaType::fromName(name).isValid(), name.constData());
    }

    void startsWithTheStoredRates()
    {
        const auto disk = diskWithRates(1);
        Desk desk(ScriptedSender::silence(), disk);
        QCOMPARE(CurrencyConverter::cache(), *disk->rates);
        QCOMPARE(desk.take(), texts({"- User system locale \"C\"",
                                     "? The first update check will occur in 5000ms",
                                     "? Starting update check with the interval of 3600000ms"}));
        QVERIFY(!desk.isChanged());
        QCOMPARE(desk.takeAfterWaiting(),
                 texts({"? Skipping fetching all exchange rates as they are not "
                        "expired."}));
        QVERIFY(desk.sent->sent.isEmpty());
    }

    void unreadableRatesAreNoObstacle()
    {
        const auto disk = diskWithRates(1);
        disk->before = [](const QString &) { throw std::runtime_error("Bad\x1b[0m disk."); };
        Desk desk(ScriptedSender::silence(), disk);
        QCOMPARE(desk.take().value(1), QStringLiteral("! Failed to initialise the currency "
                                                      "conversions. Bad\\u{001B}[0m disk."));
        QVERIFY(CurrencyConverter::cache().isEmpty());
    }

    void firstRunOffersTheWizard()
    {
        QSettings().clear();
        const auto disk = diskWithRates(1);
        Desk desk(ScriptedSender::silence(), disk);
        (void)desk.take();
        // The wizard does not wait for the network.
        const QString skipping =
            QStringLiteral("? Skipping fetching all exchange rates as they are not expired.");
        QStringList said;
        QVERIFY(QTest::qWaitFor([&] { return (said += desk.take()).contains(skipping); }));
        QCOMPARE(said.filter(QStringLiteral("showNewBudgetFirstTimeWizard(")).size(), 1);
        QCOMPARE(said.last(), skipping);
    }

    void expiredRatesAreRefreshedAfterTheStart()
    {
        const auto disk = diskWithRates(25);
        Desk desk(ScriptedSender::json(serviceReply()), disk);
        (void)desk.take();
        QCOMPARE(desk.takeAfterWaiting(),
                 texts({"- Fetching all exchange rates as they are expired.",
                        "- Storing exchange rates."}));
        QCOMPARE(disk->rates->rate(numira::toCurrency("USD"), eur), numira::FloatingPoint("0.5"));
        QCOMPARE(CurrencyConverter::cache(), *disk->rates);
        QVERIFY(desk.sent->sent.value(0).query().contains(
            QStringLiteral("5b0c93e2d7a14f68b1e0c4a9d2f73e15")));
        QVERIFY(!desk.isChanged());
    }

    void nothingHappensOnceItIsGone()
    {
        const auto sent = [] {
            Desk desk;
            return desk.sent;
        }();
        QTest::qWait(200);
        QVERIFY(sent->sent.isEmpty());
    }

    void itMayGoWhileItWaitsForRates()
    {
        using Act = std::function<void(Navigator &)>;
        const Act fetch = [](Navigator &n) { n.onFetchExchangeRates({eur}); };
        const Act refresh = [](Navigator &n) {
            QMetaObject::invokeMethod(&n, "updateAllExpiredExchangeRates", Qt::DirectConnection);
        };
        for (const Act &wait : {fetch, refresh}) {
            Desk desk;
            QTimer::singleShot(0, this, [&] { desk.navigator.reset(); });
            wait(*desk.navigator);
            QVERIFY(desk.navigator == nullptr);
            const QString said = desk.take().join(u'\n');
            QVERIFY2(!said.contains(QStringLiteral("Storing")) &&
                         !said.contains(QStringLiteral("fetchedExchangeRates")),
                     qPrintable(said));
        }
    }

    void partsMayBeDestroyedFirst()
    {
        Desk desk;
        Navigator &navigator = *desk.navigator;
        (void)desk.take();
        delete navigator.findChild<conversion::OpenExchangeRatesSource *>();
        navigator.onFetchExchangeRates({eur});
        QCOMPARE(desk.take(), texts({"fetchedExchangeRates((EUR), no rates)"}));
        delete navigator.findChild<networking::RequestManager *>();
        QVERIFY(navigator.findChild<navigation::internal::UpdateNotifier *>() == nullptr);
        navigator.onFetchReleaseNotes();
        emit navigator.updateAvailableAcknowledged();
        QCOMPARE(desk.take(), texts({"fetchedReleaseNotes(())", "updateAvailableAcknowledged()"}));
    }

    void fetchersGoWithTheirAnswers()
    {
        Desk desk;
        (void)desk.take();
        desk.navigator->onFetchReleaseNotes();
        QVERIFY(desk.navigator->findChild<updating::ReleaseInformationFetcher *>() != nullptr);
        QCOMPARE(desk.takeAfterWaiting(), texts({"fetchedReleaseNotes(())"}));
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(desk.navigator->findChild<updating::ReleaseInformationFetcher *>() == nullptr);
    }

    void acknowledgedUpdateStartsTheChecksAgain()
    {
        Desk desk;
        auto *notifier = desk.navigator->findChild<navigation::internal::UpdateNotifier *>();
        (void)desk.take();
        emit notifier->updateReleased(updating::SemanticVersion(9, 1, 0));
        emit desk.navigator->updateAvailableAcknowledged();
        QStringList said = desk.take();
        said.sort();
        QCOMPARE(said, texts({"? Starting update check with the interval of 3600000ms",
                              "updateAvailableAcknowledged()", "updateReleased(9.1.0)"}));
    }

private:
    OwnSettings m_settings;
};

static const kiv::test::Suite<NavigatorWiring> navigatorWiringSuite;
#include "tst_navigator_wiring.moc"

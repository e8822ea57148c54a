// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/suite.h"

#include "navigation/internal/update_notifier.h"

#include "updating/update_checker.h"

#include "support/json_text.h"
#include "support/message_log.h"
#include "support/scripted_sender.h"

using kiv::navigation::internal::UpdateNotifier;
using kiv::networking::Response;
using namespace kiv::updating;
using namespace std::chrono_literals;

namespace {

/// A notifier with its checks, of which it records the times.
struct NotifierDesk {
    NotifierDesk(std::chrono::milliseconds firstCheckDelay, std::chrono::milliseconds interval,
                 QByteArray newest = "1.1.0")
        : latest(std::move(newest)),
          manager(std::make_unique<ScriptedSender>([this](const QUrl &) { return onCheck(); }),
                  nullptr)
    {
        clock.start();
        notifier = std::make_unique<UpdateNotifier>(
            interval, manager, firstCheckDelay, nullptr,
            kiv::updating::ReleaseFeed{QUrl(u"https://a.example/"_s), SemanticVersion(1, 1, 0)});
        QObject::connect(
            notifier.get(), &UpdateNotifier::updateReleased,
            [this](const SemanticVersion &version) { announced.append(toQString(version)); });
    }

    std::optional<Response> onCheck()
    {
        checks.append(clock.elapsed());
        if (latest.isEmpty())
            return std::nullopt;
        return Response::succeeded(
            jsonText("[{'version': '" + latest + "', 'date': '2026-03-01', 'notes': ''}]"),
            u"application/json"_s);
    }
    [[nodiscard]] qsizetype checkersAlive() const
    {
        return notifier->findChildren<UpdateChecker *>().size();
    }

    QByteArray latest; ///< empty: a check is never answered
    QList<qint64> checks;
    QStringList announced;
    QElapsedTimer clock;
    kiv::networking::RequestManager manager;
    std::unique_ptr<UpdateNotifier> notifier;
};

} // namespace

/// An hour is some 100 ms here.
class tst_UpdateNotifier : public QObject {
    Q_OBJECT

private slots:
    void theFirstCheckDoesNotShiftTheOthers()
    {
        NotifierDesk desk(600ms, 800ms);
        QTRY_COMPARE(desk.checks.size(), 3);
        // At 600, 800 and 1,600 ms from the beginning, give or take the timers'
        // coarseness; the second would come at 1,400 ms if it waited for the first.
        QVERIFY(desk.checks.at(0) >= 540 && desk.checks.at(1) >= 720);
        QVERIFY(desk.checks.at(1) - desk.checks.at(0) < 700);
        QVERIFY(desk.checks.at(2) >= 1'440);
        QTRY_COMPARE(desk.checkersAlive(), 0);
        QVERIFY(desk.announced.isEmpty());
    }

    void anAnnouncementStopsTheChecksUntilTheyAreStarted()
    {
        const MessageLog log;
        NotifierDesk desk(10ms, 100ms, "1.2.0-rc.1");
        QTRY_COMPARE(desk.announced, QStringList{u"1.2.0-rc.1"_s});
        QCOMPARE(log.debugs().mid(1),
                 (QStringList{
                     u"Starting update check with the interval of 100ms"_s,
                     u"Checking to see if an update is available and notrifying if there is one."_s,
                     u"Stopping update check while waiting for the update notification to be "
                     "acknowledged."_s,
                 }));
        QTest::qWait(350);
        QCOMPARE(desk.checks.size(), 1);
        const qint64 acknowledged = desk.clock.elapsed();
        desk.notifier->startCheckNotifications(200ms);
        QTRY_COMPARE(desk.announced.size(), 2);
        QVERIFY(desk.checks.at(1) - acknowledged >= 180);
        QTRY_COMPARE(desk.checkersAlive(), 0);
    }

    void startingAgainCountsFromThereWithTheNewInterval()
    {
        NotifierDesk desk(10min, 150ms);
        desk.notifier->startCheckNotifications(10min);
        QTest::qWait(300);
        QVERIFY(desk.checks.isEmpty());
        desk.notifier->startCheckNotifications(100ms);
        QTRY_VERIFY(!desk.checks.isEmpty());
    }

    void checksMayOverlap()
    {
        NotifierDesk desk(0ms, 20ms, {});
        QTRY_VERIFY(desk.checkersAlive() >= 2);
        const auto waiting = desk.checkersAlive();
        // Only what asks from now on is answered; those before wait on.
        desk.latest = "2.0.0";
        QTRY_COMPARE(desk.announced.size(), 1);
        QTRY_COMPARE(desk.checkersAlive(), desk.checks.size() - 1);
        QVERIFY(desk.checkersAlive() >= waiting);
    }

    void checksThatFailGoOn()
    {
        NotifierDesk desk(0ms, 30ms, "999.0.0");
        const MessageLog log;
        QTRY_VERIFY(desk.checks.size() >= 3);
        QVERIFY(desk.announced.isEmpty() && log.warnings().size() >= 2);
    }
};

static const kiv::test::Suite<tst_UpdateNotifier> updateNotifierSuite;
#include "tst_update_notifier.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

#include "updating/release_information_fetcher.h"
#include "updating/update_checker.h"

#include "networking/http_request_sender.h"
#include "networking/request_manager.h"

#include "support/json_text.h"
#include "support/loopback_server.h"
#include "support/message_log.h"
#include "support/scripted_sender.h"

using kiv::networking::HttpLimits;
using kiv::networking::HttpRequestSender;
using kiv::networking::RequestManager;
using kiv::updating::ReleaseFeed;
using kiv::updating::ReleaseInformation;
using kiv::updating::ReleaseInformationFetcher;
using kiv::updating::SemanticVersion;
using kiv::updating::UpdateChecker;

Q_DECLARE_METATYPE(LoopbackServer::Behaviour)

namespace {

const ReleaseFeed feed{QUrl(QStringLiteral("https://a.example/releases.json")),
                       SemanticVersion(1, 1, 0)};

QByteArray release(const QByteArray &version)
{
    return jsonText("{'version': '" + version + "', 'date': '2026-03-01', 'notes': 'n'}");
}

/// What one check says, in order: versions, and at last "finished".
QStringList answersOf(UpdateChecker &checker)
{
    QStringList answers;
    QObject::connect(&checker, &UpdateChecker::updateReleased,
                     [&](const SemanticVersion &latest) { answers.append(toQString(latest)); });
    QObject::connect(&checker, &UpdateChecker::finishedCheck,
                     [&] { answers.append(QStringLiteral("finished")); });
    checker.check();
    answers.append(QStringLiteral("started"));
    (void)QTest::qWaitFor([&] { return answers.contains(QStringLiteral("finished")); });
    return answers;
}

} // namespace

class tst_Releases : public QObject {
    Q_OBJECT

private slots:
    void announcesOnlyTheNewestNewerRelease_data()
    {
        QTest::addColumn<QByteArray>("list");
        QTest::addColumn<QString>("announced");
        QTest::addColumn<int>("warnings");
        const auto row = [](const char *name, const QByteArrayList &releases,
                            const QString &announced, int warnings = 0) {
            QTest::newRow(name) << '[' + releases.join(',') + ']' << announced << warnings;
        };
        row("none", {}, {});
        row("newest of several", {release("1.2.0"), release("1.10.0"), release("1.9.0")},
            QStringLiteral("1.10.0"));
        row("only older", {release("1.0.9"), release("0.9.0")}, {});
        row("the running one", {release("1.1.0")}, {});
        row("another build of it", {release("1.1.0+7")}, {});
        row("a pre-release of it", {release("1.1.0-rc.2")}, {});
        row("a pre-release of a newer one", {release("1.1.1-rc.1"), release("1.1.0")},
            QStringLiteral("1.1.1-rc.1"));
        row("absurd version beside a good one", {release("999.0.0"), release("1.2.0")},
            QStringLiteral("1.2.0"), 1);
        row("only absurd ones", {release("999.0.0"), release("newest")}, {}, 1);
        row("a text instead of a release", {"\"1.3.0\"", release("1.2.0")}, QStringLiteral("1.2.0"),
            1);
        row("impossible day",
            {release("1.3.0").replace("2026-03-01", "2026-02-30"), release("1.2.0")},
            QStringLiteral("1.2.0"), 1);
        row("no notes", {release("1.3.0").replace("notes", "note")}, {}, 1);
        row("member twice", {release("1.3.0").replace("notes", "version")}, {}, 1);
        QTest::newRow("an object") << release("1.3.0") << QString() << 1;
        QTest::newRow("not JSON") << QByteArray("1.3.0!") << QString() << 1;
    }

    void announcesOnlyTheNewestNewerRelease()
    {
        QFETCH(const QByteArray, list);
        QFETCH(const QString, announced);
        QFETCH(const int, warnings);
        RequestManager manager(std::make_unique<ScriptedSender>(ScriptedSender::json(list)),
                               nullptr);
        UpdateChecker checker(manager, nullptr, feed);
        const MessageLog log;
        QStringList expected{QStringLiteral("started"), QStringLiteral("finished")};
        if (!announced.isEmpty())
            expected.insert(1, announced);
        QCOMPARE(answersOf(checker), expected);
        QVERIFY2(log.warnings().size() == warnings, qPrintable(log.text()));
    }

    void withoutAFeedNothingIsAsked()
    {
        const auto record = std::make_shared<ScriptedSender::Record>();
        RequestManager manager(std::make_unique<ScriptedSender>(ScriptedSender::json("[]"), record),
                               nullptr);
        UpdateChecker checker(manager, nullptr, {QUrl(), SemanticVersion(1, 1, 0)});
        const MessageLog log;
        QCOMPARE(answersOf(checker),
                 (QStringList{QStringLiteral("started"), QStringLiteral("finished")}));
        QVERIFY(record->sent.isEmpty() && log.text().isEmpty());
    }

    void whoeverHearsOfAReleaseMayDropTheChecker()
    {
        const auto list = '[' + release("2.0.0") + ']';
        RequestManager manager(std::make_unique<ScriptedSender>(ScriptedSender::json(list)),
                               nullptr);
        auto *checker = new UpdateChecker(manager, nullptr, feed);
        bool isFinished = false;
        connect(checker, &UpdateChecker::finishedCheck, this, [&] { isFinished = true; });
        QObject gone;
        connect(checker, &UpdateChecker::updateReleased, &gone, [&] {
            delete checker;
            checker = nullptr;
        });
        checker->check();
        QTRY_VERIFY(!checker);
        QVERIFY(!isFinished);
    }

    void fetchesAllReleases()
    {
        const auto list =
            '[' + release("1.1.0") + ',' + release("256.0.0") + ',' + release("1.0.0-rc.1") + ']';
        RequestManager manager(std::make_unique<ScriptedSender>(ScriptedSender::json(list)),
                               nullptr);
        ReleaseInformationFetcher fetcher(manager, nullptr, feed);
        QList<std::set<ReleaseInformation>> answers;
        connect(&fetcher, &ReleaseInformationFetcher::fetched, this,
                [&](const std::set<ReleaseInformation> &releases) { answers.append(releases); });
        const MessageLog log;
        fetcher.fetch();
        QVERIFY(answers.isEmpty());
        QTRY_COMPARE(answers.size(), 1);
        const QDate day(2026, 3, 1);
        const auto notes = QStringLiteral("n");
        QCOMPARE(answers.front(),
                 (std::set<ReleaseInformation>{
                     {SemanticVersion(1, 0, 0, QStringLiteral("rc.1")), day, notes},
                     {SemanticVersion(1, 1, 0), day, notes}}));
        QCOMPARE(log.warnings().size(), 1);
        QVERIFY(log.text().contains(QStringLiteral("256.0.0")));
    }

    void badServersAnnounceNothingWithOneWarning_data()
    {
        QTest::addColumn<LoopbackServer::Behaviour>("behaviour");
        const QByteArray head = "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\n\r\n";
        const auto row = [](const char *name, LoopbackServer::Behaviour behaviour) {
            QTest::newRow(name) << std::move(behaviour);
        };
        row("slow", LoopbackServer::endless(head + '[', " ", 20));
        row("endless", LoopbackServer::endless(head + '[', QByteArray(100'000, ' ')));
        row("truncated", LoopbackServer::raw(head + '[' + release("2.0.0")));
        row("redirecting", LoopbackServer::redirect("http://127.0.0.2/releases.json"));
        row("wrong type", LoopbackServer::answer('[' + release("2.0.0") + ']', "text/plain"));
        row("failing", LoopbackServer::answer("[]", "application/json", "500 No"));
    }

    void badServersAnnounceNothingWithOneWarning()
    {
        QFETCH(const LoopbackServer::Behaviour, behaviour);
        LoopbackServer server(behaviour);
        HttpLimits limits;
        limits.timeout = std::chrono::milliseconds(300);
        RequestManager manager(std::make_unique<HttpRequestSender>(limits), nullptr);
        UpdateChecker checker(manager, nullptr, {server.url(), SemanticVersion(1, 1, 0)});
        const MessageLog log;
        QCOMPARE(answersOf(checker),
                 (QStringList{QStringLiteral("started"), QStringLiteral("finished")}));
        QVERIFY2(log.warnings().size() == 1, qPrintable(log.text()));
        QCOMPARE(server.requests().size(), 1);
    }

    void theBuiltInFeedKnowsTheRunningVersion()
    {
        QVERIFY(ReleaseFeed::builtIn().running.isNewerThan(SemanticVersion()));
    }
};

QTEST_GUILESS_MAIN(tst_Releases)
#include "tst_releases.moc"

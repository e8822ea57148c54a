// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "updating/release_information_fetcher.h"
#include "updating/update_checker.h"

#include "networking/http_request_sender.h"
#include "networking/request_manager.h"

#include "support/json_text.h"
#include "support/loopback_server.h"
#include "support/message_log.h"
#include "support/scripted_sender.h"

using kiv::networking::HttpRequestSender;
using kiv::networking::RequestManager;
using kiv::updating::ReleaseFeed;
using kiv::updating::ReleaseInformation;
using kiv::updating::ReleaseInformationFetcher;
using kiv::updating::SemanticVersion;
using kiv::updating::UpdateChecker;
using namespace Qt::StringLiterals;

namespace {

const ReleaseFeed feed{QUrl(u"https://a.example/releases.json"_s), SemanticVersion(1, 1, 0)};

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
                     [&] { answers.append(u"finished"_s); });
    checker.check();
    answers.append(u"started"_s);
    (void)QTest::qWaitFor([&] { return answers.contains(u"finished"_s); });
    return answers;
}

} // namespace

class tst_Releases : public QObject {
    Q_OBJECT

private slots:
    void announcesOnlyTheNewestNewerRelease_data()
    {
        QTest::addColumn<QByteArrayList>("releases");
        QTest::addColumn<QString>("announced");
        QTest::addColumn<int>("warnings");
        const auto row = [](const char *name, const QByteArrayList &releases,
                            const QString &announced = {}, int warnings = 0) {
            QTest::newRow(name) << releases << announced << warnings;
        };
        row("none", {});
        row("newest", {release("1.2.0"), release("1.10.0"), release("1.9.0")}, u"1.10.0"_s);
        row("older", {release("1.0.9"), release("0.9.0")});
        row("the running one", {release("1.1.0"), release("1.1.0+7"), release("1.1.0-rc.2")});
        row("pre-release", {release("1.1.1-rc.1"), release("1.1.0")}, u"1.1.1-rc.1"_s);
        row("absurd version", {release("999.0.0"), release("1.2.0")}, u"1.2.0"_s, 1);
        row("absurd ones alone", {release("999.0.0"), release("newest")}, {}, 1);
        row("text", {"\"1.3.0\"", release("1.2.0")}, u"1.2.0"_s, 1);
        row("impossible day", {release("1.3.0").replace("03-01", "02-30")}, {}, 1);
        row("no notes", {release("1.3.0").replace("notes", "note")}, {}, 1);
        row("member twice", {release("1.3.0").replace("notes", "version")}, {}, 1);
    }

    void announcesOnlyTheNewestNewerRelease()
    {
        QFETCH(const QByteArrayList, releases);
        QFETCH(const QString, announced);
        QFETCH(const int, warnings);
        RequestManager manager(
            std::make_unique<ScriptedSender>(ScriptedSender::json('[' + releases.join(',') + ']')),
            nullptr);
        UpdateChecker checker(manager, nullptr, feed);
        const MessageLog log;
        QStringList expected{u"started"_s, announced, u"finished"_s};
        expected.removeAll(QString());
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
        QCOMPARE(answersOf(checker), (QStringList{u"started"_s, u"finished"_s}));
        QVERIFY(record->sent.isEmpty() && log.text().isEmpty());
        QVERIFY(ReleaseFeed::builtIn().running.isNewerThan(SemanticVersion()));
    }

    void whoeverHearsOfAReleaseMayDropTheChecker()
    {
        const auto script = ScriptedSender::json('[' + release("2.0.0") + ']');
        RequestManager manager(std::make_unique<ScriptedSender>(script), nullptr);
        QPointer<UpdateChecker> checker = new UpdateChecker(manager, nullptr, feed);
        connect(checker, &UpdateChecker::updateReleased, this, [&] { delete checker; });
        checker->check();
        QTRY_VERIFY(!checker);
    }

    void fetchesAllReleases()
    {
        const auto script = ScriptedSender::json('[' + release("1.1.0") + ',' + release("256.0.0") +
                                                 ',' + release("1.0.0-rc.1") + ']');
        RequestManager manager(std::make_unique<ScriptedSender>(script), nullptr);
        ReleaseInformationFetcher fetcher(manager, nullptr, feed);
        std::optional<std::set<ReleaseInformation>> fetched;
        connect(&fetcher, &ReleaseInformationFetcher::fetched, this,
                [&](const std::set<ReleaseInformation> &releases) { fetched = releases; });
        const MessageLog log;
        fetcher.fetch();
        QVERIFY(!fetched);
        QTRY_VERIFY(fetched);
        const QDate day(2026, 3, 1);
        QCOMPARE(fetched.value(),
                 (std::set<ReleaseInformation>{{SemanticVersion(1, 0, 0, u"rc.1"_s), day, u"n"_s},
                                               {SemanticVersion(1, 1, 0), day, u"n"_s}}));
        QVERIFY(log.warnings().size() == 1 && log.text().contains(u"256.0.0"_s));
        const ReleaseInformation one{SemanticVersion(1, 0, 0), day, u"n"_s};
        QVERIFY(one < (ReleaseInformation{one.version, day.addDays(1), u"a"_s}));
        QVERIFY(one < (ReleaseInformation{one.version, day, u"o"_s}));
    }

    void badServersAnnounceNothingWithOneWarning_data()
    {
        QTest::addColumn<LoopbackServer::Behaviour>("behaviour");
        for (const auto &[name, behaviour] :
             LoopbackServer::badServers('[' + release("2.0.0") + ']'))
            QTest::newRow(name) << behaviour;
        QTest::newRow("no list") << LoopbackServer::answer(release("2.0.0"));
    }

    void badServersAnnounceNothingWithOneWarning()
    {
        QFETCH(const LoopbackServer::Behaviour, behaviour);
        LoopbackServer server(behaviour);
        kiv::networking::HttpLimits limits;
        limits.timeout = std::chrono::milliseconds(300);
        RequestManager manager(std::make_unique<HttpRequestSender>(limits), nullptr);
        UpdateChecker checker(manager, nullptr, {server.url(), SemanticVersion(1, 1, 0)});
        const MessageLog log;
        QCOMPARE(answersOf(checker), (QStringList{u"started"_s, u"finished"_s}));
        QVERIFY2(log.warnings().size() == 1, qPrintable(log.text()));
        QVERIFY(!server.requests().isEmpty() && server.bytesTaken() < 12 << 20);
    }
};

static const kiv::test::Suite<tst_Releases> suite;
#include "tst_releases.moc"

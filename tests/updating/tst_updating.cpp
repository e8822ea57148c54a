// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "updating/errors.h"
#include "updating/release_information_fetcher.h"
#include "updating/semantic_version.h"
#include "updating/update_checker.h"

#include "networking/request_manager.h"

#include "support/json_text.h"
#include "support/message_log.h"
#include "support/scripted_sender.h"

using kiv::networking::RequestManager;
using namespace kiv::updating;

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

class tst_Updating : public QObject {
    Q_OBJECT

private slots:
    void versionsAreOrderedByPrecedence()
    {
        // Those that are joined by "=" have the same precedence and differ in the build.
        const auto rows = u"0.9.255 1.0.0-0=1.0.0-0+0 1.0.0-9 1.0.0-10 1.0.0-18446744073709551616 "
                          "1.0.0-18446744073709551617 1.0.0-- 1.0.0-X 1.0.0-alpha 1.0.0-alpha.1 "
                          "1.0.0-alpha.beta 1.0.0-beta 1.0.0-beta.2 1.0.0-beta.11 1.0.0-beta-1 "
                          "1.0.0-rc.1=1.0.0-rc.1+b.1 1.0.0=1.0.0+01=1.0.0+a-b.c 1.0.2 1.0.10 1.2.0 "
                          "1.10.0-rc.1 2.0.0 255.255.255"_s.split(u' ');
        QList<std::pair<QString, SemanticVersion>> versions;
        for (const QString &row : rows) {
            for (const QString &text : row.split(u'=')) {
                versions.append({row, SemanticVersion::fromText(text)});
                QCOMPARE(toQString(versions.back().second), text);
            }
        }
        for (qsizetype i = 0; i < versions.size(); ++i) {
            for (qsizetype j = 0; j < versions.size(); ++j) {
                const auto &[rowA, a] = versions.at(i);
                const auto &[rowB, b] = versions.at(j);
                const QString pair = toQString(a) + u' ' + toQString(b);
                QVERIFY2((a <=> b) == (i <=> j) && (a == b) == (i == j), qPrintable(pair));
                QVERIFY2(a.isNewerThan(b) == (i > j && rowA != rowB), qPrintable(pair));
            }
        }
    }

    void whatIsNoVersionIsRefused()
    {
        for (const QString &text :
             u"|1|1.2|1.2.3.4|01.2.3|1.02.3|1.2.03|v1.2.3| 1.2.3|1.2.3\n|-1.2.3|1.2.-3|256.0.0|"
             "0.256.0|0.0.256|99999999999999999999.0.0|1.2.3-|1.2.3-01|1.2.3-a..b|1.2.3-a.|"
             "1.2.3-a_b|1.2.3-ä|1.2.3+|1.2.3+a..b|1.2.3+a+b|1.2.3-+b|\u0661.0.0"_s.split(u'|'))
            QVERIFY_THROWS_EXCEPTION(UpdateError, (void)SemanticVersion::fromText(text));
    }

    void versionsTakeTheirPartsForWhatTheyAre()
    {
        QCOMPARE(SemanticVersion(1, 2, 3, u"rc.1"_s, u"5"_s),
                 SemanticVersion::fromText(u"1.2.3-rc.1+5"_s));
        for (const QString &preRelease : {u"rc+5"_s, QString(), u"01"_s})
            QVERIFY_THROWS_EXCEPTION(UpdateError, SemanticVersion(1, 2, 3, preRelease));
        QVERIFY_THROWS_EXCEPTION(UpdateError, SemanticVersion(1, 2, 3, std::nullopt, u"a+b"_s));
    }

    void announcesOnlyTheNewestNewerRelease()
    {
        struct Row {
            QByteArray reply;
            QString announced;
            int warnings = 0;
        };
        const auto list = [](const QByteArrayList &releases) {
            return '[' + releases.join(',') + ']';
        };
        for (const auto &[reply, announced, warnings] : std::initializer_list<Row>{
                 {list({}), {}},
                 {list({release("1.2.0"), release("1.10.0"), release("1.9.0")}), u"1.10.0"_s},
                 {list({release("1.0.9"), release("0.9.0")}), {}},
                 {list({release("1.1.0"), release("1.1.0+7"), release("1.1.0-rc.2")}), {}},
                 {list({release("1.1.1-rc.1"), release("1.1.0")}), u"1.1.1-rc.1"_s},
                 // Of what is no release, the others are told.
                 {list({release("999.0.0"), release("1.2.0")}), u"1.2.0"_s, 1},
                 {list({release("999.0.0"), release("newest")}), {}, 1},
                 {list({"\"1.3.0\"", release("1.2.0")}), u"1.2.0"_s, 1},
                 {list({release("1.3.0").replace("03-01", "02-30")}), {}, 1},
                 {list({release("1.3.0").replace("notes", "note")}), {}, 1},
                 {release("1.3.0"), {}, 1},
                 {"<html/>", {}, 1}}) {
            RequestManager manager(std::make_unique<ScriptedSender>(ScriptedSender::json(reply)),
                                   nullptr);
            UpdateChecker checker(manager, nullptr, feed);
            const MessageLog log;
            QStringList expected{u"started"_s, announced, u"finished"_s};
            expected.removeAll(QString());
            QCOMPARE(answersOf(checker), expected);
            QVERIFY2(log.warnings().size() == warnings, qPrintable(log.text()));
        }
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
        QSignalSpy fetched(&fetcher, &ReleaseInformationFetcher::fetched);
        const MessageLog log;
        fetcher.fetch();
        QVERIFY(fetched.isEmpty() && fetched.wait());
        const QDate day(2026, 3, 1);
        const ReleaseInformation one{SemanticVersion(1, 1, 0), day, u"n"_s};
        QCOMPARE(
            fetched.front().front().value<std::set<ReleaseInformation>>(),
            (std::set{ReleaseInformation{SemanticVersion(1, 0, 0, u"rc.1"_s), day, u"n"_s}, one}));
        QVERIFY(log.warnings().size() == 1 && log.text().contains(u"256.0.0"_s));
        QVERIFY(one < (ReleaseInformation{one.version, day.addDays(1), u"a"_s}));
        QVERIFY(one < (ReleaseInformation{one.version, day, u"o"_s}));
    }
};

static const kiv::test::Suite<tst_Updating> updatingSuite;
#include "tst_updating.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"
#include "help/manual.h"

using networking::Response;

/// What is made of the open file, and help.
class TestFileOutputs : public QObject {
    Q_OBJECT

private slots:
    void exportsAreThoseOfTheCommand()
    {
        HouseholdWindow home;
        home.openHousehold();
        const QStringList words{u"journal"_s, u"csv"_s, u"json"_s};
        for (qsizetype format = 0; format < words.size(); ++format) {
            const QString file = home.path(u"out."_s + words[format]);
            home.questions().choices = {format};
            home.questions().files = {file};
            home.trigger("export");
            QFile written(file);
            QVERIFY(written.open(QIODevice::ReadOnly));
            QCOMPARE(written.readAll(), KivCommand(home.document().file())
                                            .run({u"export"_s, u"--format"_s, words[format]}));
        }
        home.questions().choices = {0};
        home.questions().files = {home.path(u"missing/out.journal"_s)};
        home.trigger("export");
        QVERIFY(home.notices().join(u' ').contains(u"Cannot write"_s));
    }

    void theFileIsChecked()
    {
        HouseholdWindow home;
        home.openHousehold();
        home.trigger("check");
        const QString told = home.questions().asked.last();
        QVERIFY2(told.contains(u"is intact."_s), qPrintable(told));
        QCOMPARE(told.count(u": ok\n"_s), 7);
        QFile damaged(home.document().file());
        QVERIFY(damaged.open(QIODevice::ReadWrite) && damaged.seek(damaged.size() - 40) &&
                damaged.write("xx") == 2);
        damaged.close();
        home.trigger("check");
        QVERIFY(home.questions().asked.last().contains(u": FAILED\n"_s));
        QVERIFY(home.questions().asked.last().contains(u"is damaged."_s));
    }

    void everyPageHasItsPartOfTheManual()
    {
        SmallHousehold home;
        home.begin();
        QSet<QString> parts{u"Manual\n"_s + desktop::manualText({})};
        for (const desktop::Page *page : home.window().pages()) {
            home.window().goTo({page->id(), {}});
            home.trigger("manual");
            parts += home.questions().asked.last();
        }
        QCOMPARE(parts.size(), static_cast<qsizetype>(home.window().pages().size()) + 1);
    }

    void aNewerReleaseIsToldOnceAndItsNotesAreShown()
    {
        qputenv("KIV_RELEASE_FEED", "https://releases.example/list.json");
        const auto back = qScopeGuard([] { qunsetenv("KIV_RELEASE_FEED"); });
        Response answer = Response::failed(u"No network."_s);
        SmallHousehold home([&answer](const QUrl &) { return std::optional(answer); });
        home.begin();
        const auto notices = [&home] { return home.notices(); };
        emit home.document().navigator().updateReleased({9, 0, 0});
        QCOMPARE(notices(), QStringList{u"There is a newer release: 9.0.0."_s});
        home.trigger("releaseNotes");
        QVERIFY2(notices().last().contains(u"No network."_s), qPrintable(notices().last()));
        answer = Response::succeeded(
            R"([{"version": "9.0.0", "date": "2026-03-01", "notes": "Faster."}])",
            u"application/json"_s);
        home.trigger("releaseNotes");
        QCOMPARE(home.questions().asked.last(), u"Release notes\n9.0.0, 2026-03-01\nFaster."_s);
        QCOMPARE(notices().size(), 1);
    }
};

static const kiv::test::Suite<TestFileOutputs> testFileOutputsSuite;

#include "tst_file_outputs.moc"

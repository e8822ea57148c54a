// SPDX-License-Identifier: GPL-3.0-or-later
#include "household.h"

using kiv::test::Ended;
using kiv::test::Household;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Everything that the budget holds.
QByteArray everything(const Household &home)
{
    return home.run("export --format json").out;
}

} // namespace

/// What was saved before can be looked at and comes back.
class TestKivVersions : public QObject {
    Q_OBJECT

private slots:
    void whatWasUndoneIsBackAndUndoneAgainIsThereAgain_data()
    {
        QTest::addColumn<QByteArray>("line");
        for (const char *line :
             {"bill add Gym 30 --tag sport", "bill update Rent --amount 1.00 --no-tags",
              "bill rename Rent Flat", "wage remove Salary", "bank remove First",
              "account recode Checking --number 77", "transaction remove 1",
              "pay Rent 5 --account Checking", "skip Rent", "transaction reconcile 1",
              "survey complete First Checking --balance 2500 --tick 1 --date 2026-01-02"})
            QTest::newRow(line) << QByteArray(line);
    }
    void whatWasUndoneIsBackAndUndoneAgainIsThereAgain()
    {
        QFETCH(const QByteArray, line);
        const Household home;
        QVERIFY(home.begin());
        const QByteArray before = home.bytes();
        QVERIFY(home.runAll({line.constData()}));
        const QByteArray after = home.bytes();
        QVERIFY(after != before);

        const Ended dry = home.run("undo --dry-run");
        QVERIFY2(dry.status == 0 && dry.out.contains("nothing is saved"), dry.err.constData());
        QCOMPARE(home.bytes(), after);
        QVERIFY(home.runAll({"undo"}));
        QCOMPARE(home.bytes(), before);
        QVERIFY(home.runAll({"undo"}));
        QCOMPARE(home.bytes(), after);
    }

    void olderVersionsComeBackByNumber()
    {
        const Household home;
        QVERIFY(home.begin());
        const QByteArray first = everything(home);
        QVERIFY(home.runAll({"bill add Gym 30", "bill add Club 20"}));
        const QByteArray last = everything(home);
        const QJsonObject undone = home.json("undo --to 2").object();
        QCOMPARE(everything(home), first);
        QStringList changes;
        for (const QJsonValue &change : undone["changes"_L1].toArray())
            changes += change["change"_L1].toString() + u' ' + change["name"_L1].toString();
        QVERIFY(changes.contains(u"removed bill Gym"_s) &&
                changes.contains(u"removed bill Club"_s));
        // The replaced version is the newest of the former ones.
        QVERIFY(home.runAll({"undo"}));
        QCOMPARE(everything(home), last);
    }

    void undoIsRefusedWhereItWouldLoseSomething()
    {
        const Household home;
        QVERIFY(home.runAll({"new"}));
        const auto refused = [&home](const char *line, int status, const char *why) {
            const QByteArray before = home.bytes();
            const Ended ended = home.run(line);
            if (ended.status == status && ended.err.contains(why) && ended.out.isEmpty() &&
                home.bytes() == before)
                return true;
            qWarning("%s: %d %s", line, ended.status, ended.err.constData());
            return false;
        };
        QVERIFY(refused("undo", 1, "none was kept"));
        QVERIFY(home.runAll({"bank add First"}));
        QVERIFY(refused("undo --to 2", 1, "There is no former version 2; kiv history"));
        QVERIFY(refused("undo --to 6", 2, "from 0 to 5"));
        QVERIFY(refused("undo --to x", 2, "from 0 to 5"));
        QVERIFY(refused("history diff 1 3", 1, "There is no former version 3"));
        // Somebody else works on the file.
        QProcess other;
        other.start(QStringLiteral(KIV_PROGRAM), {u"shell"_s, u"--file"_s, home.file()});
        other.write("info\n");
        QVERIFY(other.waitForReadyRead());
        QVERIFY(refused("undo", 1, "household.budget"));
        other.closeWriteChannel();
        QVERIFY(other.waitForFinished());
        // The former version is no file, or damaged; the file is not the worse for it.
        QFile::remove(home.path("household.budget.backup-1"));
        QVERIFY(QDir().mkdir(home.path("household.budget.backup-1")));
        QVERIFY(refused("undo", 1, "household.budget.backup-1"));
        QVERIFY(QDir().rmdir(home.path("household.budget.backup-1")));
        home.write(home.path("household.budget.backup-1"), home.bytes().chopped(100));
        QVERIFY(refused("undo", 1, "is not whole"));
        QVERIFY(home.run("history").out.contains("not whole"));
        // So is the file itself; what to do then is said.
        const QByteArray whole = home.bytes();
        home.write(home.file(), whole.chopped(100));
        QVERIFY(refused("undo", 1, "kiv history tells which former version is whole; copy"));
        QCOMPARE(home.run("history").out.count("not whole"), 2);
        home.write(home.file(), whole);
    }

    void aShellUndoesInMemoryAndInTheFile()
    {
        const Household home;
        QVERIFY(home.begin());
        const QByteArray before = everything(home);
        const Ended ended = home.run("shell", "bill add Gym 30\nundo --dry-run\nbill list\n"
                                              "undo\nbill list\nbill add Club 20\nundo\n");
        QVERIFY2(ended.status == 0, ended.err.constData());
        // Told when it was added and in the first list, and twice each time it is
        // undone, with its account.
        QCOMPARE(ended.out.count("Gym"), 6);
        QCOMPARE(everything(home), before);
    }

    void historyListsWhatIsKept()
    {
        const Household home;
        QVERIFY(home.begin());
        QVERIFY(home.runAll({"bill add Gym 30", "pay Gym 5 --account Checking"}));
        const QJsonArray versions = home.json("history").array();
        QCOMPARE(versions.size(), 6); // the file and the five former ones
        const auto counts = [&versions](int at) {
            const QJsonValue version = versions.at(at);
            return u"%1: %2 %3 %4"_s.arg(version["version"_L1].toInt())
                .arg(version["items"_L1].toInt())
                .arg(version["accounts"_L1].toInt())
                .arg(version["transactions"_L1].toInt());
        };
        QCOMPARE(counts(0), u"0: 3 5 2"_s);
        QCOMPARE(counts(1), u"1: 3 5 1"_s);
        QCOMPARE(counts(2), u"2: 2 4 1"_s);
        QCOMPARE(counts(5), u"5: 0 0 0"_s);
        QCOMPARE(QFileInfo(versions.at(1)["file"_L1].toString()).fileName(),
                 u"household.budget.backup-1"_s);
        const auto saved = [&versions](int at) {
            return QDateTime::fromString(versions.at(at)["savedAt"_L1].toString(),
                                         Qt::ISODateWithMs);
        };
        QVERIFY(saved(0).isValid() && saved(0) >= saved(1) && saved(1) >= saved(2));
        QVERIFY(saved(0).secsTo(QDateTime::currentDateTimeUtc()) < 600);
    }

    void differencesAreToldFieldByField()
    {
        const Household home;
        QVERIFY(home.begin());
        QVERIFY(home.runAll({"bill update Rent --amount 1300.00 --tag home",
                             "pay Rent 5 --account Checking --date 2026-02-03"}));
        const auto told = [&home](const char *line) {
            QStringList lines;
            for (const QJsonValue &change : home.json(line).array())
                lines += change["change"_L1].toString() + u' ' + change["what"_L1].toString() +
                         u' ' + change["name"_L1].toString();
            return lines.join(u"; "_s);
        };
        QCOMPARE(told("history diff"),
                 u"changed account 1 Checking; changed account 3 Rent [Budget Item]; "
                 "added transaction 2"_s);
        QCOMPARE(told("history diff 2 1"), u"changed item bill Rent"_s);
        QCOMPARE(told("history diff 0 1"),
                 u"changed account 1 Checking; changed account 3 Rent [Budget Item]; "
                 "removed transaction 2"_s);
        QCOMPARE(told("history diff 1 1"), QString());
        const QByteArray table = home.run("history diff 2 0").out;
        QVERIFY2(table.contains("amount 1250.00 USD → 1300.00 USD, tags  → home"), table);
        QVERIFY2(table.contains("2026-02-03, 5.00 USD"), table);
        QVERIFY(home.runAll({"account add Food --type expense", "account add Out --type expense",
                             "account recode Food --under Out", "account remove Food",
                             "account add Food --type income --number 5"}));
        QVERIFY(home.run("history diff 3 2").out.contains("parent – → 6"));
        QVERIFY(home.run("history diff 3 0").out.contains("type expense → income"));
    }

    void everyPromiseOfAFileIsTold_data()
    {
        QTest::addColumn<qsizetype>("at"); // the byte that is changed
        QTest::addColumn<QByteArray>("broken");
        QTest::newRow("whole") << qsizetype(-1) << QByteArray();
        QTest::newRow("another kind of file") << qsizetype(70) << QByteArray("identity");
        QTest::newRow("a newer version") << qsizetype(61) << QByteArray("identity");
        QTest::newRow("a word of the tables") << qsizetype(-2) << QByteArray("tables");
        QTest::newRow("a letter of a name") << qsizetype(-3) << QByteArray("seal");
    }
    void everyPromiseOfAFileIsTold()
    {
        QFETCH(qsizetype, at);
        QFETCH(const QByteArray, broken);
        const Household home;
        QVERIFY(home.begin());
        QByteArray bytes = home.bytes();
        if (at < -1)
            at = bytes.indexOf(at == -2 ? "CREATE TABLE" : "Checking");
        if (at >= 0)
            bytes[at] = static_cast<char>(bytes[at] ^ 1);
        home.write(home.file(), bytes);

        const Ended ended = home.run("check --json");
        QCOMPARE(ended.status, broken.isEmpty() ? 0 : 1);
        QCOMPARE(ended.json()["whole"_L1].toBool(), broken.isEmpty());
        QByteArray judged;
        bool isBehind = false;
        for (const QJsonValue &promise : ended.json()["promises"_L1].toArray()) {
            const bool isIt = promise["promise"_L1].toString().toUtf8() == broken;
            QCOMPARE(promise["verdict"_L1].toString(), isIt       ? u"broken"_s
                                                       : isBehind ? u"not judged"_s
                                                                  : u"kept"_s);
            isBehind = isBehind || isIt;
            judged += promise["promise"_L1].toString().toUtf8() + ' ';
        }
        QCOMPARE(judged, QByteArray("identity tables seal rules ties balances sides "));
        QVERIFY(home.run("check").out.contains(broken.isEmpty() ? "is whole." : "is not whole;"));
        QCOMPARE(home.bytes(), bytes);
    }

    void checkTakesBackupsAndOpenFilesAndSaysWhatIsMissing()
    {
        const Household home;
        QVERIFY(home.begin());
        QVERIFY(home.run("check household.budget.backup-1").out.contains("is whole."));
        QVERIFY(home.run("check household").out.contains("2500.00 USD"));
        QCOMPARE(home.run("check nowhere").status, 1);
        QCOMPARE(home.run("check .").status, 1);
        // What has lost its account is mended when it is opened.
        QVERIFY(home.runAll({"account remove 3"}));
        QVERIFY(home.run("check").out.contains("mended when it is opened"));
        // Somebody who works on the file keeps nobody from looking at it.
        QVERIFY(home.run("shell", "check\nhistory\n").out.contains("is whole."));
    }
};

QTEST_GUILESS_MAIN(TestKivVersions)
#include "tst_kiv_versions.moc"

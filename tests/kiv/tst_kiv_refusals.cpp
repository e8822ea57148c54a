// SPDX-License-Identifier: GPL-3.0-or-later
#include "household.h"

#include <fcntl.h>
#include <sys/file.h>

using kiv::test::Ended;
using kiv::test::Household;

/// Whatever is wrong with a call: one sentence on standard error, exit status 1
/// or 2, nothing on standard output, and the file as it was, byte for byte.
class TestKivRefusals : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        QVERIFY(m_household.begin());
        QVERIFY(QFile::link(m_household.path("away.budget"), m_household.path("link.budget")));
    }

    void badInputChangesNothing_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("sentence");
        QTest::addColumn<QByteArray>("input");
        const auto row = [](const char *name, const char *line, int status, const char *sentence,
                            const char *input = "") {
            QTest::newRow(name) << QByteArray(line) << status << QByteArray(sentence)
                                << QByteArray(input).replace('\'', '"');
        };
        const char *const amount = "is not an amount";
        row("letters in an amount", "bill add Gym 12,3x", 2, amount);
        row("a comma for the point", "bill add Gym 1,250", 2, amount);
        row("no digit behind the point", "bill add Gym 12.", 2, amount);
        row("an exponent", "bill add Gym 1e3", 2, amount);
        row("two currencies", "bill add Gym USD_1_EUR", 2, amount);
        row("an amount of forty digits", "bill add Gym 1234567890123456789012345678901234567890", 2,
            "too large");
        row("more digits than the cents", "bill add Gym 12.345_USD", 2, "'12.345 USD' has more");
        row("cents of a yen", "bill add Gym 12.5_JPY", 2, "no minor unit");
        row("unknown currency", "bill add Gym 12_ABQ", 2, "'ABQ' is not a currency");
        row("no currency at all", "bill add Gym 12_XXX", 2, "'XXX' is not a currency");
        row("a day that does not exist", "bill add Gym 12 --next 2026-02-30", 2,
            "'2026-02-30' is not a date");
        row("a date in another order", "bill add Gym 12 --next 30.01.2026", 2, "is not a date");
        row("a date with more behind it", "bill add Gym 12 --next 2026-01-30T10:00", 2,
            "is not a date");
        row("unknown frequency", "bill add Gym 12 --every moonly", 2, "'moonly' is none of: none");
        row("an empty name", "bill add  _ 12", 2, "A name cannot be empty");
        row("nothing to change", "bill update Rent", 2, "Nothing to change");
        row("nothing to change in an account", "account recode Checking", 2, "Nothing to change");
        row("nothing to change in a transaction", "transaction update 1", 2, "Nothing to change");
        row("the present version", "undo --to 0", 2, "Nothing to change");
        row("under one and under none", "account recode 1 --under 3 --top-level", 2, "--top-level");
        row("tags and none", "bill update Rent --tag home --no-tags", 2, "--no-tags");
        row("all and one", "post Rent --all --account Checking", 2, "--all");
        row("all at one amount", "post --all --amount 5 --account Checking", 2, "--amount");
        row("neither all nor one", "post --account Checking", 2, "ITEM");
        row("a kind at no bank", "debt add Car 5 --borrowed 9 --type loan", 2, "--bank");
        row("no bank account", "goal add Trip 5 --target 9 --bank-account 3", 1, "No bank keeps");
        row("detached from no bank", "bank-account detach 3", 1, "No bank keeps");
        row("a transfer out of an item", "transfer 3 Checking 5", 1, "3");
        row("an unknown option", "bill add Gym 12 --colour red", 2, "--colour");
        row("a missing argument", "bill add Gym", 2, "AMOUNT");
        row("an option without its value", "bill add Gym 12 --next", 2,
            "--next needs a value (DATE).");
        row("an option twice", "bill add Gym 12 --next 2026-01-01 --next 2026-01-02", 2,
            "--next was given 2 times, where 1 is the most.");
        row("a flag with a value", "bill list --json=perhaps", 2, "perhaps");
        row("no number", "transaction remove one", 2, "'one' is not");
        row("a number below the lowest", "transaction remove 0", 2, "1 to 65535");
        row("no percentage", "configure set --survey-window 5x%", 2, "'5x%' is no");
        row("no rate", "rates set EUR USD", 2, "'USD' is not");
        row("an unknown display", "configure set --display name", 2, "'name' is none of: code");
        row("an unknown form", "export --format pdf", 2, "'pdf' is none of: journal, csv, json");
        row("an unknown command", "frobnicate", 2, "'frobnicate' is no command; kiv --help");
        row("a slip in a command", "bil list", 2, "'bil' is no command; did you mean 'bill'?");
        row("a slip in a command below", "bank-account atach 1", 2, "did you mean 'attach'?");
        row("neighbours exchanged in an option", "bill add Gym 12 --evrey=daily", 2,
            "'--evrey' is no option of this command; did you mean '--every'?");
        row("a slip in an option that is needed", "post Rent --acount Checking", 2,
            "did you mean '--account', '--amount'?");
        row("a slip behind an option", "--file household bil list", 2, "did you mean 'bill'?");
        row("a slip behind a flag", "--json bil list", 2, "'bil' is no command");
        row("an unknown letter", "-x bill list", 2, "-x");
        row("a slip in a choice", "bill add Gym 12 --every moonthly", 2, "did you mean 'monthly'?");
        row("a slip in a template", "wizard x --bank B --account A --template teenagr", 2,
            "did you mean 'teenager'?");
        row("a slip in a currency", "bill add Gym 12_UDS", 2, "did you mean 'USD', 'UZS'?");
        row("a currency by its name", "rates set euros USD=1", 2, "did you mean 'EUR'?");
        row("a rate that is none", "rates set USD EUR=abc", 2, "write one like EUR=0.92.");
        row("no command", "", 2, "A command is missing");
        row("half a command", "bank", 2, "A command is missing");
        row("a negative bill", "bill add Gym -- -12", 1, "amount");
        row("an item that is there", "bill add Rent 12 ", 1, "already exists");
        row("an item named like an account", "wage add Checking 12", 1,
            "The budget item has the same name as an existing ledger account.");
        row("an account named like an item", "account add Rent --type expense", 1,
            "The code name is the same name as an existing budget item.");
        row("a bank account named like an item", "bank-account add Salary --bank First", 1,
            "The code name is the same name as an existing budget item.");
        row("an unknown account", "ledger Savings", 1,
            "There is no account 'Savings'; kiv accounts lists those that there are.");
        row("a slip in an account", "ledger Chekcing", 1, "did you mean 'Checking'?");
        row("the beginning of an account", "ledger Opening", 1,
            "did you mean 'Opening Balances USD [Equity]'?");
        row("a slip in a bank", "bank rename Frist New", 1,
            "There is no bank 'Frist'; did you mean 'First'?");
        row("a slip in an item", "bill rename rent Flat", 1,
            "There is no bill 'rent'; did you mean 'Rent'?");
        row("a slip in an item to be changed", "wage update Salery --amount 1", 1,
            "did you mean 'Salary'?");
        row("a slip in an item of any kind", "post Salray --account Checking", 1,
            "There is no budget item 'Salray'; did you mean 'Salary'?");
        row("an unknown tag", "tags remove home", 1, "There is no tag 'home'; kiv tags list");
        row("an unknown bank", "bank-account add Savings --bank Second", 1,
            "There is no bank 'Second'; kiv banks lists");
        row("an unknown item", "bill rename Gym Club", 1, "");
        row("an item of another kind", "bill remove Salary", 1,
            "There is no bill 'Salary'; kiv bill list shows");
        row("an account number in use", "account add Food --type expense --number 1", 1, "");
        row("a parent of another kind", "account add Food --type expense --under Checking", 1, "");
        row("closing an account with a balance", "account close Checking", 1, "");
        row("the same account twice", "transaction add 5 --debit Checking --credit 1", 1, "");
        row("an amount of nothing", "transaction add 0 --debit 3 --credit Checking", 1, "");
        row("an unknown transaction", "transaction remove 77", 1, "");
        row("an unknown transaction to be changed", "transaction update 77 --amount 1", 1,
            "There is no transaction 77; kiv transactions lists");
        row("one unknown among several", "transaction clear 1 77", 1, "");
        row("a transaction number out of range", "transaction remove 65536", 2, "1 to 65535");
        row("more than the purchase refunded", "refund 1 9999.00", 1, "");
        row("a missing file", "accounts --file nowhere", 1, "nowhere.budget");
        row("a folder for a file", "accounts --file .", 1, "");
        row("a new file over an old one", "new household", 1, "exists already");
        row("a new file through a link", "new link", 1, "exists already");
        row("no text", "shell", 2, "UTF-8", "bank add B\xff\n");
        const char *const load = "transaction load -";
        row("a list cut off", load, 2, "at byte 2", "[{");
        row("no list", load, 2, "has no list of transactions", "{'transactions': 1}");
        row("a list without an account", load, 2, "transaction 1 of '-': \"debit\"", "[{}]");
        row("a list with a slip", load, 2, "mean 'Checking'?\n", "[{'debit': 'Chekcing'}]");
        row("a list without a day", load, 2, "\"date\" is missing",
            "{'transactions': [{'debit': 1, 'credit': 3, 'amount': '1'}]}");
        row("a list with an unknown status", load, 2, "'x' is none of: none, cleared, reconciled",
            "[{'debit': 1, 'credit': 3, 'date': '2026-01-01', 'amount': '1', 'debitStatus': 'x'}]");
    }
    void badInputChangesNothing()
    {
        QFETCH(QByteArray, line);
        QFETCH(int, status);
        QFETCH(QByteArray, sentence);
        QFETCH(QByteArray, input);
        const QByteArray before = m_household.bytes();
        const Ended ended = m_household.run(line.constData(), input);
        QVERIFY2(isRefusal(ended, status), ended.err.constData());
        QVERIFY2(ended.err.contains(sentence), ended.err.constData());
        QCOMPARE(m_household.bytes(), before);
    }

    void commandsThatNeedAFileSayWhichIsMissing()
    {
        Household none;
        none.setVariable("KIV_FILE", {});
        for (const char *line : {"accounts", "new", "check"}) {
            const Ended ended = none.run(line);
            QVERIFY2(isRefusal(ended, 2), ended.err.constData());
            QVERIFY2(ended.err.contains("--file"), ended.err.constData());
        }
        QCOMPARE(none.run("completion words -- post G").out, QByteArray());
        QCOMPARE(none.run("rates show").out, "No exchange rates are known.\n");
        const Ended shell = none.run("shell", "new\naccounts\n");
        QCOMPARE(shell.status, 2);
        QCOMPARE(shell.err.count("--file"), 2);
    }

    void badFilesAreRefusedAndLeftAlone_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QByteArray good = m_household.bytes();
        QByteArray newer = good;
        newer[60 + 3] = 99; // SQLite keeps user_version at byte 60
        QByteArray flipped = good;
        const qsizetype name = flipped.indexOf("Checking");
        QVERIFY(name > 0);
        flipped[name] = static_cast<char>(flipped[name] ^ 1);
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("truncated") << good.first(good.size() / 2);
        QTest::newRow("one bit changed") << flipped;
        QTest::newRow("of another program") << QByteArray("%PDF-1.7 and so on\n").repeated(400);
        QTest::newRow("of a newer version") << newer;
    }
    void badFilesAreRefusedAndLeftAlone()
    {
        QFETCH(QByteArray, content);
        const QString file = m_household.path("bad.budget");
        m_household.write(file, content);
        for (const char *line : {"accounts --file bad.budget", "bank add New --file bad.budget"}) {
            const Ended ended = m_household.run(line);
            QVERIFY2(isRefusal(ended, 1), ended.err.constData());
            QVERIFY2(ended.err.contains("bad.budget"), ended.err.constData());
            QCOMPARE(m_household.bytes(file), content);
        }
    }

    void aFileThatIsOpenElsewhereIsRefused()
    {
        // A shell keeps its file open for as long as its input lasts.
        QProcess other;
        m_household.prepare(other);
        other.start(QStringLiteral(KIV_PROGRAM), {QStringLiteral("shell")});
        other.write("info\n");
        QVERIFY(other.waitForReadyRead());
        const QByteArray before = m_household.bytes();
        const Ended ended = m_household.run("bank add Second");
        QVERIFY2(isRefusal(ended, 1), ended.err.constData());
        QCOMPARE(m_household.bytes(), before);
        other.closeWriteChannel();
        QVERIFY(other.waitForFinished());
        QCOMPARE(m_household.run("bank add Second --dry-run").status, 0);
    }

    void aFullDiskLeavesTheFileAsItWas()
    {
        const QByteArray before = m_household.bytes();
        // A limit on the size of files stands for a disk that is full.
        // It is not to hinder what a coverage build writes at its end.
        const Ended ended = m_household.runProgram(
            QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"),
             QStringLiteral("trap '' XFSZ; ulimit -f 1; "
                            "LLVM_PROFILE_FILE=/dev/null exec \"$0\" bank add Second"),
             QStringLiteral(KIV_PROGRAM)});
        QVERIFY2(isRefusal(ended, 1), ended.err.constData());
        QCOMPARE(m_household.bytes(), before);
    }

    void outputThatCannotBeWrittenIsAFailure()
    {
        // The second is more than is kept until the end.
        for (const char *line : {"accounts", "completion manual"}) {
            const Ended ended = m_household.runProgram(
                QStringLiteral("/bin/sh"),
                {QStringLiteral("-c"),
                 QStringLiteral("\"$0\" %1 >/dev/full").arg(QLatin1String(line)),
                 QStringLiteral(KIV_PROGRAM)});
            QVERIFY2(isRefusal(ended, 1), ended.err.constData());
        }
    }

    void dryRunsSaveNothing()
    {
        const QByteArray before = m_household.bytes();
        const Ended ended = m_household.run("bill add Gym 30 --dry-run");
        QCOMPARE(ended.status, 0);
        QVERIFY(ended.out.contains("nothing is saved"));
        QCOMPARE(m_household.bytes(), before);
    }

private:
    static bool isRefusal(const Ended &ended, int status)
    {
        return ended.status == status && ended.out.isEmpty() && ended.err.startsWith("kiv: ") &&
               (ended.err.endsWith(".\n") || ended.err.endsWith("?\n")) &&
               ended.err.count('\n') == 1;
    }

    Household m_household;
};

QTEST_GUILESS_MAIN(TestKivRefusals)
#include "tst_kiv_refusals.moc"

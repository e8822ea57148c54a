// SPDX-License-Identifier: GPL-3.0-or-later
#include "json_schema.h"
#include "peer_balances.h"

using namespace kiv::test;

namespace {

const QByteArray csv =
    "Date;Amount;Text\n05.01.2026;-1.012,50;REWE\n06.01.2026;-3,00;Coffee\n"
    "06.01.2026;-3,00;Coffee\n07.01.2026;0,00;Nothing\n08.01.2026;20,00;Refund\n";

const QByteArray ofx = "<OFX><STMTRS><CURDEF>USD<BANKTRANLIST>\n"
                       "<STMTTRN><DTPOSTED>20260110<TRNAMT>-5.25<FITID>x1<NAME>Bakery</STMTTRN>\n"
                       "<STMTTRN><DTPOSTED>20260110<TRNAMT>-5.25<FITID>x2<NAME>Bakery</STMTTRN>\n"
                       "</BANKTRANLIST></STMTRS></OFX>\n";

} // namespace

class TestKivImport : public QObject {
    Q_OBJECT

private slots:
    /// The example of ledger's own manual. hledger knows its "apply tag" not,
    /// and posts automated transactions only when asked, in another notation.
    void aPublishedJournalHasTheSameBalancesInAllThree()
    {
        const Household home;
        const QByteArray journal =
            home.bytes(QStringLiteral(KIV_TEST_DATA "/ledger_manual.journal"));
        QByteArray plainJournal = journal;
        plainJournal.replace("apply tag", "; apply tag").replace("end tag", "; end tag");
        home.write(home.path("manual.journal"), journal);
        home.write(home.path("plain.journal"), plainJournal);
        QVERIFY(home.runAll({"new", "import manual.journal"}));

        Balances own = ownBalances(home);
        QCOMPARE(own.size(), std::size_t{15});
        const QString tithe = u"Liabilities:Tithe"_s;
        // One side of a virtual posting has no place in double entry.
        QCOMPARE(own.extract(u"Equity:Virtual"_s).mapped(), u"243.6 USD"_s);
        QCOMPARE(toolBalances(home, u"ledger"_s, home.path("manual.journal")), own);
        QCOMPARE(own.extract(tithe).mapped(), u"-243.6 USD"_s);
        QCOMPARE(toolBalances(home, u"hledger"_s, home.path("plain.journal")), own);
    }

    void aJournalOfManyFormsHasTheSameBalancesInAllThree()
    {
        const Household home;
        home.write(home.path("forms.journal"),
                   "; several currencies, prices, tags, assertions and virtual postings\n"
                   "account Assets:Cash\n\n"
                   "2026-01-01 * (12) Opening  ; from: before\n"
                   "    Assets:Cash          1000.00 EUR\n"
                   "    Equity:Opening\n\n"
                   "2026-01-01 Opening\n"
                   "    Assets:Bank:Dollars  500.00 USD  ; two\n"
                   "    Equity:Dollars\n\n"
                   "2026-01-02 Changed\n"
                   "    Assets:Bank:Dollars  110.00 USD @@ 100.00 EUR\n"
                   "    Assets:Cash          -100.00 EUR = 900.00 EUR\n\n"
                   "2026-01-03 ! Dinner, shared\n"
                   "    Expenses:Food        33.33 EUR\n"
                   "    Assets:Owed:Ann      16.67 EUR\n"
                   "    Assets:Cash\n"
                   "    [Assets:Envelope]    -10.00 EUR\n"
                   "    [Assets:Owed:Ben]    10.00 EUR\n\n"
                   "2026-01-04 Changed back\n"
                   "    Assets:Cash          7.50 EUR @ 1.12 USD\n"
                   "    Assets:Bank:Dollars\n"
                   "apply account Expenses\n\n"
                   "2026-01-05 Moved\n"
                   "    Lunch                5.00 EUR\n"
                   "    Food                -5.00 EUR\n"
                   "end apply account\n"
                   "alias owed=Assets:Owed\n\n"
                   "2026-01-06 Paid back\n"
                   "    Assets:Cash          3.00 EUR\n"
                   "    owed:Ann\n");
        QVERIFY(home.runAll({"new", "import forms.journal"}));
        Balances own = ownBalances(home);
        // Each currency that paid for another one went through an account.
        const auto isConversion = [](const auto &balance) {
            return balance.first.startsWith(u"Equity:Conversion:");
        };
        QCOMPARE(std::erase_if(own, isConversion), std::size_t{2});
        QCOMPARE(own.size(), std::size_t{9});
        for (const QString &tool : {u"ledger"_s, u"hledger"_s}) {
            QCOMPARE(toolBalances(home, tool, home.path("forms.journal")), own);
        }
    }

    void aStatementIsPreviewedPostedAndKnownAgain()
    {
        const Household home;
        QVERIFY(home.begin());
        QVERIFY(
            home.runAll({"account add Food --type expense", "account add Other --type expense"}));
        home.write(home.path("s.csv"), csv);
        QDir(home.path("")).mkpath(home.path("config") + u"/kiv/import"_s);
        home.write(home.path("config") + u"/kiv/import/rules.json"_s,
                   "{\"rules\": [{\"contains\": \"rewe\", \"account\": \"Food\"}]}");
        const QByteArray before = home.bytes();
        const char *const first = "import s.csv --into Checking --against Other --profile rules "
                                  "--date-format DD.MM.YYYY --decimal , --save-profile mine";
        const Ended preview = home.run((QByteArray(first) + " --dry-run").constData());
        QVERIFY2(preview.out.contains("1,012.50") || preview.out.contains("1012.50"),
                 preview.out.constData());
        QVERIFY(preview.out.contains("Entries of nothing are left out."));
        QCOMPARE(home.bytes(), before);

        const QJsonDocument posted = home.json(first);
        QCOMPARE(posted["posted"_L1].toInt(), 4);
        QCOMPARE(posted["transactions"_L1][0]["debitPath"_L1].toString(), u"Expenses:Food"_s);
        QCOMPARE(posted["transactions"_L1][3]["creditPath"_L1].toString(), u"Expenses:Other"_s);
        QCOMPARE(ownBalances(home)[u"Assets:Checking"_s], u"1501.5 USD"_s);

        // A third coffee is new; the other entries were there before.
        home.write(home.path("s.csv"), csv + "06.01.2026;-3,00;Coffee\n");
        const char *const again = "import s.csv --into Checking --against Other --profile mine";
        const QJsonDocument second = home.json(again);
        QCOMPARE(second["posted"_L1].toInt(), 1);
        QCOMPARE(second["duplicates"_L1].toInt(), 4);
        // What changes nothing is not saved, and keeps the former versions.
        const QByteArray formerly = home.bytes(home.file() + u".backup-1"_s);
        QCOMPARE(home.json(again)["posted"_L1].toInt(), 0);
        QCOMPARE(home.bytes(home.file() + u".backup-1"_s), formerly);
        QVERIFY(home.runAll({"import s.csv --into Checking --against Other --profile mine "
                             "--keep-duplicates"}));
        QCOMPARE(ownBalances(home)[u"Assets:Checking"_s], u"497 USD"_s);

        home.write(home.path("s.ofx"), ofx);
        QCOMPARE(home.json("import s.ofx --into Checking --against Other")["posted"_L1].toInt(), 2);
        QCOMPARE(home.json("import s.ofx --into Checking --against Other")["posted"_L1].toInt(), 0);
        QVERIFY(home.run("export").out.contains("Bakery [id x2]"));

        QVERIFY(home.run("import s.csv --into Checking --profile yours")
                    .err.contains("There is no profile 'yours' among: mine, rules."));
        QVERIFY(QDir(home.path("config") + u"/kiv/import"_s).removeRecursively());
        home.write(home.path("config") + u"/kiv/import"_s, "no folder");
        const QByteArray kept = home.bytes();
        const Ended unsaved = home.run("import s.ofx --into Checking --against Other "
                                       "--keep-duplicates --save-profile mine");
        QVERIFY2(unsaved.status == 1 && unsaved.err.contains("Cannot write '"), unsaved.err);
        QCOMPARE(home.bytes(), kept);
    }

    void refusalsLeaveTheBudgetAlone_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QByteArray>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("message");
        const auto row = [](const char *name, const char *file, const QByteArray &content,
                            const char *arguments, int status, const char *message) {
            QTest::newRow(name) << QString::fromLatin1(file) << content << QByteArray(arguments)
                                << status << QByteArray(message);
        };
        const char *const account = "--into Checking --against Salary";
        row("a broken tag", "s.ofx", QByteArray(ofx).replace("</STMTTRN>\n</B", "</STMTRN>\n</B"),
            account, 1,
            "'s.ofx', line 3: </STMTRN> stands where the <STMTTRN> of line 3 should be closed.\n");
        row("a wrong encoding", "s.csv", "Date,Amount,Text\n2026-01-05,1,caf\xe9\n", account, 1,
            "'s.csv', line 2: This is not valid UTF-8; name the file's encoding with "
            "--encoding.\n");
        row("an unknown directive", "s.journal",
            "2026-01-01 x\n Assets:A  $1\n Income:B\nbucket Assets:A\n", "", 1,
            "'s.journal', line 4: 'bucket Assets:A' is neither a transaction nor a directive that "
            "can be imported; a ; at the beginning of the line leaves it out.\n");
        row("an unknown root", "s.journal", "2026-01-01 x\n A  $1\n B\n", "", 1,
            "'s.journal', line 2: Accounts begin with Assets, Liabilities, Equity, Income or "
            "Expenses; tell what 'A' is with --root, like --root 'A=asset'.\n");
        row("an include from elsewhere", "s.journal", "include ../../etc/passwd\n", "", 1,
            "'s.journal', line 1: '../../etc/passwd' is not included: ");
        row("another currency", "s.ofx", QByteArray(ofx).replace("USD", "EUR"), account, 1,
            "'s.ofx', line 2: The amount is in EUR, and the account in USD.\n");
        row("no other account", "s.ofx", ofx, "--into Checking", 1,
            "Say with --against which account is the other side of 'Bakery', 2026-01-10.\n");
        row("what the ledger refuses half-way", "s.journal",
            "2026-01-01 x\n Assets:New  $1\n Income:I\n2026-01-02 y\n Expenses:Gone  $1\n "
            "Assets:New\n",
            "", 1, "'s.journal', line 4: ");
        row("no account", "s.qif", "!Type:Bank\nD1/25/2026\nT1\n^\n", "", 2,
            "Say with --into which account the bank statement is about.\n");
        row("no format", "s.bin", "x", account, 2,
            "say it with --format: journal, csv, ofx or qif.\n");
        row("a profile that leads elsewhere", "s.csv", "x",
            "--into Checking --against Salary --profile ../x", 2,
            "'../x' cannot name a profile; use letters, digits, '-' and '_'.\n");
        row("a profile that is not there", "s.csv", "x", "--into Checking --profile none", 1,
            "There is no profile 'none'; --save-profile saves one.\n");
        row("a root that is none", "s.journal", "x", "--root Aktiva=fish", 2,
            "'fish' is none of: ");
        row("a root of nothing", "s.journal", "x", "--root =asset", 2, "'=asset' is not");
        row("a root without a kind", "s.journal", "x", "--root Aktiva=", 2, "'Aktiva=' is not");
        row("a journal into an account", "s.journal", "x", "--into Checking", 2, "--into");
        row("an unknown format", "s.csv", "x", "--into Checking --format pdf", 2,
            "'pdf' is none of: journal, csv, ofx, qif.\n");
        const char *const text = "a,b\n";
        row("an odd decimal mark", "s.csv", text, "--into 1 --decimal x", 2,
            "'x' is none of: ., ,");
        row("a long delimiter", "s.csv", text, "--into 1 --delimiter ab", 2, "'ab' is none of: ,");
        row("a quote between cells", "s.csv", text, "--into 1 --delimiter \"", 2, "is none of: ,");
        row("no lines to skip", "s.csv", text, "--into 1 --skip x", 2, "'x' is not");
        row("fewer lines than none", "s.csv", text, "--into 1 --skip -1", 2, "'-1' is not");
        row("an include that is not there", "s.journal", "include none.journal\n", "", 1,
            "there is no such file");
        row("an include of many", "s.journal", "include *.journal\n", "", 1, "name each file");
        row("an include of a folder", "s.journal", "include config\n", "", 1,
            "there is no such file");
        row("a folder", "config", {}, "--format journal", 1, "Cannot read 'config'");
        row("what cannot be read", "/proc/self/mem", {}, "--format journal", 1,
            "Cannot read '/proc");
    }
    void refusalsLeaveTheBudgetAlone()
    {
        QFETCH(QString, file);
        QFETCH(QByteArray, content);
        QFETCH(QByteArray, arguments);
        QFETCH(int, status);
        QFETCH(QByteArray, message);
        const Household home;
        QVERIFY(home.begin());
        QVERIFY(home.runAll({"account add Gone --type expense", "account close Gone"}));
        if (!content.isNull())
            home.write(home.path(qPrintable(file)), content);
        const QByteArray before = home.bytes();
        const Ended ended = home.run(("import " + file.toLatin1() + ' ' + arguments).constData());
        QCOMPARE(ended.status, status);
        QVERIFY2(ended.err.contains(message), ended.err.constData());
        QCOMPARE(home.bytes(), before);
    }

    void everyWayToReadAStatement()
    {
        const Household home;
        QVERIFY(home.begin() && home.runAll({"account add Food --type expense"}));
        const auto posted = [&home](const QByteArray &content, const QByteArray &arguments) {
            home.write(home.path("s.bin"), content);
            const QByteArray line = "import s.bin --into 1 --against 4 --dry-run " + arguments;
            QStringList told;
            for (const QJsonValue t : home.json(line.constData())["transactions"_L1].toArray())
                told += t["date"_L1].toString() + u' ' + t["amount"_L1]["amount"_L1].toString() +
                        u' ' + t["debitPath"_L1].toString().section(u' ', 0, 0) + u' ' +
                        t["creditPath"_L1].toString().section(u' ', 0, 0) + u' ' +
                        t["description"_L1].toString();
            return told.join(u", "_s);
        };
        QCOMPARE(posted("bank\tX\nday\tsum\tof\tat\tid\tcode\tgo\n"
                        "05/01/2026\t5,25\tREWE\tKöln\t7\tUSD\tS\n",
                        "--format csv --delimiter \\t --skip 1 --date-column day "
                        "--amount-column sum --text-column of --text-column at --id-column id "
                        "--currency-column code --sign-column go --negative S "
                        "--date-format DD/MM/YYYY --decimal ,"),
                 u"2026-01-05 5.25 Income:Salary Assets:Checking REWE Köln [id 7]"_s);
        QCOMPARE(posted("2026-01-05|5.25||x\n2026-01-06||1.00|y\n",
                        "--format csv --delimiter | --no-headings --date-column 1 --in-column 2 "
                        "--out-column 3 --text-column 4"),
                 u"2026-01-05 5.25 Assets:Checking Income:Salary x, "
                 "2026-01-06 1.00 Income:Salary Assets:Checking y"_s);
        QCOMPARE(
            posted("Date,Amount,Text\n2026-01-05,5.25,\n", "--format csv --negate --decimal ."),
            u"2026-01-05 5.25 Income:Salary Assets:Checking "_s);
        // What it is shows in its beginning, and the other side in its categories.
        QVERIFY(posted(ofx, "").startsWith(u"2026-01-10 5.25 Income:Salary Assets:Checking Bak"));
        const QByteArray qif = "!Type:Bank\nD13/01/2026\nT-1\nLRent [Budget Item]\n^\n"
                               "D01/02/2026\nT-2\nLExpenses:Food\n^\n";
        const QString categories = u"2026-01-13 1.00 Expenses:Rent Assets:Checking , "
                                   "2026-02-01 2.00 Expenses:Food Assets:Checking "_s;
        QCOMPARE(posted(qif, ""), categories);
        QCOMPARE(posted("!Account\nNX\n^\n" + qif + "D01/03/2026\nT-5.25\nLNowhere\n^\n",
                        "--date-format DD/MM/YYYY"),
                 categories + u", 2026-03-01 5.25 Income:Salary Assets:Checking "_s);
    }

    void aJournalIsShownBeforeItIsPosted()
    {
        const Household home;
        home.write(home.path("a.journal"), "2026-01-01 x\n Assets:Cash  $0\n Income:Job\n");
        QVERIFY(home.runAll({"new"}));
        QVERIFY(home.run("import a.journal --dry-run").out.contains("Assets:Cash"));
        QCOMPARE(home.json("accounts").array().size(), 0);
        QVERIFY(home.runAll({"import a.journal"})); // an account alone
        QCOMPARE(home.json("accounts").array().size(), 1);
        home.write(home.path("a.journal"), "2026-01-01\n Assets:Cash  5 Fr\n Income:Job\n");
        QVERIFY(home.runAll({"import a.journal --commodity Fr=USD"}));
        QVERIFY(home.run("import - --format journal", "include a.journal\n")
                    .err.contains("there is no such file"));
        QVERIFY(
            home.run("import a.journal --commodity Fr=USD --dry-run").out.contains("duplicate"));
    }

    void aJournalOfAGigabyteIsRefusedAtOnce()
    {
        const Household home;
        QVERIFY(home.begin());
        QFile large(home.path("large.journal"));
        QVERIFY(large.open(QIODevice::WriteOnly) && large.resize(qint64{1} << 30));
        QElapsedTimer timer;
        timer.start();
        const Ended ended = home.run("import large.journal");
        QCOMPARE(ended.status, 1);
        QVERIFY2(ended.err.contains("larger than 64 MiB, which line 1 exceeds; split it"),
                 ended.err.constData());
        QVERIFY(timer.elapsed() < 20'000);
    }

    void includesAreFollowedWithinTheFolder()
    {
        const Household home;
        QVERIFY(QDir(home.path("")).mkpath(home.path("books/2026")));
        home.write(home.path("books/all.journal"), "include 2026/january.journal\n");
        home.write(home.path("books/2026/january.journal"), "include february.journal\n");
        home.write(home.path("books/2026/february.journal"),
                   "2026-02-01 x\n Assets:A  $1\n Income:I\n");
        home.write(home.path("outside.journal"), "");
        QVERIFY(QFile::link(home.path("outside.journal"), home.path("books/link.journal")));
        QVERIFY(home.runAll({"new"}));
        QCOMPARE(home.json("import books/all.journal")["posted"_L1].toInt(), 1);
        home.write(home.path("books/all.journal"), "include link.journal\n");
        const Ended link = home.run("import books/all.journal");
        QVERIFY2(link.err.contains("outside of the journal's own folder"), link.err.constData());
        home.write(home.path("books/all.journal"), "include all.journal\n");
        QVERIFY(home.run("import books/all.journal").err.contains("too deeply"));
    }

    void theExportFollowsItsSchema()
    {
        const Household home;
        QVERIFY(home.begin());
        QVERIFY(
            home.runAll({"debt add Car 200 --borrowed 5000 --bank First --type loan --tag a",
                         "goal add Trip 50 --target 900 --bank-account Checking",
                         "post --all --account Checking --date 2026-01-31", "refund 3 1.00",
                         "rates set USD EUR=0.9", "account add Euros --type asset --currency EUR",
                         "transaction add 3_EUR --debit Euros --credit Checking"}));
        const QByteArray docs = home.bytes(QStringLiteral(KIV_DOCS "/import-export.md"));
        const qsizetype begin = docs.indexOf("```json\n") + 8;
        const QJsonDocument schema =
            QJsonDocument::fromJson(docs.mid(begin, docs.indexOf("```", begin) - begin));
        QVERIFY(schema.isObject());
        const QJsonObject exported = home.json("export --format json").object();
        QVERIFY(exported["transactions"_L1].toArray().size() >= 4);
        QCOMPARE(JsonSchema(schema.object()).faultsOf(exported), QStringList());
        // The judge sees what is wrong.
        QJsonObject forged = exported;
        forged.insert(u"version"_s, 2);
        forged.insert(u"more"_s, 1);
        forged.remove(u"banks"_s);
        QCOMPARE(JsonSchema(schema.object()).faultsOf(forged),
                 (QStringList{u"$ banks"_s, u"$ more"_s, u"$.version const"_s}));
    }

    void reportsComeInThreeForms()
    {
        const Household home;
        QVERIFY(home.begin());
        QVERIFY(home.runAll({"post Rent --account Checking --date 2026-01-31"}));
        const QJsonDocument json = home.json("report --from 2026-01-01 --to 2026-02-28");
        QCOMPARE(json["currencies"_L1][0]["netWorth"_L1][1]["amount"_L1].toString(), u"1250.00"_s);
        QCOMPARE(json["items"_L1][0]["actual"_L1][0]["amount"_L1].toString(), u"1250.00"_s);
        const QByteArray page = home.run("report --html --to 2026-02-28 --title <i>").out;
        QVERIFY(page.startsWith("<!DOCTYPE html>") && page.contains("<h1>&lt;i&gt;</h1>"));
        const QByteArray chart = home.run("report --chart --to 2026-02-28").out;
        QVERIFY(chart.contains("2026-01 █"));
        // What is hardly anything is seen.
        QVERIFY(!chart.contains("▏"));
        QVERIFY(home.runAll({"pay Rent 0.01 --account Checking --date 2026-02-20"}));
        QVERIFY(home.run("report --chart --to 2026-02-28").out.contains("▏"));
        // What is owed lies to the left of what is owned.
        QVERIFY(home.runAll({"pay Rent 1250.01 --account Checking --date 2026-03-20",
                             "pay Rent 1000.00 --account Checking --date 2026-04-20"}));
        const QList<QByteArray> owed =
            home.run("report --chart --from 2026-01-01 --to 2026-04-30").out.split('\n');
        QVERIFY2(owed[3].startsWith("2026-03 ") && owed[3].endsWith("-$0.02") &&
                     owed[3].indexOf("▏") + 1 == owed[1].indexOf("█") &&
                     owed[4].startsWith("2026-04 █"),
                 owed.join('\n'));
        for (const QString &line : QString::fromUtf8(chart).split(u'\n'))
            QVERIFY2(line.size() <= 80, qPrintable(line));
        QCOMPARE(home.run("report --from 2026-02-01 --to 2026-01-01").status, 1);
        QCOMPARE(home.run("report --html --chart").status, 2);
    }
};

QTEST_GUILESS_MAIN(TestKivImport)
#include "tst_kiv_import.moc"

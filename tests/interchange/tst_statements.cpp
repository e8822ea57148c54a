// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/accounting.h"
#include "support/damage.h"

#include "interchange/csv_profile.h"
#include "interchange/csv_table.h"
#include "interchange/duplicates.h"
#include "interchange/ofx_reader.h"
#include "interchange/qif_reader.h"

#include "foundation/presentation.h"
#include "foundation/streams.h"

#include <QtTest/QtTest>

#include <libofx/libofx.h>
#include <rapidcheck.h>

using namespace kiv::interchange;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;
using kiv::accounting::Transaction;

namespace {

/// "2026-01-05 -12.34 USD|Bakery|a1|", a line an entry.
QString linesOf(const Statement &statement)
{
    QStringList lines;
    for (const StatementEntry &entry : statement.entries)
        lines += entry.date.toString(Qt::ISODate) + u' ' +
                 kiv::foundation::toQString(entry.amount) + u' ' +
                 kiv::foundation::toQString(entry.amount.code()) + u'|' + entry.text + u'|' +
                 entry.bankId + u'|' + entry.category;
    return lines.join(u'\n');
}

template <typename Read>
QString refusalOf(Read &&read)
{
    try {
        return u"read: "_s + linesOf(read());
    } catch (const ImportError &error) {
        return error.message();
    }
}

Statement readCsv(const QByteArray &bytes, const QByteArray &profile)
{
    QByteArray json = profile;
    return readCsvStatement(bytes, u"f"_s, readProfile(json.replace('\'', '"'), u"p"_s),
                            numira::toCurrency("EUR"));
}

const QByteArray ofxHead = "OFXHEADER:100\nDATA:OFXSGML\nVERSION:102\nSECURITY:NONE\n"
                           "ENCODING:USASCII\nCHARSET:1252\nCOMPRESSION:NONE\nOLDFILEUID:NONE\n"
                           "NEWFILEUID:NONE\n\n<OFX>\n<SIGNONMSGSRSV1><SONRS><STATUS><CODE>0"
                           "<SEVERITY>INFO</STATUS><DTSERVER>20260131<LANGUAGE>ENG</SONRS>"
                           "</SIGNONMSGSRSV1>\n<BANKMSGSRSV1><STMTTRNRS><TRNUID>0<STATUS><CODE>0"
                           "<SEVERITY>INFO</STATUS><STMTRS><CURDEF>USD\n<BANKACCTFROM><BANKID>1"
                           "<ACCTID>42<ACCTTYPE>CHECKING</BANKACCTFROM>\n<BANKTRANLIST>"
                           "<DTSTART>20260101<DTEND>20260131\n";
const QByteArray ofxEnd = "</BANKTRANLIST><LEDGERBAL><BALAMT>1<DTASOF>20260131</LEDGERBAL></STMTRS>"
                          "</STMTTRNRS></BANKMSGSRSV1></OFX>\n";

QByteArray ofxEntry(const char *amount, const char *id, const char *name)
{
    return QByteArray("<STMTTRN><TRNTYPE>DEBIT<DTPOSTED>20260105120000<TRNAMT>") + amount +
           "<FITID>" + id + "<NAME>" + name + "</STMTTRN>\n";
}

} // namespace

class TestStatements : public QObject {
    Q_OBJECT

private slots:
    void numbersAsTheyAreWritten_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("mark");
        QTest::addColumn<QString>("number"); // or what is wrong
        const auto row = [](const char *text, const char *mark, const char *number) {
            QTest::addRow("%s (%s)", text, mark)
                << QString::fromUtf8(text) << QString::fromUtf8(mark) << QString::fromUtf8(number);
        };
        row("1,234.56", "", "1234.56");
        row("1.234,56", "", "1234.56");
        row("1.234.567", "", "1234567");
        row("1,234", "", "two ways");
        row("0,123", "", "0.123");
        row("1,234", ".", "1234");
        row("1,234", ",", "1.234");
        row("1'234.50", ".", "1234.5");
        row("1 234,50", ",", "1234.5");
        row("12,34,567.5", ".", "1234567.5");
        row("12,50-", ",", "-12.5");
        row("(3.20)", "", "-3.2");
        row("−7", "", "-7");
        row(".5", ".", "0.5");
        row("1,23,45", "", "no number");
        row("12345,678.9", "", "no number");
        row("--1", "", "no number");
        row("1e5", "", "no number");
        row("", "", "no number");
        row("5+", "", "5");
        row("-5+", "", "no number");
        row("(5", "", "no number");
        row(",123", "", "0.123");
        row("1234,567", "", "1234.567");
        row("'5", "", "no number");
        row("1'234.567,5", "", "no number");
        row(".", "", "no number");
    }
    void numbersAsTheyAreWritten()
    {
        QFETCH(QString, text);
        QFETCH(QString, mark);
        QFETCH(QString, number);
        const auto decimal = mark.isEmpty()
                                 ? std::nullopt
                                 : std::optional(static_cast<DecimalMark>(mark.front().unicode()));
        QString read;
        try {
            read = QString::fromStdString(readNumber(text, decimal, {}).toText());
        } catch (const ImportError &error) {
            read = error.message().contains(u"two ways") ? u"two ways"_s : u"no number"_s;
        }
        QCOMPARE(read, number);
    }

    void banksTables_data()
    {
        QTest::addColumn<QByteArray>("table");
        QTest::addColumn<QByteArray>("profile");
        QTest::addColumn<QString>("lines");
        const auto row = [](const char *name, const QByteArray &table, const char *profile,
                            const char *lines) {
            QTest::newRow(name) << table << QByteArray(profile) << QString::fromUtf8(lines);
        };
        row("common headings",
            "\xEF\xBB\xBF"
            "Fecha Operaci\u00f3n,Description,Amount\r\n2026-01-05,\"a, \"\"b\"\"\",-1.50\r\n",
            "{}", "2026-01-05 -1.50 EUR|a, \"b\"||");
        row("semicolons, another notation, lines above",
            "Konto 42\n\nBuchungstag;Betrag (EUR);Verwendungszweck\n05.01.2026;-1.234,50 €;Miete\n",
            "{'skip':2,'dateFormat':'DD.MM.YYYY','decimal':','}",
            "2026-01-05 -1234.50 EUR|Miete||");
        row("two columns of amounts by number, no headings",
            "5/1/26\t\t3.00\tx\n6/1/71\t4.00\t\ty\n",
            "{'headings':false,'date':'1','out':'2','in':'3','text':['4'],'dateFormat':'D/M/YY'}",
            "2026-01-05 3.00 EUR|x||\n1971-01-06 -4.00 EUR|y||");
        row("a column by number, a day with blanks, a delimiter at the end",
            "Date,Text,Amount\n05 01 2026,x,\"1,234\",\n , ,\n",
            "{'dateFormat':'DD MM YYYY','amount':'3','decimal':'.'}", "2026-01-05 1234.00 EUR|x||");
        row("a column of signs, an identifier, a line break",
            "Date,Amount,Sign,Payee,More,Ref\n2026-01-05 10:00,9.99,S,\"A\nB\",c,77\n"
            "2026-01-06,1,H,D,,\n",
            "{'sign':'Sign','negative':['S'],'text':['Payee','More'],'id':'Ref'}",
            "2026-01-05 -9.99 EUR|A B c|77|\n2026-01-06 1.00 EUR|D||");
        row("another encoding, its own currency, negated",
            "date|amount|text|c\n2026-01-05|5|caf\xe9|USD\n",
            "{'encoding':'ISO-8859-1','currency':'c','negate':true}",
            "2026-01-05 -5.00 USD|café||");
        row("the wrong encoding", "Date,Amount,Text\n2026-01-05,1,caf\xe9\n", "{}",
            "'f', line 2: This is not valid UTF-8; name the file's encoding with --encoding.");
        row("an unknown encoding", "x", "{'encoding':'klingon'}",
            "'f': 'klingon' is no encoding that is known; write one like windows-1252 or UTF-16.");
        row("no encoding", "x", "{'encoding':''}",
            "'f': '' is no encoding that is known; write one like windows-1252 or UTF-16.");
        row("two bytes a letter", QByteArray("D\0a\0", 4), "{}",
            "'f', line 1: This is not valid UTF-8; name the file's encoding with --encoding.");
        row("a delimiter that the first line names, two bytes a letter with their mark",
            QStringEncoder(QStringEncoder::Utf16LE, QStringConverter::Flag::WriteBom)(
                u"sep=|\nDate|Text|Amount\n2026-01-05|ü|1\n2026-01-06|x\n"_s),
            "{}", "'f', line 4: The record has only 2 of the 3 cells that are needed.");
        row("a column of currencies that nobody named",
            "Date,Amount,Text,Waehrung\n2026-01-05,5,x,\n2026-01-05,5,y,USD\n", "{}",
            "2026-01-05 5.00 EUR|x||\n2026-01-05 5.00 USD|y||");
        row("a quote without an end", "Date,Amount,Text\n2026-01-05,1,\"x\n", "{}",
            "'f', line 2: A quote begins here and does not end.");
        row("an escaped quote at the end", "Date,Amount,Text\n2026-01-05,1,\"x\"\"", "{}",
            "'f', line 2: A quote begins here and does not end.");
        row("text behind a quote", "Date,Amount,Text\n2026-01-05,1,\"x\"y\n", "{}",
            "'f', line 2: There is text between a closing quote and the next delimiter.");
        row("a column that is missing", "Date,Amount,Text\n", "{'id':'No'}",
            "'f', line 1: There is no column 'No' among: Date, Amount, Text.");
        row("a number of no column", "Date,Amount,Text\n", "{'id':'4'}",
            "'f', line 1: There is no column '4' among: Date, Amount, Text.");
        row("a currency that is none", "Date,Amount,Text\n2026-01-05,1,XXX\n",
            "{'currency':'Text'}", "'f', line 2: 'XXX' is not the ISO 4217 code of a currency.");
        row("a record of delimiters", QByteArray(1001, ','), "{}",
            "'f', line 1: The record has more than 1000 cells.");
        row("more records than transactions", QByteArray("x\n").repeated(65'537), "{}",
            "'f', line 65537: A budget holds no more than 65535 transactions.");
        row("a column that nobody named", "Date,Text,Betrag (USD)\n", "{}",
            "'f', line 1: Say with --amount-column (or --in-column and --out-column) which column "
            "it "
            "is, of: Date, Text, Betrag (USD).");
        row("a short record", "Date,Text,Amount\n2026-01-05,x\n", "{}",
            "'f', line 2: The record has only 2 of the 3 cells that are needed.");
        row("a comma that divides an amount", "Date,Text,Amount\n2026-01-05,x,1,50\n", "{}",
            "'f', line 2: The record has 4 cells where there are 3 headings; a cell that holds the "
            "delimiter needs quotes around it.");
        row("a date format of nothing", "Date,Text,Amount\n", "{'dateFormat':'foo'}",
            "'p': 'foo' is no way to write days; put one together from YYYY, MM and DD, like "
            "DD.MM.YYYY.");
        row("a date format with two days", "Date,Text,Amount\n", "{'dateFormat':'YYYY-MM-DD DD'}",
            "'p': 'YYYY-MM-DD DD' is no way to write days; put one together from YYYY, MM and DD, "
            "like DD.MM.YYYY.");
        row("another order of the day", "Date,Text,Amount\n01/05/2026,x,1\n", "{}",
            "'f', line 2: '01/05/2026' is not a day written as YYYY-MM-DD; name another form with "
            "--date-format.");
        row("a mark that was misread", "Date,Text,Amount\n2026-01-05,x,1.234\n", "{'decimal':'.'}",
            "'f', line 2: '1.234' has more digits behind the decimal mark than the 2 of EUR.");
        row("a point that could group", "Date,Text,Amount\n2026-01-05,x,-1.500\n", "{}",
            "'f', line 2: '-1.500' can be read in two ways; name the decimal mark with --decimal.");
        row("points that cannot group",
            "Date,Text,Amount\n2026-01-05,x,0.500\n2026-01-05,x,1234.500\n", "{}",
            "2026-01-05 0.50 EUR|x||\n2026-01-05 1234.50 EUR|x||");
        const QByteArray signs = "Date,Text,Amount, \n2026-01-05,x,1,H\n2026-01-06,y,2,S\n";
        row("signs that nobody named", signs, "{}",
            "'f', line 3: No amount is negative, but column 4 holds 'S'; say with --sign-column "
            "and --negative what went out.");
        row("no signs beside negative amounts", QByteArray(signs).replace(",1,", ",-1,"), "{}",
            "2026-01-05 -1.00 EUR|x||\n2026-01-06 2.00 EUR|y||");
        row("both ways", "Date,Text,In,Out\n2026-01-05,x,1,2\n", "{'in':'In','out':'Out'}",
            "'f', line 2: The record has an amount that came in and one that went out.");
        row("no way", "Date,Text,Out\n2026-01-05,x,\n", "{'out':'Out'}",
            "'f', line 2: The entry has no amount.");
        row("our own table", "number,date,debit,debitAccount,amount,description\n", "{}",
            "'f', line 1: This is the table of a whole ledger, and no bank statement; import the "
            "journal instead.");
        row("nothing", "\n\n", "{}", "'f': There are neither headings nor entries.");
        row("nothing behind the lines above", "x\n", "{'skip':2}",
            "'f': There are neither headings nor entries.");
        row("a profile cut off", "x", "{\n",
            "'p', line 2: This is no import profile: unterminated object.");
        row("a list as a profile", "x", "[]",
            "'p': This is no import profile: it is not a JSON object.");
        row("a mark that is none", "x", "{'decimal':'x'}",
            "'p': This is no import profile: 'decimal' has a wrong value.");
        row("an unknown key", "x", "{'dat':'1'}",
            "'p': This is no import profile: 'dat' is no key of "
            "one.");
        row("a key of another kind", "x", "{'skip':'1'}",
            "'p': This is no import profile: 'skip' has a wrong value.");
    }
    void banksTables()
    {
        QFETCH(QByteArray, table);
        QFETCH(QByteArray, profile);
        QFETCH(QString, lines);
        QString read = refusalOf([&] { return readCsv(table, profile); });
        QCOMPARE(read.startsWith(u"read: ") ? read.mid(6) : read, lines);
    }

    void aProfileIsReadAsItWasSaved()
    {
        const QByteArray json =
            "{'delimiter':';','skip':3,'headings':false,'in':'2','negative':['S',"
            "'H'],'dateFormat':'DD.MM.YY','decimal':',','negate':true,'rules':"
            "[{'contains':'rewe','account':'Expenses:Food'}]}";
        const CsvProfile profile = readProfile(QByteArray(json).replace('\'', '"'), u"p"_s);
        QCOMPARE(profile.rules.at(0).contains, u"rewe"_s);
        QCOMPARE(profile.rules.at(0).account, u"Expenses:Food"_s);
        const QByteArray saved = toJson(profile);
        QCOMPARE(toJson(readProfile(saved, u"p"_s)), saved);
        QVERIFY(saved.contains("\"skip\": 3"));
        QVERIFY(toJson({}).contains("\"decimal\": null"));
    }

    void tablesAreReadAsTheyWereWritten()
    {
        const bool holds = rc::check("csv", [] {
            const auto cells = *rc::gen::nonEmpty(
                rc::gen::container<std::vector<std::string>>(rc::gen::string<std::string>()));
            QStringList written;
            for (const std::string &cell : cells)
                written += QString::fromLatin1(QByteArray::fromStdString(cell));
            const auto records = readCsvTable(csvLine(written), u"f"_s, u',', 1);
            if (written == QStringList{QString()})
                return; // an empty line is no record
            RC_ASSERT(records.size() == 1U);
            const QStringList read = records.front().cells;
            RC_ASSERT(read.size() == written.size());
            for (qsizetype i = 0; i < read.size(); ++i) {
                const QString safe = kiv::foundation::escaped(written[i]);
                const bool isFormula = !safe.isEmpty() && u"=+-@"_s.contains(safe[0]);
                RC_ASSERT(read[i] == (isFormula ? u'\'' + safe : safe));
            }
        });
        QVERIFY(holds);
    }

    void ofxTags_data()
    {
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QString>("lines");
        const auto row = [](const char *name, const QByteArray &body, const char *lines) {
            QTest::newRow(name) << body << QString::fromUtf8(lines);
        };
        const QByteArray good = ofxEntry("-12.34", "a1", "Fish &amp; Chips AT&T caf\xe9");
        row("a value without an end, entities, Windows' letters", good,
            "2026-01-05 -12.34 USD|Fish & Chips AT&T café|a1|");
        row("closed values and an empty one, letters by their numbers",
            "<STMTTRN><TRNTYPE>X</TRNTYPE>\n<DTPOSTED>20260105</DTPOSTED><TRNAMT>+1,5</TRNAMT>"
            "<MEMO>\n<NAME>n&#252;&#x20AC;&#0;&#x110000;</NAME><CHECKNUM></CHECKNUM></STMTTRN>\n",
            "2026-01-05 1.50 USD|nü€&#0;&#x110000;||");
        row("comments and plain sections",
            "<!-- a > b --><STMTTRN><DTPOSTED>20260105</DTPOSTED><TRNAMT>1,000.5</TRNAMT><NAME>"
            "<![CDATA[A & <B>]]></NAME></STMTTRN>\n",
            "2026-01-05 1000.50 USD|A & <B>||");
        const QByteArray more =
            "<?pi?><STMTTRN><DTPOSTED>20260105<TRNAMT>1.500<CHECKNUM>7<PAYEE><NAME>P"
            "</PAYEE><CURRENCY><CURSYM>USD</CURRENCY><MEMO/></STMTTRN>";
        row("a payee, a check, its currency", more, "2026-01-05 1.50 USD|P Check 7||");
        row("another currency", QByteArray(more).replace("USD", "EUR"),
            "'f', line 16: The amount is in EUR, and the account in USD.");
        row("an empty amount", QByteArray(good).replace("-12.34", ""),
            "'f', line 16: The entry has no TRNAMT.");
        row("a comma, which cannot group", QByteArray(good).replace("12.34", "1,234"),
            "'f', line 16: '-1,234' has more digits behind the decimal mark than the 2 of USD.");
        row("a comment without an end", "<!-- x",
            "'f', line 16: A tag is broken: its name or its '>' is missing.");
        row("more entries than transactions",
            QByteArray("<STMTTRN><DTPOSTED>20260105<TRNAMT>1</STMTTRN>").repeated(65'536),
            "'f', line 16: A budget holds no more than 65535 transactions.");
        row("a misspelt tag", good + QByteArray(good).replace("<STMTTRN>", "<STMTRN>"),
            "'f', line 17: </STMTTRN> stands where the <STMTRN> of line 17 should be closed.");
        row("a tag that is not closed", QByteArray(good).replace("</STMTTRN>", ""),
            "'f', line 17: </BANKTRANLIST> stands where the <STMTTRN> of line 16 should be "
            "closed.");
        row("a bracket that is missing", QByteArray(good).replace("<TRNAMT>", "<TRNAMT"),
            "'f', line 16: A tag is broken: its name or its '>' is missing.");
        row("no amount", QByteArray(good).replace("<TRNAMT>-12.34", ""),
            "'f', line 16: The entry has no TRNAMT.");
        row("no such day", QByteArray(good).replace("0105", "0230"),
            "'f', line 16: '20260230120000' is not a day written as YYYYMMDD.");
        row("an amount of words", QByteArray(good).replace("-12.34", "much"),
            "'f', line 16: 'much' is not a number.");
        row("a value between tags", good + "stray\n<STMTTRN>",
            "'f', line 16: A tag is broken: its name or its '>' is missing.");
    }
    void ofxTags()
    {
        QFETCH(QByteArray, body);
        QFETCH(QString, lines);
        const QString read = refusalOf([&] { return readOfx(ofxHead + body + ofxEnd, u"f"_s); });
        QCOMPARE(read.startsWith(u"read: ") ? read.mid(6) : read, lines);
    }

    void ofxFilesWithoutOneStatement()
    {
        const auto refusal = [](const QByteArray &bytes, const QString &account = {}) {
            return refusalOf([&] { return readOfx(bytes, u"f"_s, account); });
        };
        QCOMPARE(refusal("x"), u"'f': There is no <OFX> in this file."_s);
        QCOMPARE(refusal("<OFX>\n<A>"), u"'f', line 2: <A> is not closed."_s);
        QCOMPARE(refusal("<OFX></A>"),
                 u"'f', line 1: </A> stands where the <OFX> of line 1 should be closed."_s);
        QCOMPARE(refusal("<OFX></OFX>"),
                 u"'f': There is no statement of a bank account or a credit card."_s);
        const QByteArray two = "<OFX><STMTRS><CURDEF>USD<BANKACCTFROM><ACCTID>1</BANKACCTFROM>"
                               "</STMTRS>\n<CCSTMTRS><CURDEF>EUR<CCACCTFROM><ACCTID>2</CCACCTFROM>"
                               "</CCSTMTRS></OFX>";
        QCOMPARE(
            refusal(two),
            u"'f', line 2: There are several statements; choose one with --statement: 1, 2."_s);
        QCOMPARE(refusal(two, u"3"_s), u"'f': There is no statement of '3', but of: 1, 2."_s);
        QCOMPARE(readOfx(two, u"f"_s, u"2"_s).currency, numira::toCurrency("EUR"));
        for (const char *header : {"ENCODING:UTF-8\nCHARSET:1252\n", "CHARSET:NONE\n"})
            QCOMPARE(refusal(header + QByteArray(two).replace("2<", "\u00e9<"), u"3"_s),
                     u"'f': There is no statement of '3', but of: 1, \u00e9."_s);
        // XML asks for each end, and has what SGML leaves out.
        const QByteArray xml =
            "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<OFX><STMTRS><CURDEF>USD"
            "</CURDEF>\n<BANKTRANLIST><STMTTRN><DTPOSTED>20260105</DTPOSTED><TRNAMT>1"
            "</TRNAMT><NAME>caf\xe9</NAME></STMTTRN></BANKTRANLIST></STMTRS></OFX>";
        QCOMPARE(refusal(QByteArray(xml).replace("</TRNAMT>", "").replace("\xe9", "e")),
                 u"'f', line 3: <TRNAMT> is not closed."_s);
        QVERIFY(refusal(xml).contains(u"--encoding"));
        QVERIFY(refusal(QByteArray(xml).replace("UTF-8", "ISO-8859-1")).endsWith(u"café||"));
        QCOMPARE(linesOf(readOfx(xml, u"f"_s, {}, u"windows-1252"_s)),
                 u"2026-01-05 1.00 USD|café||"_s);
        QCOMPARE(refusal(QByteArray("<OFX>").repeated(40)),
                 u"'f', line 1: Tags are nested too deeply."_s);
    }

    /// A peer finds the same entries in a file without faults.
    void ofxAsLibofxReadsIt()
    {
        QByteArray bytes = ofxHead;
        for (int i = 1; i <= 50; ++i)
            bytes += ofxEntry(QByteArray::number(i * 7.01 - 100, 'f', 2).constData(),
                              ("id" + QByteArray::number(i)).constData(), "Shop");
        bytes += ofxEnd;
        QTemporaryDir folder;
        const QString path = folder.filePath(u"s.ofx"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(bytes) > 0);
        file.close();

        QStringList peer;
        LibofxContextPtr context = libofx_get_new_context();
        ofx_set_transaction_cb(
            context,
            [](OfxTransactionData data, void *found) {
                *static_cast<QStringList *>(found) +=
                    QDateTime::fromSecsSinceEpoch(data.date_posted).date().toString(Qt::ISODate) +
                    u' ' + QString::number(data.amount, 'f', 2) + u" USD|"_s +
                    QLatin1String(data.name) + u'|' + QLatin1String(data.fi_id) + u'|';
                return 0;
            },
            &peer);
        QCOMPARE(libofx_proc_file(context, path.toLocal8Bit().constData(), OFX), 0);
        libofx_free_context(context);
        QCOMPARE(peer.size(), 50);
        QCOMPARE(linesOf(readOfx(bytes, u"f"_s)), peer.join(u'\n'));
    }

    void qifRecords_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("lines");
        QTest::addColumn<QString>("format");
        const auto row = [](const char *name, const QByteArray &file, const char *lines,
                            const QString &format = {}) {
            QTest::newRow(name) << file << QString::fromUtf8(lines) << format;
        };
        row("a day beyond the twelfth tells the order",
            "!Type:Bank\nD1/25'26\nT-1,000.00\nPRent\nLHome/2026\n^\nD1/2'26\nT5\nN12\nMx\nL[odd\n",
            "2026-01-25 -1000.00 EUR|Rent||Home\n2026-01-02 5.00 EUR|12 x||[odd");
        row("an order that is named", "!Type:Cash\nD2/1/2026\nT1\n^\n", "2026-01-02 1.00 EUR|||",
            u"D/M/YYYY"_s);
        row("splits, among lists",
            "!Option:MDY\n!Clear:AutoSwitch\n!Type:Class\nNTrip\n^\n!Type:Cat\nNFood\n^\n!Account\n"
            "NBank\n^\n!Type:CCard\nD25.01.2026\nU-30\nC*\nF\nAStreet\nPShop\nSFood\n$-10\n%33\n"
            "S[Savings]/Trip\nEkept\n$-20\n^\n",
            "2026-01-25 -10.00 EUR|Shop||Food\n2026-01-25 -20.00 EUR|Shop kept||Savings");
        row("days that could be either", "!Type:Bank\nD1/2/2026\nT1\n^\n",
            "'f', line 2: The days can be read in two ways; name the order with --date-format, "
            "like "
            "M/D/YYYY.");
        row("parts that are not the whole", "!Type:Bank\nD1/25/2026\nT3\nSa\n$1\nSb\n$1\n^\n",
            "'f', line 2: The parts come to 2.00 and the whole to 3.00.");
        row("no header", "D1/2/2026\n",
            "'f', line 1: The file does not begin with a QIF header like "
            "!Type:Bank.");
        row("nothing", "", "'f': The file does not begin with a QIF header like !Type:Bank.");
        row("no entry", "!Type:Bank\n",
            "'f': There is no statement of a bank account or a credit card.");
        row("more parts than transactions",
            "!Type:Bank\nD1/25/2026\nT1\n" + QByteArray("Sa\n").repeated(65'536),
            "'f', line 65539: A budget holds no more than 65535 transactions.");
        row("investments", "!Type:Bank\n^\n!Type:Invst\n",
            "'f', line 3: '!Type:Invst' cannot be "
            "imported.");
        row("an unknown field", "!Type:Bank\nD1/25/2026\nQx\n",
            "'f', line 3: 'Qx' is no field of a bank statement.");
        row("an end within a line", "!Type:Bank\nD1/25/2026\nT-1",
            "'f', line 3: The file ends within an entry; fetch it again, or end it with a line ^.");
        row("no amount", "!Type:Bank\nD1/25/2026\n^\n", "'f', line 2: The entry has no amount.");
        row("no such day", "!Type:Bank\nD30/30/2026\nT1\n^\n",
            "'f', line 2: '30/30/2026' is not a day written as M/D/YYYY; name another form with "
            "--date-format.");
    }
    void qifRecords()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, lines);
        QifOptions options;
        options.currency = numira::toCurrency("EUR");
        QFETCH(QString, format);
        if (!format.isEmpty())
            options.dateFormat = DateFormat(format, {});
        const QString read = refusalOf([&] { return readQif(file, u"f"_s, options); });
        QCOMPARE(read.startsWith(u"read: ") ? read.mid(6) : read, lines);
    }

    void duplicatesByIdentifierOrContent()
    {
        const auto entry = [](int other, const char *amount, const char *text,
                              const char *id = "") {
            return Transaction(day("2026-01-05"), no(static_cast<std::uint32_t>(other)), no(1),
                               usd(amount),
                               withBankId(QString::fromUtf8(text), QString::fromUtf8(id)));
        };
        QCOMPARE(bankIdOf(withBankId(u"Shop"_s, u"a]b[\n1"_s)), u"ab 1"_s);
        const Transaction elsewhere(day("2026-01-05"), no(2), no(3), usd("5"), u"Coffee"_s);
        Duplicates known({entry(2, "5", "Coffee"), entry(2, "5", "Coffee"), elsewhere,
                          entry(2, "7", "Tea", "x"), entry(3, "9", "Sum; note")},
                         no(1));
        QVERIFY(known.take(entry(4, "5", "coffee")));        // moved to another account since
        QVERIFY(known.take(entry(2, "5", "Coffee", "new"))); // typed in by hand
        QVERIFY(!known.take(entry(2, "5", "Coffee")));       // the third one
        QVERIFY(known.take(entry(2, "7", "Tea house", "x")));
        QVERIFY(!known.take(entry(2, "8", "Tea", "x"))); // an identifier that was used again
        QVERIFY(!known.take(entry(2, "7", "Tea", "y")));
        QVERIFY(known.take(entry(2, "7", "Tea", "y"))); // twice in one file
        QVERIFY(known.take(entry(2, "9", "sum, note")));
        QVERIFY(known.take(entry(2, "7", "Tea"))); // typed in, with the bank's there already
        QVERIFY(
            !known.take(Transaction(day("2026-01-05"), no(1), no(2), usd("7"), u"Tea [id x]"_s)));
    }

    void damagedFilesAreReadOrRefused()
    {
        QRandomGenerator random(7);
        const QByteArray ofx = ofxHead + ofxEntry("-1.50", "1", "Shop") + ofxEnd;
        const QByteArray qif = "!Type:Bank\nD1/25/2026\nT-3\nPx\nSa\n$-3\n^\nD1/26/2026\nT2\n^\n";
        const QByteArray csv = "Date,Amount,Text\n2026-01-05,\"1.50\",x\n2026-01-06,-2,\"y\nz\"\n";
        QifOptions options;
        options.currency = numira::toCurrency("EUR");
        int read = 0;
        int refused = 0;
        const auto attempt = [&](auto &&action) {
            try {
                (void)action();
                ++read;
            } catch (const ImportError &) {
                ++refused;
            }
        };
        for (int run = randomRuns(1500); run > 0; --run) {
            attempt([&] {
                return readOfx(
                    damaged(ofx, {"<", ">", "</", "STMTTRN"}, {"<<", "/>", "<!", "\xff"}, random),
                    u"f"_s);
            });
            attempt([&] {
                return readQif(damaged(qif, {"D", "\n", "/", "!"}, {"^", "$", "'", "\xc3"}, random),
                               u"f"_s, options);
            });
            attempt([&] {
                return readCsv(
                    damaged(csv, {"\"", ",", "\n", "2026"}, {"\"\"", ";", "\r", "\xe9"}, random),
                    "{}");
            });
        }
        QVERIFY(read > 100 && refused > 100);
    }
};

QTEST_APPLESS_MAIN(TestStatements)
#include "tst_statements.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "cases.h"

#include "support/accounting.h"

#include "interchange/csv_profile.h"
#include "interchange/csv_table.h"
#include "interchange/duplicates.h"
#include "interchange/ofx_reader.h"
#include "interchange/qif_reader.h"

#include "foundation/streams.h"

#include <libofx/libofx.h>

using namespace kiv::interchange;
using namespace kiv::test;
using kiv::foundation::escaped;
using kiv::foundation::toQString;

namespace {

/// The currency and the account, then "2: 2026-01-05 -12.34 EUR|text|id|category" of
/// each entry; "[category]" where it is an account.
QString linesOf(Statement statement)
{
    forgetSharedIds(statement.entries);
    QStringList lines{(toQString(statement.currency) + u' ' + statement.account).trimmed()};
    if (statement.pending > 0)
        lines.front() += u", without what is pending"_s;
    for (const StatementEntry &entry : statement.entries)
        lines += QString::number(entry.place.line) + u": "_s + entry.date.toString(Qt::ISODate) +
                 u' ' + withCode(entry.amount) + u'|' + escaped(entry.text) + u'|' + entry.bankId +
                 u'|' + (entry.isTransfer ? u'[' + entry.category + u']' : entry.category);
    return lines.join(u'\n');
}

/// How many entries the text has by its looks alone: by tags, by lines with a day, or by
/// what marks parts and days between the ends of entries with an amount.
qsizetype entriesIn(const QString &form, const QString &text)
{
    static const QRegularExpression tag(u"<STMTTRNP?>"_s,
                                        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression lineEnd(u"[\r\n]+"_s);
    static const QRegularExpression dayInLine(
        u"(^|[,;|\\t\"])\\s*(\\d{4}-\\d\\d-\\d\\d(?![-\\d])|\\d\\d?/\\d\\d?/\\d\\d|"
        "\\d\\d([. ])\\d\\d\\3\\d{4})"_s);
    static const QRegularExpression end(u"[\r\n][ \\t]*(\\^|!(?![OoCc]))"_s);
    static const QRegularExpression amount(u"[\r\n][ \\t]*[TU]\\s*[-+.,\\d]"_s);
    static const QRegularExpression day(u"[\r\n][ \\t]*D *\\d+ *[-./] *\\d"_s);
    static const QRegularExpression part(u"[\r\n][ \\t]*S"_s);
    if (form == u"ofx")
        return text.count(tag);
    if (form == u"csv")
        return text.contains(lineEnd) ? text.split(lineEnd).filter(dayInLine).size() : 0;
    qsizetype entries = 0;
    for (const QString &record : text.split(end).filter(amount))
        entries += std::max(record.count(day), record.count(part));
    return entries;
}

/// The statement, when each entry of its text was read or is told to be left out.
Statement whole(const QString &form, const QByteArray &bytes, Statement statement)
{
    const qsizetype read = qsizetype(statement.entries.size());
    const qsizetype shown = entriesIn(form, QString::fromLatin1(bytes));
    if ((read > shown && shown > 0) ||
        read + statement.pending < shown) // what is pending may have no day
        throw std::runtime_error(
            u"%1 of %2 entries were read of:\n%3"_s
                .arg(QString::number(read), QString::number(shown), QString::fromUtf8(bytes))
                .toStdString());
    return statement;
}

/// All that a file like the case's comes to.
QString contentOf(const Case &given, const QByteArray &bytes)
{
    const numira::Currency eur = numira::toCurrency("EUR");
    if (given.file == u"ofx")
        return linesOf(
            whole(u"ofx"_s, bytes,
                  readOfx(bytes, u"f"_s, given.option("statement"), given.option("encoding"))));
    if (given.file == u"qif") {
        QifOptions options{{}, given.mark(), eur, given.option("encoding", utf8Name)};
        if (const QString format = given.option("date-format"); !format.isEmpty())
            options.dateFormat = DateFormat(format, {});
        return linesOf(whole(u"qif"_s, bytes, readQif(bytes, u"f"_s, options)));
    }
    if (given.file == u"profile") // also what was saved is read
        return QString::fromUtf8(toJson(readProfile(toJson(readProfile(bytes, u"p"_s)), u"s"_s)));
    const QByteArray profile = given.option("profile", u"{}"_s).toUtf8();
    return linesOf(whole(
        u"csv"_s, bytes,
        readCsvStatement(bytes, u"f"_s, readProfile(profile, u"p"_s),
                         numira::toCurrency(given.option("currency", u"EUR"_s).toStdString()))));
}

/// What is made of a value that the case's file is about.
QString readValue(const Case &given, const QString &text)
{
    if (given.file == u"numbers")
        return QString::fromStdString(readNumber(text, given.mark(), {}).toText());
    const auto currency = [](const QString &code) {
        return numira::toCurrency(code.toStdString());
    };
    if (given.file == u"amounts")
        return toQString(statementAmount(text.section(u' ', 1), currency(text.section(u' ', 0, 0)),
                                         given.mark(), {}));
    if (given.file == u"days")
        return DateFormat(given.option("date-format"), {})
            .read(text)
            .value_or(QDate())
            .toString(Qt::ISODate);
    if (given.file == u"currencies") {
        const auto found = readCurrency(text, currency(given.option("preferred")));
        return found ? toQString(*found) : QString();
    }
    if (given.file == u"delimiters")
        return escaped(guessDelimiter(text));
    if (given.file == u"cells") {
        const QString line = csvLine(text.split(u'|'));
        return line.trimmed() + u" read as "_s +
               readCsvTable(line, {}, u',', 1)[0].cells.join(u'|');
    }
    const QString described = withBankId(text.section(u'|', 0, 0), text.section(u'|', 1));
    return described + u'|' + bankIdOf(described);
}

} // namespace

class TestStatements : public QObject {
    Q_OBJECT

private slots:
    void values_data() { addCases(u"values"_s); }
    void values()
    {
        QFETCH(Case, given);
        compareLines(given, [&](const QString &text) { return readValue(given, text); });
    }

    void statements_data() { addCases(u"statements"_s); }
    void statements()
    {
        QFETCH(Case, given);
        compare(given, outcome([&] { return contentOf(given, given.text); }));
    }

    void damagedFilesAreReadOrRefused()
    {
        const auto [sound, refused] =
            refusedOfDamaged(u"statements"_s, 60, {"\"", ",", "<", "\n", "D", "1"},
                             {"\"\"", ";", "/>", "<!", "^", "\r", "\xe9"}, &contentOf);

        QVERIFY(sound > 100 && refused > 100);
    }

    /// A peer finds the same entries in a file without faults.
    void ofxAsLibofxReadsIt()
    {
        QFile file(QFINDTESTDATA("data/sound.ofx"));
        QVERIFY(file.open(QIODevice::ReadOnly));
        QStringList peer{u"USD 42"_s};
        LibofxContextPtr context = libofx_get_new_context();
        ofx_set_transaction_cb(
            context,
            [](OfxTransactionData data, void *found) {
                *static_cast<QStringList *>(found) +=
                    QDateTime::fromSecsSinceEpoch(data.date_posted).date().toString(Qt::ISODate) +
                    u' ' + QString::number(data.amount, 'f', 2) + u" USD|"_s +
                    QString::fromUtf8(data.name) + u'|' + QLatin1String(data.fi_id) + u'|';
                return 0;
            },
            &peer);
        QCOMPARE(libofx_proc_file(context, file.fileName().toLocal8Bit().constData(), OFX), 0);
        libofx_free_context(context);
        QString own = linesOf(readOfx(file.readAll(), u"f"_s));
        QCOMPARE(own.remove(QRegularExpression(u"(?<=\n)\\d+: "_s)).split(u'\n'), peer);
        QCOMPARE(peer.size(), 4);
    }
};

static const kiv::test::Suite<TestStatements> suite;
#include "tst_statements.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "navigation/navigator_desk.h"

#include "storage/budget_file.h"

namespace {

/// Names as copied texts and enemies give them: each hostile piece in each place of an
/// ordinary name.
QStringList hostileNames()
{
    QStringList pieces =
        u"\u001b[2J·\u001b]0;t\a·\u009b31m·\r·\n·\t·\b·\u007f·\u202e·\u2066·\u200f·\u061c·"
        "\u2028·=1+1·-1·@SUM(A1)·%1%2%n·\"';--·{}[]·; x·:·  ·<b>&amp;"_qs.split(u'·');
    pieces +=
        QStringList{QChar(u'\0'), QChar(0xD800), QChar(0xDFFF), QChar(0xD800) + u"\U0001F600"_qs};
    QStringList names;
    for (const QString &piece : pieces) {
        for (const auto *frame : {u"%", u"a%", u"%a", u"a % b", u"%%"})
            names.append(QString::fromUtf16(frame).replace(u'%', piece));
    }
    // Last, since the account of the first name stands in every transaction.
    names.append(QString(100'000, u'n') + QString(100'000, QChar(0x202e)));
    return names;
}

bool isHostile(char32_t c)
{
    const auto category = QChar::category(c);
    return (category == QChar::Other_Control && c != u'\n') || category == QChar::Other_Surrogate ||
           c == 0x061c || c == 0x200e || c == 0x200f || c == 0x2028 || c == 0x2029 ||
           (c >= 0x202a && c <= 0x202e) || (c >= 0x2066 && c <= 0x2069);
}

/// The first character that a terminal must not get; 0 when there is none.
char32_t hostileIn(const QString &text)
{
    for (const char32_t c : text.toUcs4()) {
        if (isHostile(c))
            return c;
    }
    return 0;
}

} // namespace

/// Whatever a name holds, it is refused or kept exactly, and no terminal, log or
/// table is fooled by it.
class HostileNames : public QObject {
    Q_OBJECT

private slots:
    void initTestCase()
    {
        Desk desk;
        std::uint32_t number = 100'000; // far from those of the bills
        desk.navigator->onAddedAct(accounting::Account(accounting::AccountTypes::Asset,
                                                       code(number, "Cash"), usd("0"), false));
        for (const QString &name : m_names) {
            desk.navigator->onAddedAct(accounting::Account(
                accounting::AccountTypes::Asset, accounting::AccountCode(no(++number), name, {}),
                usd("0"), false));
            desk.navigator->onBankAdded(banking::Bank(banking::BankName(name), {}, false));
            const budgeting::Bill bill(budgeting::BudgetSource(name + u'!'), usd("1"),
                                       budgeting::EventFrequency::Monthly, day("2026-01-31"));
            desk.navigator->onAdded(element(), toBudgetItemTypes(bill), bill, {},
                                    tagged(bill, {tagging::Tag(name)}));
            desk.navigator->onAddedTransaction(
                {day("2026-01-31"), no(100'001), no(100'000), usd("1"), name});
            for (const QString &line : desk.take()) {
                if (line.startsWith(u"- ") || line.startsWith(u"! ") || line.startsWith(u"? "))
                    QVERIFY2(hostileIn(line) == 0 && !line.contains(u'\n'),
                             line.left(100).toUtf8().toHex());
            }
        }
        const storage::BudgetStorage::Data data = desk.save();
        for (const accounting::Account &account : data.generalLedger.accounts())
            m_kept.insert(account.code().name());
        std::set<QString> described;
        for (const accounting::Transaction &transaction : data.generalLedger.transactions())
            described.insert(transaction.description().value_or(QString()));
        for (const QString &name : m_names) {
            const budgeting::BudgetSource bill(name + u'!');
            const bool isKept =
                m_kept.contains(name) && data.banks.hasBank(banking::BankName(name)) &&
                data.budget.bills.sources().contains(bill) && described.contains(name) &&
                data.itemTags.tags({budgeting::BudgetItemTypes::Bill, bill}) ==
                    tagging::Tags{tagging::Tag(name)};
            QVERIFY2(isKept, name.left(100).toUtf8().toHex());
        }
        storage::BudgetFile file;
        file.setFilePathName(m_path);
        file.store(data);
    }

    void neverReachTheTerminal_data()
    {
        QTest::addColumn<QStringList>("arguments");
        for (const char *command :
             {"accounts", "banks", "transactions", "bill list", "due", "info", "dashboard", "check",
              "tags list", "ledger 100001", "export --format journal", "export --format json",
              "report --chart", "report --html"})
            QTest::newRow(command) << QString::fromLatin1(command).split(u' ');
    }
    void neverReachTheTerminal()
    {
        QFETCH(QStringList, arguments);
        const QByteArray output = kiv(arguments);
        QVERIFY2(!output.startsWith("failed"), output.left(300).constData());
        QVERIFY(QString::fromUtf8(output).toUtf8() == output);
        for (const QByteArray &text : {output, m_errors}) {
            const char32_t hostile = hostileIn(QString::fromUtf8(text));
            QVERIFY2(hostile == 0, qPrintable(QString::number(uint(hostile), 16)));
        }
    }

    void areNoFormulaInATable()
    {
        const QByteArray table = kiv({u"export"_qs, u"--format"_qs, u"csv"_qs});
        bool isQuoted = false;
        bool isBegin = true;
        int cells = 0;
        for (const char c : table) {
            if (isBegin && c == '"' && !isQuoted) {
                isQuoted = true;
                continue;
            }
            if (isBegin) {
                const bool isEmpty = !isQuoted && c == '\r'; // at the end of a line
                QVERIFY2(isEmpty || !QByteArray("=+-@\t\r").contains(c),
                         table.left(300).constData());
                ++cells;
            }
            isBegin = !isQuoted && (c == ',' || c == '\n');
            if (c == '"')
                isQuoted = !isQuoted;
        }
        QVERIFY(cells > 500);
        QVERIFY(hostileIn(QString::fromUtf8(table).remove(u'\r')) == 0);
    }

    void areWholeInJson()
    {
        const QByteArray output = kiv({u"accounts"_qs, u"--json"_qs});
        const QJsonDocument document = QJsonDocument::fromJson(output);
        QVERIFY2(!document.isNull(), output.left(300).constData());
        std::set<QString> names;
        for (const QJsonValue &account : document.array())
            names.insert(account[u"name"_qs].toString());
        for (const QString &name : m_kept) {
            // Half a character has no form in UTF-8; JSON has its replacement.
            if (name.isValidUtf16())
                QVERIFY2(names.contains(name), qPrintable(name.left(100)));
        }
        QVERIFY(hostileIn(QString::fromUtf8(output)) == 0);
    }

private:
    QByteArray kiv(const QStringList &arguments)
    {
        QProcess process;
        process.start(QStringLiteral(KIV_PROGRAM), QStringList(arguments)
                                                       << u"--file"_qs << m_path);
        process.waitForFinished(-1);
        m_errors = process.readAllStandardError();
        return process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0
                   ? process.readAllStandardOutput()
                   : "failed: " + m_errors;
    }

    const OwnSettings m_settings;
    const QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(QStringLiteral("home.budget"));
    const QStringList m_names = hostileNames();
    std::set<QString> m_kept; ///< the names of accounts
    QByteArray m_errors;
};

static const kiv::test::Suite<HostileNames> hostileNamesSuite;
#include "tst_hostile_names.moc"

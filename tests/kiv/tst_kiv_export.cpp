// SPDX-License-Identifier: GPL-3.0-or-later
#include "peer_balances.h"

#include <QtCore/QRandomGenerator>

using kiv::test::Balances;
using kiv::test::Ended;
using kiv::test::Household;
using kiv::test::ownBalances;
using kiv::test::toolBalances;
using namespace Qt::Literals::StringLiterals;

namespace {

/// Names that mean something else to a reader of journals, to a spreadsheet or
/// to a terminal.
const QStringList &oddNames()
{
    static const QStringList names{
        u"Food"_s,          u"Food"_s,        u"Food 7"_s,     u"A:B"_s,        u"two  blanks"_s,
        u"; no comment"_s,  u"=SUM(A1)"_s,    u"+1"_s,         u"@home"_s,      u"(virtual)"_s,
        u"[Budget Item]"_s, u"* star"_s,      u"12.00 USD"_s,  u"\"quoted\""_s, u"\x1b[31mred"_s,
        u"\u202Eturned"_s,  u"line\nbreak"_s, u"Zürich 食費"_s};
    return names;
}

} // namespace

class TestKivExport : public QObject {
    Q_OBJECT

private slots:
    /// Accounts of every kind, with odd names and in two currencies, and a
    /// thousand transactions between them.
    void initTestCase()
    {
        QVERIFY(m_home.begin());
        QByteArray script;
        for (const QString &name : oddNames()) {
            QString quoted = name;
            quoted.replace(u'\\', u"\\\\"_s).replace(u'"', u"\\\""_s);
            // A shell reads lines; the one name with a line break comes below.
            if (!name.contains(u'\n'))
                script += "account add \"" + quoted.toUtf8() + "\" --type expense --currency USD\n";
        }
        script += "account add \"=SUM(A1)\" --type asset --under Checking --currency USD\n"
                  "account add Card --type liability --currency USD --balance 120.55\n"
                  "account add Euros --type asset --currency EUR --balance 99.01\n"
                  "account add Yen --type asset --currency JPY --balance 1234567\n"
                  "account add Dinar --type asset --currency KWD --balance 1.234\n";
        const Ended shell = m_home.run("shell", script);
        QVERIFY2(shell.status == 0, shell.err.constData());
        const Ended broken = m_home.runProgram(
            QStringLiteral(KIV_PROGRAM),
            {u"account"_s, u"add"_s, u"line\nbreak"_s, u"--type"_s, u"expense"_s});
        QVERIFY2(broken.status == 0, broken.err.constData());
        QVERIFY(!broken.out.contains("line\nbreak"));

        QVERIFY(m_home.runAll({"rates set USD EUR=0.92 JPY=150 KWD=0.31"}));
        const Ended loaded =
            m_home.run("transaction load -", QJsonDocument(thousandTransactions()).toJson());
        QVERIFY2(loaded.status == 0, loaded.err.constData());
        m_home.write(m_home.path("export.journal"), m_home.run("export").out);
    }

    void bothToolsFindTheSameBalances_data()
    {
        QTest::addColumn<QString>("tool");
        QTest::newRow("ledger") << u"ledger"_s;
        QTest::newRow("hledger") << u"hledger"_s;
    }
    void bothToolsFindTheSameBalances()
    {
        QFETCH(QString, tool);
        const Balances own = ownBalances(m_home);
        QVERIFY(own.size() > 20);
        QCOMPARE(toolBalances(m_home, tool, m_home.path("export.journal")), own);
    }

    void theJournalMakesTheSameBooks()
    {
        QVERIFY(m_home.runAll({"new again", "import export.journal --file again"}));
        Balances again = ownBalances(m_home, "accounts --file again");
        const auto isConversion = [](const auto &balance) {
            return balance.first.startsWith(u"Equity:Conversion:");
        };
        QVERIFY(std::erase_if(again, isConversion) > 0);
        QCOMPARE(again, ownBalances(m_home));
        // All of it is there already.
        const QJsonDocument twice = m_home.json("import export.journal --file again --dry-run");
        QCOMPARE(twice["posted"_L1].toInt(), 0);
        QVERIFY(twice["duplicates"_L1].toInt() > 1000);
    }

    void aForgedJournalIsNoticed()
    {
        QByteArray journal = m_home.bytes(m_home.path("export.journal"));
        const QByteArray amount = "2500.00 USD";
        QVERIFY(journal.contains(amount));
        m_home.write(m_home.path("export.journal"), journal.replace(amount, "2500.01 USD"));
        const Balances own = ownBalances(m_home);
        const Balances forged = toolBalances(m_home, u"hledger"_s, m_home.path("export.journal"));
        QCOMPARE(forged.size(), own.size());
        QVERIFY(forged != own);
        m_home.write(m_home.path("export.journal"), m_home.run("export").out);
    }

    void nothingInAnExportIsObeyed()
    {
        const QByteArray csv = m_home.run("export --format csv").out;
        QCOMPARE(csv.count("\r\n"), csv.count('\n'));
        for (const char *start : {",\"=", ",\"+", ",\"-", ",\"@"})
            QVERIFY2(!csv.contains(start), start);
        QVERIFY(csv.contains("\"'=SUM(A1)\""));
        for (const char *line : {"accounts", "accounts --json", "export", "export --format csv",
                                 "export --format json", "transactions"}) {
            const QByteArray out = m_home.run(line).out;
            QVERIFY2(!out.contains('\x1b') && !out.contains("\u202E"), line);
        }
    }

    void theJsonExportLoadsIntoAnotherBudget()
    {
        const QByteArray exported = m_home.run("export --format json").out;
        const QJsonObject all = QJsonDocument::fromJson(exported).object();
        QCOMPARE(all["transactions"_L1].toArray().size(), 1004 + 1);
        QCOMPARE(all["accounts"_L1].toArray(), sorted(m_home.json("accounts").array()));
        const QByteArray before = m_home.bytes();
        const Ended refused =
            m_home.run("transaction load -",
                       "[{\"date\":\"2026-01-01\",\"debit\":1,\"credit\":2,\"amount\":\"1 USD\"},"
                       "{\"date\":\"2026-02-30\",\"debit\":1,\"credit\":2,\"amount\":\"1 USD\"}]");
        QCOMPARE(refused.status, 2);
        QVERIFY2(refused.err.contains("transaction 2"), refused.err.constData());
        QCOMPARE(m_home.bytes(), before);
    }

private:
    /// Between any two accounts, in the currency of the debited one.
    [[nodiscard]] QJsonArray thousandTransactions() const
    {
        const QJsonArray accounts = m_home.json("accounts").array();
        QRandomGenerator random(20260131);
        const auto pick = [&random](const auto &list) {
            return list[static_cast<qsizetype>(random.bounded(static_cast<int>(list.size())))];
        };
        const QStringList statuses{u"none"_s, u"cleared"_s, u"reconciled"_s};
        QJsonArray transactions;
        while (transactions.size() < 1000) {
            const QJsonValue debit = pick(accounts);
            const QJsonValue credit = pick(accounts);
            if (debit == credit)
                continue;
            const QString currency = debit["balance"_L1]["currency"_L1].toString();
            QString amount = QString::number(random.bounded(1, 5000));
            if (currency != u"JPY")
                amount += u'.' + QString::number(random.bounded(10, 100));
            transactions.append(QJsonObject{
                {u"debit"_s, debit["number"_L1]},
                {u"credit"_s, credit["number"_L1]},
                {u"date"_s, QDate(2025, 1, 1).addDays(random.bounded(700)).toString(Qt::ISODate)},
                {u"amount"_s, amount + u' ' + currency},
                {u"debitStatus"_s, pick(statuses)},
                {u"creditStatus"_s, pick(statuses)},
                {u"description"_s, pick(oddNames())}});
        }
        return transactions;
    }

    static QJsonArray sorted(const QJsonArray &accounts)
    {
        std::map<qint64, QJsonValue> byNumber;
        for (const QJsonValue &account : accounts)
            byNumber.emplace(account["number"_L1].toInteger(), account);
        QJsonArray result;
        for (const auto &[number, account] : byNumber)
            result.append(account);
        return result;
    }

    Household m_home;
};

QTEST_GUILESS_MAIN(TestKivExport)
#include "tst_kiv_export.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"

namespace {

constexpr std::array accounts{"Checking", "Credit card", "Savings"};
const QString ours = u"ours.budget"_s;
const QString theirs = u"theirs.budget"_s;

QJsonValue asked(KivCommand &kiv, const QStringList &words)
{
    return QJsonDocument::fromJson(kiv.run(words + QStringList(u"--json"_s))).object();
}

qint64 cents(const QJsonValue &money)
{
    return qRound64(money[QLatin1String("amount")].toString().toDouble() * 100);
}

/// The banks' files of a quarter: what is open in the books, and then what the same household
/// did in the quarter after.
class Statements {
public:
    Statements(HouseholdWindow &home, KivCommand &kiv)
    {
        KivCommand later(home.path(u"later.budget"_s));
        later.run({u"demo"_s, u"--date"_s, u"2026-06-30"_s});
        for (const char *account : accounts) {
            const QJsonValue last =
                asked(kiv, {u"reconciliation"_s, u"last"_s, QLatin1String(account)});
            qint64 balance = cents(last[QLatin1String("balance")]);
            const QDate since =
                QDate::fromString(last[QLatin1String("on")].toString(), Qt::ISODate);
            std::map<int, QByteArray> files;
            add(files, kiv, account, since.addDays(1), QDate(2026, 3, 31), balance);
            add(files, later, account, QDate(2026, 4, 1), QDate(2026, 6, 30), balance);
            for (const auto &[month, lines] : files)
                m_files[{month, account}] =
                    home.write(u"%1 %2.csv"_s.arg(QLatin1String(account)).arg(month),
                               "Date,Text,Amount,Balance\n" + lines);
        }
    }
    [[nodiscard]] QString of(int month, const char *account) const
    {
        const auto found = m_files.find({month, account});
        return found == m_files.end() ? QString() : found->second;
    }

private:
    static void add(std::map<int, QByteArray> &files, KivCommand &kiv, const char *account,
                    QDate from, QDate to, qint64 &balance)
    {
        const QJsonValue ledger =
            asked(kiv, {u"ledger"_s, QLatin1String(account), u"--from"_s,
                        from.toString(Qt::ISODate), u"--to"_s, to.toString(Qt::ISODate)});
        // The bank writes what is owed below zero.
        const qint64 sign = QLatin1String(account) == "Credit card"_L1 ? -1 : 1;
        const auto text = [](qint64 amount) {
            return QByteArray::number(static_cast<double>(amount) / 100, 'f', 2);
        };
        for (const QJsonValue one : ledger[QLatin1String("transactions")].toArray()) {
            // Money that goes to a goal stays at the bank.
            if (one[QLatin1String("otherPath")].toString().startsWith(u"Assets:Savings:"_s))
                continue;
            const QString date = one[QLatin1String("date")].toString();
            const qint64 change = sign * cents(one[QLatin1String("change")]);
            balance += sign * change;
            files[std::max(4, QDate::fromString(date, Qt::ISODate).month())] +=
                date.toLatin1() + ",\"" +
                one[QLatin1String("description")].toString().section(u" | "_s, 0, 0).toUtf8() +
                "\"," + text(change) + ',' + text(sign * balance) + '\n';
        }
    }

    std::map<std::pair<int, std::string>, QString> m_files;
};

} // namespace

/// A quarter of a household from its banks' files alone.
class TestStatementDay : public QObject {
    Q_OBJECT

private slots:
    void windowAndCommandComeToTheSameFigures()
    {
        HouseholdWindow home;
        KivCommand kiv(home.path(ours));
        kiv.run({u"demo"_s, u"--date"_s, u"2026-03-31"_s});
        const Statements statements(home, kiv);
        QVERIFY(QFile::copy(home.path(ours), home.path(theirs)));
        QVERIFY(home.window().open(home.path(theirs)));
        home.show();
        int surveys = 0;
        const int before = asked(kiv, {u"info"_s})[QLatin1String("transactions")].toInt();
        for (int month = 4; month <= 6; ++month) {
            for (const char *account : accounts) {
                const QString file = statements.of(month, account);
                if (file.isEmpty())
                    continue;
                const QString name = QLatin1String(account);
                kiv.run({u"import"_s, file, u"--into"_s, name});
                kiv.run({u"survey"_s, u"complete"_s, u"Town Bank"_s, name, u"--bank-file"_s, file});
                import(home, file, name);
                reconcile(home, file, name);
                ++surveys;
            }
        }
        QVERIFY(surveys >= 8);
        QVERIFY(asked(kiv, {u"info"_s})[QLatin1String("transactions")].toInt() > before + 60);
        home.document().writeNow();
        KivCommand other(home.path(theirs));
        for (const char *list :
             {"accounts", "transactions", "due", "reconciliations", "envelopes --on 2026-06-30"}) {
            const QStringList words =
                QString::fromLatin1(list).split(u' ') + QStringList{u"--json"_s};
            QCOMPARE(other.run(words), kiv.run(words));
        }
    }

private:
    static void import(HouseholdWindow &home, const QString &file, const QString &account)
    {
        home.questions().files = {file};
        home.window().desk().importFile(home.requests().accounts().find(account).code().number());
        if (home.window().page()->detail() == u"columns"_s)
            press(home, Qt::Key_N, Qt::AltModifier);
        press(home, Qt::Key_P, Qt::AltModifier);
        QCOMPARE(message(home), QString());
    }
    static void reconcile(HouseholdWindow &home, const QString &file, const QString &account)
    {
        home.window().goTo({u"survey"_s, home.number(account)});
        home.questions().files = {file};
        press(home, Qt::Key_K, Qt::AltModifier);
        QCOMPARE(message(home), QString());
        press(home, Qt::Key_O, Qt::AltModifier);
        QVERIFY2(message(home).isEmpty(), qPrintable(account + file + message(home)));
    }
};

static const kiv::test::Suite<TestStatementDay> testStatementDaySuite;
#include "tst_statement_day.moc"

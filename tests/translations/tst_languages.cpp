// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "household.h"

using kiv::test::Ended;
using kiv::test::Household;
using namespace Qt::StringLiterals;

/// The built command from outside, in the languages and locales of its users.
/// None of them need to be installed in the system.
class tst_Languages : public QObject {
    Q_OBJECT

private:
    static constexpr auto variables = {"LC_ALL",  "LC_MESSAGES", "LC_NUMERIC",
                                       "LC_TIME", "LANG",        "LANGUAGE"};

    /// "LANG=de_DE.UTF-8 LC_TIME=C" and nothing else.
    static void speak(Household &household, const QString &assignments)
    {
        for (const char *variable : variables)
            household.setVariable(variable, {});
        for (const QString &assignment : assignments.split(u' ', Qt::SkipEmptyParts)) {
            household.setVariable(assignment.section(u'=', 0, 0).toLatin1().constData(),
                                  assignment.section(u'=', 1));
        }
    }

    static Household withBudget()
    {
        Household household;
        household.setVariable("TZ", u"UTC"_s);
        return household;
    }

    /// The same without what is in the user's language.
    static QJsonValue withoutSentences(const QJsonValue &value)
    {
        QJsonArray array = value.toArray();
        for (QJsonValueRef element : array)
            element = withoutSentences(element);
        QJsonObject object = value.toObject();
        for (const auto &key : {u"text"_s, u"details"_s, u"notices"_s})
            object.remove(key);
        for (QJsonValueRef member : object)
            member = withoutSentences(member);
        return value.isArray() ? QJsonValue(array) : value.isObject() ? QJsonValue(object) : value;
    }

    Household m_household = withBudget();

private slots:
    void initTestCase()
    {
        speak(m_household, u"LC_ALL=C.UTF-8"_s);
        QVERIFY(m_household.runAll(
            {"configure set --preferred EUR --usable EUR --display symbol", "new", "bank add First",
             "bank-account add Checking --bank First --balance 1234.56 "
             "--date 2026-01-31",
             "bill add Rent 850.00 --next 2026-03-01", "wage add Salary 1500.10 --next 2026-03-02",
             "rates set EUR USD=1.25"}));
        m_household.write(m_household.path("zero.csv"), "date,amount,text\n2026-02-01,0,x\n");
        m_household.write(m_household.path("short.budget"), "SQLite format 3");
    }

    void saysItInTheUsersWords_data()
    {
        QTest::addColumn<QString>("environment");
        QTest::addColumn<QString>("line");
        QTest::addColumn<QString>("said");
        const auto row = [](const char *name, const char *environment, const char *line,
                            const QString &said) {
            QTest::newRow(name) << QString::fromLatin1(environment) << QString::fromLatin1(line)
                                << said;
        };
        const char *german = "LC_ALL=de_DE.UTF-8";
        const char *spanish = "LC_ALL=es_ES.UTF-8";
        row("a German amount", german, "accounts", u"1.234,56\u00a0€"_s);
        row("a Spanish amount", spanish, "accounts", u"1234,56\u00a0€"_s);
        row("a German day", german, "ledger Checking", u"31.01.2026"_s);
        row("a Spanish day", spanish, "ledger Checking", u"31/01/2026"_s);
        row("a German table", german, "bill list", u"monatlich"_s);
        row("a Spanish table", spanish, "bill list", u"cada mes"_s);
        row("a German refusal", german, "ledger Nothing", u"Es gibt kein Konto „Nothing“;"_s);
        row("a Spanish refusal", spanish, "ledger Nothing", u"No hay ninguna cuenta «Nothing»;"_s);
        row("a German refusal of the domain", german, "bank close Nothing", u"Bank „Nothing“"_s);
        row("German help", german, "bill add --help", u"Turnus, etwa"_s);
        row("Spanish help", spanish, "bill add --help", u"Uso:"_s);
        row("German misuse", german, "bill add", u"NAME"_s);
        row("a German question", german, "bil add", u"war „bill“ gemeint?"_s);
        row("a German sentence in JSON", german, "check --json", u"einer bekannten Version"_s);
        row("a German sum", german, "check", u"1.234,56\u00a0EUR"_s);
        row("a German rate", german, "rates show", u"1,25"_s);
        row("a German kind", german, "history diff", u"Posten  Lohn Salary"_s);
        row("German income", german, "report", u"Einnahmen"_s);
        row("a German cause", german, "accounts --file short", u"Ihr Kopf ist beschädigt."_s);
        row("a German plural", german, "due --date 2026-02-27", u"in 2 Tagen"_s);
        row("a German singular", german, "due --date 2026-03-02", u"1 Tag überfällig"_s);
        row("a Spanish plural", spanish, "due --date 2026-02-26", u"en 3 días"_s);
        row("an English singular", "LC_ALL=C.UTF-8", "due --date 2026-03-02", u"1 day late"_s);
        row("French has none yet", "LC_ALL=fr_FR.UTF-8", "ledger Nothing",
            u"There is no account 'Nothing';"_s);
        row("French days all the same", "LC_ALL=fr_FR.UTF-8", "ledger Checking", u"31/01/2026"_s);
        row("the second choice", "LANG=fr_FR.UTF-8 LANGUAGE=fr:es", "ledger Nothing",
            u"No hay ninguna"_s);
        row("English before others", "LANG=en_GB.UTF-8 LANGUAGE=en_GB:de", "ledger Nothing",
            u"There is no account"_s);
        row("another country's German", "LANG=de_AT.UTF-8", "ledger Nothing", u"Es gibt kein"_s);
        row("no language without a locale", "LANG=C.UTF-8 LANGUAGE=de", "ledger Nothing",
            u"There is no account"_s);
        row("no numbers without a locale", "LANG=C.UTF-8 LANGUAGE=de", "accounts", u"€1,234.56"_s);
        row("words and numbers apart", "LANG=en_US.UTF-8 LANGUAGE=de", "accounts", u"€1,234.56"_s);
        row("numbers of their own", "LANG=de_DE.UTF-8 LC_NUMERIC=en_US.UTF-8", "accounts",
            u"€1,234.56"_s);
        row("days of their own", "LANG=de_DE.UTF-8 LC_TIME=C", "ledger Checking", u"2026-01-31"_s);
        row("an unknown locale", "LC_ALL=tlh_KX.UTF-8", "ledger Nothing", u"There is no account"_s);
        row("nonsense", "LC_ALL=../../etc LANGUAGE=../..", "ledger Nothing",
            u"There is no account"_s);
    }

    void saysItInTheUsersWords()
    {
        QFETCH(const QString, environment);
        QFETCH(const QString, line);
        QFETCH(const QString, said);
        speak(m_household, environment);
        const Ended ended = m_household.run(line.toLatin1().constData());
        const QByteArray all = ended.out + ended.err;
        QVERIFY2(QString::fromUtf8(all).contains(said), all.constData());
    }

    /// What other programs read is the same in every language, but for sentences.
    void programsReadNoLanguage_data()
    {
        QTest::addColumn<QString>("line");
        for (const char *line :
             {"accounts --json", "ledger Checking --json", "bill list --json", "banks --json",
              "info --json", "due --date 2026-03-01 --json", "templates list --json",
              "dashboard --json", "survey show First Checking --date 2026-03-01 --json",
              "configure show --json", "rates show --json", "check --json", "history --json",
              "history diff --json",
              "import zero.csv --into Checking --against Salary_[Budget_Item] --dry-run --json",
              "export", "export --format csv", "export --format json"})
            QTest::newRow(line) << QString::fromLatin1(line);
    }

    void programsReadNoLanguage()
    {
        QFETCH(const QString, line);
        QList<QByteArray> outputs;
        for (const auto &locale : {u"C.UTF-8"_s, u"de_DE.UTF-8"_s, u"es_MX.UTF-8"_s}) {
            speak(m_household, u"LC_ALL="_s + locale);
            const Ended ended = m_household.run(line.toLatin1().constData());
            QCOMPARE(ended.status, 0);
            const QJsonDocument json = ended.json();
            outputs += json.isNull() ? ended.out
                       : json.isArray()
                           ? QJsonDocument(withoutSentences(json.array()).toArray()).toJson()
                           : QJsonDocument(withoutSentences(json.object()).toObject()).toJson();
        }
        QVERIFY(!outputs[0].isEmpty());
        QCOMPARE(outputs[1], outputs[0]);
        QCOMPARE(outputs[2], outputs[0]);
    }

    void takesTheUsersNumbersAndDays_data()
    {
        QTest::addColumn<QString>("locale");
        QTest::addColumn<QString>("words");
        QTest::addColumn<QString>("amount"); ///< empty when it is refused
        QTest::newRow("German") << u"de_DE"_s << u"1.234,50 --next 05.03.2026"_s << u"1234.50"_s;
        QTest::newRow("German with a code") << u"de_DE"_s << u"12,5_EUR"_s << u"12.5"_s;
        QTest::newRow("plain") << u"de_DE"_s << u"1234.50 --next 2026-03-05"_s << u"1234.50"_s;
        QTest::newRow("Mexican") << u"es_MX"_s << u"1,234.50 --next 05/03/2026"_s << u"1234.50"_s;
        QTest::newRow("groups alone") << u"de_DE"_s << u"1.234"_s << QString();
        QTest::newRow("another country's amount") << u"de_DE"_s << u"1,234.50"_s << QString();
        QTest::newRow("another country's day")
            << u"de_DE"_s << u"1 --next 03/05/2026"_s << QString();
        QTest::newRow("without a locale") << u"C"_s << u"12,50"_s << QString();
    }

    void takesTheUsersNumbersAndDays()
    {
        QFETCH(const QString, locale);
        QFETCH(const QString, words);
        QFETCH(const QString, amount);
        speak(m_household, u"LC_ALL="_s + locale + u".UTF-8"_s);
        const QString line = u"bill add Test "_s + words + u" --dry-run --json"_s;
        const Ended ended = m_household.run(line.toLatin1().constData());
        QCOMPARE(ended.status, amount.isEmpty() ? 2 : 0);
        if (amount.isEmpty())
            return;
        const QJsonObject bill = ended.json().object();
        QVERIFY2(bill[u"amount"_s][u"amount"_s].toString().startsWith(amount),
                 ended.out.constData());
        if (words.contains(u"--next"_s))
            QCOMPARE(bill[u"next"_s].toString(), u"2026-03-05"_s);
    }

    /// A file is read alike everywhere, so in it the locale's forms are refused.
    void documentsAreReadAlike()
    {
        speak(m_household, u"LC_ALL=de_DE.UTF-8"_s);
        const QByteArray document = R"([{"date": "2026-03-05", "debit": "Rent [Budget Item]",
            "credit": "Checking", "amount": "%1"}])";
        QCOMPARE(
            m_household
                .run("transaction load - --dry-run", QByteArray(document).replace("%1", "12.50"))
                .status,
            0);
        QCOMPARE(
            m_household
                .run("transaction load - --dry-run", QByteArray(document).replace("%1", "12,50"))
                .status,
            1);
        QCOMPARE(
            m_household
                .run(
                    "transaction load - --dry-run",
                    QByteArray(document).replace("2026-03-05", "05.03.2026").replace("%1", "12.50"))
                .status,
            1);
    }

    void questionsAreAnsweredInTheUsersLetters()
    {
        for (const char *locale : {"C", "de_DE", "es_ES"}) {
            speak(m_household, u"LC_ALL=%1.UTF-8"_s.arg(QLatin1String(locale)));
            const QByteArray yes = *locale == 'd' ? "j\n" : *locale == 'e' ? "s\n" : "y\n";
            const Ended ended =
                m_household.run("survey run First Checking --date 2026-02-01 --dry-run",
                                yes + "1234.56\n\n\n\ny\n");
            QVERIFY2(ended.status == 0 && ended.err.contains(yes.left(1) + "/n]"),
                     ended.err.constData());
        }
    }

    /// A description is written once, in the language of who posts.
    void whatIsPostedStaysAsItWasPosted()
    {
        speak(m_household, u"LC_ALL=de_DE.UTF-8"_s);
        QVERIFY(m_household.runAll({"post Rent --account Checking --date 2026-03-01"}));
        speak(m_household, u"LC_ALL=es_ES.UTF-8"_s);
        const Ended listed = m_household.run("transactions --from 2026-03-01");
        QVERIFY2(listed.out.contains("Budgetposten verarbeitet, fällig am Sun Mar 1 2026."),
                 listed.out.constData());
        QVERIFY(listed.out.contains("Expenses:Rent [Budget Item]"));
    }
};

static const kiv::test::Suite<tst_Languages> suite;
#include "tst_languages.moc"

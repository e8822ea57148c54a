// SPDX-License-Identifier: GPL-3.0-or-later
#include "household.h"

using kiv::test::Ended;
using kiv::test::Household;
using namespace Qt::Literals::StringLiterals;

/// Debts and goals at a bank, and comparing the books with a statement.
class TestKivSurveys : public QObject {
    Q_OBJECT

private slots:
    void init()
    {
        m_home.emplace();
        QVERIFY(m_home->begin());
        QVERIFY(m_home->runAll(
            {"bill add Tax 360.00_USD --every yearly --next 2026-07-01",
             "goal add Trip 50.00_USD --target 900 --bank-account Checking --next 2026-02-01",
             "debt add Car 200.00_USD --borrowed 5000.00 --bank First --next 2026-02-05 "
             "--date 2026-01-01",
             "post Rent --account Checking --date 2026-01-31",
             "post Salary --account Checking --date 2026-01-28",
             "pay Trip 75 --account Checking --date 2026-01-29"}));
    }

    void itemsAreTiedToTheirBank()
    {
        const QJsonObject trip = m_home->json("goal list").array().at(0).toObject();
        QCOMPARE(trip["bankAccount"_L1].toInt(), 1);
        QCOMPARE(balanceOf(u"Assets:Checking:Trip [Budget Item]"_s), u"75.00"_s);
        QCOMPARE(balanceOf(u"Liabilities:Car [Budget Item]"_s), u"5000.00"_s);
        // What is not given stays, the bank too.
        QVERIFY(m_home->runAll({"goal update Trip --target 950", "debt update Car --amount 210"}));
        QCOMPARE(m_home->json("goal list").array().at(0)["bank"_L1].toString(), u"First"_s);
        QCOMPARE(m_home->json("debt list").array().at(0)["bank"_L1].toString(), u"First"_s);
        QVERIFY(m_home->runAll({"goal update Trip --no-bank"}));
        QVERIFY(m_home->json("goal list").array().at(0)["bank"_L1].isUndefined());
        QCOMPARE(balanceOf(u"Assets:Trip [Budget Item]"_s), u"75.00"_s);
        // The reason stands behind what failed.
        const Ended refused = m_home->run("goal update Trip --bank-account Car_[Budget_Item]");
        QCOMPARE(refused.status, 1);
        QVERIFY2(refused.err.contains("Failed to update the goal bank account association.") &&
                     refused.err.contains("Caused by: "),
                 refused.err.constData());
    }

    void anEditedDocumentCompletesASurvey()
    {
        QJsonObject survey = m_home->json("survey show First Checking --date 2026-01-31").object();
        // 2500 + 3100 - 1250; what went to the goal stays in the family.
        QCOMPARE(survey["expectedBalance"_L1]["amount"_L1].toString(), u"4350.00"_s);
        QCOMPARE(survey["reconciledOn"_L1], QJsonValue());
        survey[u"balance"_s] = u"4330.50"_s;
        survey[u"items"_s] = QJsonArray{QJsonObject{
            {u"kind"_s, u"bill"_s}, {u"name"_s, u"Rent"_s}, {u"change"_s, u"-20.00"_s}}};
        survey[u"accounts"_s] =
            QJsonArray{QJsonObject{{u"account"_s, 2}, {u"change"_s, u"0.50 USD"_s}}};
        const QByteArray document = QJsonDocument(survey).toJson();
        survey[u"distribution"_s] = QJsonArray{QJsonObject{
            {u"kind"_s, u"bill"_s}, {u"name"_s, u"Rent"_s}, {u"distributed"_s, u"5"_s}}};
        QVERIFY(m_home->run("survey complete --from -", QJsonDocument(survey).toJson())
                    .err.contains("cannot be distributed"));
        const Ended ticked = m_home->run("survey complete --from - --tick 1 --dry-run", document);
        QVERIFY2(ticked.err.contains("must be within"), ticked.err + ticked.out);
        QCOMPARE(m_home->run("survey complete --from -", document).status, 0);

        const QJsonObject last = m_home->json("reconciliation last Checking").object();
        QCOMPARE(last["on"_L1].toString(), u"2026-01-31"_s);
        QCOMPARE(last["balance"_L1]["amount"_L1].toString(), u"4330.50"_s);
        QCOMPARE(balanceOf(u"Expenses:Rent [Budget Item]"_s), u"1270.00"_s);
        const QJsonArray all = m_home->json("transactions").array();
        QCOMPARE(all.last()["description"_L1].toString(), u"Extra-budget surveyed income."_s);
        QCOMPARE(all.last()["debitStatus"_L1].toString(), u"reconciled"_s);
        QCOMPARE(m_home->run("transaction remove 3").status, 1);
    }

    void flagsAndAnswersDoTheSame_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArray>("input");
        QTest::newRow("flags") << QByteArray("survey complete First Checking --date 2026-01-31 "
                                             "--balance 4330.00 --tick-all --item bill:Rent=-20 "
                                             "--extra 2=0 --not-distributed 0")
                               << QByteArray();
        QTest::newRow("answers") << QByteArray("survey run First Checking --date 2026-01-31")
                                 << QByteArray("yes\ny\ny\ny\ny\n433O\n4330.00\nNobody=1\n"
                                               "Rent=-20\n\n\n\ny\n");
    }
    void flagsAndAnswersDoTheSame()
    {
        QFETCH(QByteArray, line);
        QFETCH(QByteArray, input);
        const Ended given = m_home->run("survey run First Checking --date 2026-01-31",
                                        "n\ny\ny\ny\n4350\n\n\n\nn\n");
        QVERIFY2(given.err.contains("The survey was not completed."), given.err.constData());
        const Ended ended = m_home->run(line.constData(), input);
        QVERIFY2(ended.status == 0, ended.err.constData());
        QCOMPARE(m_home->json("reconciliation last Checking")["balance"_L1]["amount"_L1].toString(),
                 u"4330.00"_s);
        QCOMPARE(balanceOf(u"Expenses:Rent [Budget Item]"_s), u"1270.00"_s);
    }

    void nothingIsSetAsideOfACard()
    {
        QVERIFY(m_home->runAll({"bank-account add Card --bank First --type credit-card "
                                "--balance 80.00_USD --date 2026-01-01",
                                "pay Rent 20.00 --account Card --date 2026-01-15"}));
        QCOMPARE(m_home->run("reconciliation last Card").out, "8 Card was never reconciled.\n");
        // Two transactions, the balance, and twice nothing; no question of a distribution.
        const Ended ended =
            m_home->run("survey run First Card --date 2026-01-31", "y\ny\n100\n\n\ny\n");
        QVERIFY2(ended.out.endsWith("Reconciled 8 Card at First with a balance of $100.00.\n") &&
                     !ended.out.contains("distribut"),
                 ended.out + ended.err);
        QCOMPARE(m_home->json("survey show First Card --date 2026-02-28")["amountDue"_L1],
                 QJsonValue());
        const Ended refused = m_home->run("survey complete First Card --date 2026-02-28 "
                                          "--balance 100 --distribute Rent=5");
        QVERIFY2(refused.status == 1 && refused.err.contains("cannot be distributed"), refused.err);
    }

    void badSurveysChangeNothing_data()
    {
        QTest::addColumn<QByteArray>("line");
        QTest::addColumn<QByteArray>("sentence");
        const auto row = [](const char *name, const char *arguments, const char *sentence) {
            QTest::newRow(name) << QByteArray("survey complete First Checking --date 2026-01-31 "
                                              "--tick-all --balance 4350.00 ") +
                                       arguments
                                << QByteArray(sentence);
        };
        row("a total outside the window", "--item Rent=-500", "must be within");
        row("a transaction of another account", "--tick 2", "is not in the bank account ledger");
        row("an item that takes none", "--distribute Rent=5", "cannot be distributed");
        row("an unknown item", "--item Gym=5", "There is no budget item 'Gym'; kiv bill list");
        row("no amount", "--item Rent", "NAME=VALUE");
        for (const auto &[line, sentence] :
             {std::pair("survey complete", "BANK ACCOUNT"),
              {"survey complete First", "ACCOUNT"},
              {"survey complete First Checking", "--balance"},
              {"survey complete First --from x", "--from"},
              {"survey run First Checking --date 2026-01-31", "The answers ended"},
              {"debt update Car --type loan", "--bank"},
              {"goal update Trip --no-bank --bank-account Checking", "--no-bank"}})
            QTest::newRow(line) << QByteArray(line) << QByteArray(sentence);
        QTest::newRow("a day to come")
            << QByteArray("survey show First Checking --date 2199-01-01") << QByteArray("future");
        QTest::newRow("an account of no bank")
            << QByteArray("survey show First Rent_[Budget_Item]") << QByteArray("No bank keeps");
    }
    void badSurveysChangeNothing()
    {
        QFETCH(QByteArray, line);
        QFETCH(QByteArray, sentence);
        if (line.contains("--tick 2"))
            line.replace("--tick-all ", "");
        const QByteArray before = m_home->bytes();
        const Ended ended = m_home->run(line.constData());
        QVERIFY(ended.status == 1 || ended.status == 2);
        QVERIFY2(ended.err.contains(sentence), ended.err.constData());
        QCOMPARE(ended.err.count('\n'), 1);
        QCOMPARE(m_home->bytes(), before);
    }

    void ratesConvertOnceAndForAll()
    {
        QVERIFY(m_home->run("bill add Abo 9.99_EUR").status == 0);
        QCOMPARE(m_home->run("post Abo --account Checking").status, 1);
        QVERIFY(m_home->runAll(
            {"rates set USD EUR=0.80", "post Abo --account Checking", "rates set USD EUR=0.50"}));
        const QJsonValue posted = m_home->json("transactions").array().last();
        QCOMPARE(posted["debitAmount"_L1]["amount"_L1].toString(), u"9.99"_s);
        QCOMPARE(posted["creditAmount"_L1]["amount"_L1].toString(), u"12.49"_s);
        QCOMPARE(m_home->json("rates show")["base"_L1].toString(), u"USD"_s);
        QCOMPARE(m_home->run("rates set USD EUR=0").status, 1);
        QCOMPARE(m_home->json("rates set EUR USD=2")["rates"_L1].toArray().size(), 1);
    }

    void theWizardMakesABudget()
    {
        const QByteArray line = "wizard start --template teenager --bank First --account Savings "
                                "--type savings --balance 12.50 --currency EUR";
        const QJsonArray items = m_home->json(line.constData()).array();
        QCOMPARE(items.size(), m_home->json("templates show teenager").array().size());
        QVERIFY(items.size() > 20);
        const QJsonArray accounts = m_home->json("accounts --file start").array();
        QCOMPARE(accounts.size(), items.size() + 2);
        QCOMPARE(m_home->run(line.constData()).status, 1);
        QCOMPARE(m_home->run("wizard other --template child --bank A --account B").status, 2);
        const Ended refused =
            m_home->run(("wizard other --template teenager --bank A --account " +
                         items[0]["name"_L1].toString().replace(u' ', u'_').toUtf8())
                            .constData());
        QCOMPARE(refused.err, "kiv: The budget could not be made. The budget item has the same "
                              "name as an existing ledger account.\n");
    }

private:
    [[nodiscard]] QString balanceOf(const QString &path) const
    {
        for (const QJsonValue &account : m_home->json("accounts").array()) {
            if (account["path"_L1].toString() == path)
                return account["balance"_L1]["amount"_L1].toString();
        }
        return {};
    }

    std::optional<Household> m_home;
};

QTEST_GUILESS_MAIN(TestKivSurveys)
#include "tst_kiv_surveys.moc"

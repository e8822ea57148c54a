// SPDX-License-Identifier: GPL-3.0-or-later
#include "household.h"

using kiv::test::Ended;
using kiv::test::Household;
using namespace Qt::Literals::StringLiterals;

namespace {

QJsonObject found(const QJsonDocument &list, const char *key, const QString &value)
{
    for (const QJsonValue &element : list.array()) {
        if (element[QLatin1String(key)].toString() == value)
            return element.toObject();
    }
    return {};
}

QJsonValue parsed(const char *json)
{
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray(json).replace('\'', '"'));
    return document.isArray() ? QJsonValue(document.array()) : QJsonValue(document.object());
}

} // namespace

/// What a household does from day to day, each command a process of its own.
class TestKivHousehold : public QObject {
    Q_OBJECT

private slots:
    void aMonthFromNothingToReload()
    {
        const Household home;
        QVERIFY(home.begin());
        QVERIFY(home.runAll(
            {"bill add Power 84.35_USD --next 2026-02-10 --tag home", "bill rename Power Light",
             "post Rent --account Checking --date 2026-02-01",
             "post Salary --account Checking --date 2026-02-01", "skip Light",
             "pay Light 19.10 --account Checking --date 2026-02-11", "transaction clear 2 3",
             "transaction reconcile 2", "bill update Light --amount 90.00 --every quarterly"}));

        const QJsonDocument accounts = home.json("accounts");
        QCOMPARE(found(accounts, "name", u"Checking"_s),
                 parsed("{'number': 1, 'name': 'Checking', 'type': 'asset', 'parent': null, "
                        "'open': true, 'path': 'Assets:Checking', "
                        "'balance': {'amount': '4330.90', 'currency': 'USD'}}")
                     .toObject());
        const QJsonObject light = found(home.json("bill list"), "name", u"Light"_s);
        QCOMPARE(light, parsed("{'kind': 'bill', 'name': 'Light', 'every': 'quarterly', "
                               "'amount': {'amount': '90.00', 'currency': 'USD'}, "
                               "'next': '2026-03-10', 'tags': ['home']}")
                            .toObject());
        // The day of the month that the item was given outlives a short month.
        QCOMPARE(found(home.json("bill list"), "name", u"Rent"_s)["next"_L1].toString(),
                 u"2026-02-28"_s);
        QVERIFY(home.runAll({"skip Rent"}));
        QCOMPARE(found(home.json("bill list"), "name", u"Rent"_s)["next"_L1].toString(),
                 u"2026-03-31"_s);

        const QJsonObject info = home.json("info").object();
        QCOMPARE(info["debits"_L1], parsed("[{'amount': '6869.10', 'currency': 'USD'}]"));
        QCOMPARE(info["credits"_L1], info["debits"_L1]);
        QCOMPARE(info["transactions"_L1].toInt(), 4);
    }

    void transactionsTellBothSides()
    {
        const Household home;
        QVERIFY(home.begin());
        QVERIFY(
            home.runAll({"post Rent --account Checking --date 2026-02-01", "transaction clear 2",
                         "transaction update 2 --description A_month's_rent"}));
        const QJsonArray all = home.json("transactions").array();
        QCOMPARE(all.size(), 2);
        QJsonObject rent = all[1].toObject();
        rent.remove(u"debitPath"_s);
        rent.remove(u"creditPath"_s);
        QCOMPARE(rent, parsed("{'number': 2, 'date': '2026-02-01', 'debit': 3, 'credit': 1, "
                              "'amount': {'amount': '1250.00', 'currency': 'USD'}, "
                              "'description': 'A month\\u0027s rent', "
                              "'debitStatus': 'cleared', 'creditStatus': 'cleared'}")
                           .toObject());
        const QJsonObject ledger = home.json("ledger Checking").object();
        const QJsonArray rows = ledger["transactions"_L1].toArray();
        QCOMPARE(rows[1]["change"_L1], parsed("{'amount':'-1250.00','currency':'USD'}"));
        QCOMPARE(rows[1]["balance"_L1], parsed("{'amount':'1250.00','currency':'USD'}"));
        // A day given for the opening balance is the day of that transaction.
        QCOMPARE(all[0]["date"_L1].toString(), u"2026-01-01"_s);
    }

    void dueItemsAreToldByDay()
    {
        const Household home;
        QVERIFY(home.begin());
        const auto names = [&home](const char *line) {
            QStringList told;
            for (const QJsonValue &due : home.json(line).array())
                told +=
                    due["name"_L1].toString() + u' ' + QString::number(due["inDays"_L1].toInt());
            return told.join(u',');
        };
        QCOMPARE(names("due --date 2026-01-27"), u"Salary -2,Rent 4"_s);
        QCOMPARE(names("due --date 2026-01-27 --within 3"), u"Salary -2"_s);
        QCOMPARE(names("due --date 2026-01-01 --within 0"), QString());
        QVERIFY(home.run("post --all --account Checking --date 2026-01-31").out.contains("Rent"));
        QCOMPARE(names("due --date 2026-02-01 --within 5"), QString());
    }

    void namesInSeveralPlacesAreTold()
    {
        const Household home;
        QVERIFY(home.begin());
        QVERIFY(home.runAll({"wage add Rent 500.00_USD --next 2026-02-01",
                             "account add Twin --type expense", "account add Twin --type income"}));
        const Ended ambiguous = home.run("ledger Twin");
        QCOMPARE(ambiguous.status, 1);
        QVERIFY2(ambiguous.err.contains("6, 7"), ambiguous.err.constData());
        QVERIFY(home.run("post Rent --account Checking").err.contains("bill, wage"));
        // Posting goes by name, and would take the bill for the wage.
        QCOMPARE(home.run("post Rent --kind wage --account Checking").status, 1);
        QVERIFY(home.runAll({"pay Rent 25 --kind wage --account Checking"}));
        QCOMPARE(found(home.json("accounts"), "name", u"Checking"_s)["balance"_L1]["amount"_L1]
                     .toString(),
                 u"2525.00"_s);
    }

    void banksAccountsAndTheirStates()
    {
        const Household home;
        QVERIFY(home.begin());
        QVERIFY(home.runAll({"bank-account add Savings --bank First --type savings",
                             "bank-account rename Savings --under Checking --name Rainy_days",
                             "account add Food --type expense --number 500",
                             "account recode Food --number 510", "account close 510",
                             "bank rename First Second", "transfer Checking Checking 5"}) == false);
        const QJsonObject savings = found(home.json("accounts"), "name", u"Rainy days"_s);
        QCOMPARE(savings["path"_L1].toString(), u"Assets:Checking:Rainy days"_s);
        QCOMPARE(savings["parent"_L1].toInt(), 1);
        QCOMPARE(found(home.json("accounts"), "name", u"Food"_s)["open"_L1], QJsonValue(false));
        const QJsonArray banks = home.json("banks").array();
        QCOMPARE(banks.size(), 1);
        QCOMPARE(banks[0]["name"_L1].toString(), u"Second"_s);
        QCOMPARE(banks[0]["accounts"_L1].toArray().size(), 2);
        // Money goes out of a sub-account, and into a top-level one.
        QVERIFY(home.runAll({"transaction add 70 --debit Rainy_days --credit Checking",
                             "transfer Rainy_days Checking 20.00 --date 2026-02-02"}));
        QCOMPARE(found(home.json("accounts"), "name", u"Rainy days"_s)["balance"_L1]["amount"_L1]
                     .toString(),
                 u"50.00"_s);
        QCOMPARE(home.run("transfer Checking Rainy_days 5").status, 1);
    }

    void refundsGiveBackWhatWasPaid()
    {
        const Household home;
        QVERIFY(home.begin());
        QVERIFY(home.runAll({"pay Rent 100 --account Checking", "refund 2 30.50"}));
        const QJsonObject refund = home.json("transactions").array().last().toObject();
        QCOMPARE(refund["refundOf"_L1].toInt(), 2);
        QCOMPARE(refund["credit"_L1].toInt(), 3);
        QCOMPARE(home.run("refund 2 69.51").status, 1);
        QCOMPARE(home.run("refund 2 69.50").status, 0);
    }

    void commandsTellWhatIsThere()
    {
        const Household home;
        QVERIFY(home.begin());
        QVERIFY(home.runAll(
            {"bill add Gym 30 --next 2026-02-03 --tag sport --tag home",
             "goal add Trip 50 --target 900 --bank-account Checking --next 2026-02-05",
             "account add Food --type expense --date 2026-01-01", "account add Old --type expense",
             "account close Old", "bank add Second", "bank close Second", "rates set USD EUR=0.80",
             "configure set --usable USD --usable EUR",
             "account add Euros --type asset --currency EUR --balance 1",
             "transaction add 8_USD --debit Euros --credit Checking --date 2026-02-02",
             "pay Rent 100 --account Checking --date 2026-02-03", "transaction clear 4",
             "account recode Food --under Old", "transaction update 3 --date 2026-02-01"}));
        // Behind ">" stands what is told, and behind "!" what is not.
        for (const QByteArray row :
             {"accounts > €7.40",
              "accounts --type expense > closed ! Assets:",
              "accounts --type expense --open > Expenses:Rent ! closed",
              "banks > Second (closed)",
              "ledger Checking --from 2026-02-01 --to 2026-02-02 > 2026-02-01 ! 2026-02-03",
              "transactions --from 2026-02-01 --to 2026-02-02 > 2026-02-01 ! 2026-02-03",
              "transactions --json --from 2026-02-01 > \"creditAmount\"",
              "refundable Rent > 100.00 ! 6.40",
              "due --date 2026-02-02 --within 3 > tomorrow ! today",
              "tags list > home\nsport\n",
              "tags remove home --dry-run > home ! sport",
              "report --html --json > netWorth ! <",
              "check > is whole. ! BROKEN",
              "post --all --account Checking --date 2020-01-01 --dry-run > Nothing is due.",
              "account recode Food --top-level --dry-run > "
              "7 Expenses:Old:Food is now 7 Expenses:Food.",
              "completion words --json -- zz > ! {",
              "completion words > bank-account\n",
              "reconciliation last Checking > never reconciled",
              "history diff 1 0 > 2026-02-02 → 2026-02-01",
              "history diff 3 2 > none → cleared"}) {
            const QByteArrayList parts = row.split('!');
            const QByteArray line = parts[0].left(parts[0].indexOf(" > "));
            const Ended ended = home.run(line.constData());
            QVERIFY2(ended.out.contains(parts[0].mid(line.size() + 3).trimmed()), row + ended.out);
            QVERIFY2(parts.size() == 1 || !ended.out.contains(parts[1].trimmed()), ended.out);
        }
    }

    void wordsAreCompleted()
    {
        const Household home;
        QVERIFY(home.begin() && home.runAll({"bank add F\n2"})); // that name is never offered
        for (const QByteArray row : {"ban > banks bank bank-account",
                                     "bill re > rename remove",
                                     "bill update R > Rent",
                                     "bill update -- R > Rent",
                                     "bill update -- -x R > ",
                                     "bill add R > ",
                                     "account add R > ",
                                     "save-as R > ",
                                     "accounts b > ",
                                     "post R > Rent",
                                     "post Rent --account Che > Checking",
                                     "post Rent --kind b > bill",
                                     "post Rent --js --acc > --account",
                                     "post --json --colour R > Rent",
                                     "post --json=true R > Rent",
                                     "bank rename F > First",
                                     "bank-account add New --bank=First --type mo > money-market",
                                     "bank-account add New --bank F > First",
                                     "account add New --type e > equity expense",
                                     "bill add Gym --every week > weekly",
                                     "import x --format q > qif",
                                     "export --format j > journal json",
                                     "configure set --usable JM > JMD",
                                     "rates fetch EUR JM > JMD",
                                     "--file=household.budget post R > Rent",
                                     "--file = nowhere.budget post R > ",
                                     "--file b > "}) {
            const QByteArray line = row.left(row.indexOf(" > "));
            const Ended ended = home.run(("completion words -- " + line).constData());
            QCOMPARE(line + " > " + ended.out.simplified(), row);
        }
    }

    void eachFieldIsChangedAlone()
    {
        const Household home;
        QVERIFY(home.begin());
        QVERIFY(home.runAll(
            {"account add Food --type expense", "account add Out --type expense --under Food",
             "account recode Out --top-level", "pay Rent 100 --account Checking",
             "transaction update 2 --amount USD_90", "transaction update 2 --debit Food",
             "transaction update 2 --credit Rent_[Budget_Item]",
             "transaction update 2 --date 2026-02-09", "bill update Rent --every weekly",
             "bill update Rent --next 2026-03-01", "bill update Rent --tag home",
             "debt add Car 20 --borrowed 500 --bank First", "bank add Second",
             "debt update Car --borrowed 400", "debt update Car --bank Second",
             "bill update Rent --no-tags", "post Rent --amount 7 --account Checking",
             "bank-account detach Checking"}));
        const QJsonArray all = home.json("transactions").array();
        QCOMPARE(all[1]["debitPath"_L1].toString(), u"Expenses:Food"_s);
        QCOMPARE(all[1]["creditPath"_L1].toString(), u"Expenses:Rent [Budget Item]"_s);
        QCOMPARE(all[1]["amount"_L1]["amount"_L1].toString(), u"90.00"_s);
        QCOMPARE(all[1]["date"_L1].toString(), u"2026-02-09"_s);
        QCOMPARE(all.last()["amount"_L1]["amount"_L1].toString(), u"7.00"_s);
        QCOMPARE(home.json("bill list").array().first(),
                 parsed("{'kind': 'bill', 'name': 'Rent', 'every': 'weekly', 'tags': [], "
                        "'amount': {'amount': '1250.00', 'currency': 'USD'}, "
                        "'next': '2026-03-08'}"));
        const QJsonValue car = home.json("debt list").array().first();
        QCOMPARE(car["bank"_L1].toString(), u"Second"_s);
        QCOMPARE(car["borrowed"_L1]["amount"_L1].toString(), u"400.00"_s);
        QVERIFY(home.json("banks").array().first()["accounts"_L1].toArray().isEmpty());
        QVERIFY(found(home.json("accounts"), "name", u"Out"_s)["parent"_L1].isNull());
    }

    void settingsAreKept()
    {
        const Household home;
        QVERIFY(home.runAll({"new",
                             "configure set --preferred EUR --usable EUR --usable USD "
                             "--display code --notify-within 30",
                             "bill add Miete 700"}));
        QCOMPARE(home.run("banks").out, "There are no banks.\n");
        QCOMPARE(home.run("tags list").out, "There are no tags.\n");
        const QJsonObject settings = home.json("configure show").object();
        QCOMPARE(settings["usableCurrencies"_L1], parsed("['USD', 'EUR']"));
        QVERIFY(home.run("bill list").out.contains("700.00 EUR"));
        QCOMPARE(home.run("configure set --notify-within 61").status, 1);
        QCOMPARE(home.run("configure set").status, 2);
        QCOMPARE(home.json("configure show").object(), settings);
        // What is preferred is usable, unless the usable ones are given.
        QCOMPARE(home.json("configure set --preferred JPY")["usableCurrencies"_L1],
                 parsed("['JPY', 'USD', 'EUR']"));
        QVERIFY(home.runAll({"configure set --usable JPY", "configure set --survey-window 2.5",
                             "configure set --hours 30", "configure set --days 4",
                             "configure set --display both"}));
        QCOMPARE(home.json("configure show").object(),
                 parsed("{'currenciesDisplayAs': 'Symbol and Code', 'daysInWeek': 4, "
                        "'hoursInWeek': 30, 'notifyDueWithinDays': 30, 'preferredCurrency': 'JPY', "
                        "'surveyWindowPercent': 2.5, 'usableCurrencies': ['JPY']}")
                     .toObject());
        QVERIFY(home.run("bill list").out.contains("€700.00 EUR"));
    }

    void helpNeedsNothing()
    {
        const Household home;
        const Ended ended = home.run("help bill add");
        QCOMPARE(ended.status, 0);
        QVERIFY(ended.out.contains("--every"));
        QVERIFY(ended.err.isEmpty());
        QVERIFY(!QFile::exists(home.path("config")));
        QVERIFY(home.run("--version").out.startsWith("kiv 1."));
    }

    void theTourEndsWell()
    {
        const Household home;
        const Ended ended = home.run("tour");
        QVERIFY2(ended.status == 0, ended.err.constData());
        QVERIFY(ended.out.contains("equals the sum of all credits"));
        QVERIFY(ended.err.startsWith("kiv: The code name is the same name"));
        QVERIFY(!QFile::exists(home.path("config")));
        QVERIFY(!QFile::exists(home.file()));
    }
};

QTEST_GUILESS_MAIN(TestKivHousehold)
#include "tst_kiv_household.moc"

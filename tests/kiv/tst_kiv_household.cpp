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

    void settingsAreKept()
    {
        const Household home;
        QVERIFY(home.runAll({"new",
                             "configure set --preferred EUR --usable EUR --usable USD "
                             "--display code --notify-within 30",
                             "bill add Miete 700"}));
        const QJsonObject settings = home.json("configure show").object();
        QCOMPARE(settings["usableCurrencies"_L1], parsed("['USD', 'EUR']"));
        QVERIFY(home.run("bill list").out.contains("700.00 EUR"));
        QCOMPARE(home.run("configure set --notify-within 61").status, 1);
        QCOMPARE(home.run("configure set").status, 2);
        QCOMPARE(home.json("configure show").object(), settings);
        // What is preferred is usable, unless the usable ones are given.
        QCOMPARE(home.json("configure set --preferred JPY")["usableCurrencies"_L1],
                 parsed("['JPY', 'USD', 'EUR']"));
    }

    void helpNeedsNothing()
    {
        const Household home;
        const Ended ended = home.run("bill add --help");
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

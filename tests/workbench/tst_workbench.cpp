// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "workbench/document/document.h"
#include "workbench/entry/similar.h"

#include "support/scripted_sender.h"

using workbench::AccountIndex;

/// What the transcripts of the command do not reach, since it takes too many cases or
/// no terminal.
class TestWorkbench : public QObject {
    Q_OBJECT

private slots:
    void everyPathStandsForOneAccount_data()
    {
        test::addRows<std::pair<QStringList, QStringList>>(
            {{"plain", {{u"Food"_s, u"Rent"_s}, {u"Food"_s, u"Rent"_s}}},
             {"the same name", {{u"Food"_s, u"Food"_s}, {u"Food 1"_s, u"Food 2"_s}}},
             {"alike once they are safe", {{u"A:B"_s, u"A-B"_s}, {u"A-B 1"_s, u"A-B 2"_s}}},
             {"a number makes another's name",
              {{u"Food"_s, u"Food"_s, u"Food 1"_s}, {u"Food 1 1"_s, u"Food 2"_s, u"Food 1 3"_s}}},
             {"nothing left", {{u" "_s, u";"_s}, {u"1"_s, u","_s}}}});
    }
    void everyPathStandsForOneAccount()
    {
        const auto [names, paths] = test::rowOf<std::pair<QStringList, QStringList>>();
        std::set<accounting::Account> accounts;
        std::uint32_t number = 0;
        for (const QString &name : names)
            accounts.insert(account(++number, name, std::nullopt));
        const AccountIndex index(std::move(accounts));
        for (number = 1; number <= static_cast<std::uint32_t>(paths.size()); ++number) {
            QCOMPARE(index.path(accounting::AccountNumber(number)),
                     u"Expenses:"_s + paths[number - 1]);
        }
    }

    void accountsAreFoundByNumberNameAndPath()
    {
        const AccountIndex index({account(1, u"Home"_s, std::nullopt), account(2, u"Rent"_s, 1u),
                                  account(3, u"1"_s, std::nullopt),
                                  account(4, u"Rent"_s, std::nullopt)});
        const auto number = [&index](const char *text) {
            return index.find(QString::fromUtf8(text)).code().number().integer();
        };
        QCOMPARE(number("1"), 1u);
        QCOMPARE(number("Home"), 1u);
        QCOMPARE(number("Expenses:Home:Rent"), 2u);
        QVERIFY_THROWS_EXCEPTION(workbench::Refusal, number("Rent"));
        QVERIFY_THROWS_EXCEPTION(workbench::Refusal, number("rent"));
        QCOMPARE(index.path(accounting::AccountNumber(5)), QString());
    }
    void numbersGoOnBehindTheHighestOrInTheFirstGap()
    {
        const accounting::Account first = account(1, u"First"_s, std::nullopt);
        const accounting::Account last = account(4'294'967'295u, u"Last"_s, std::nullopt);
        QCOMPARE(AccountIndex({}).nextNumber().integer(), 1u);
        QCOMPARE(AccountIndex({first}).nextNumber().integer(), 2u);
        QCOMPARE(AccountIndex({first, last}).nextNumber().integer(), 2u);
    }

    void slipsAreCounted_data()
    {
        test::addRows<int>({{"rent", 0},
                            {"RENT", 0},
                            {"ren", 1},
                            {"reent", 1},
                            {"rant", 1},
                            {"rnet", 1},
                            {"ernt", 1},
                            {"tren", 2},
                            {"", 4},
                            {"tner", 3},
                            {"abcd", 4},
                            {"rente x", 3}});
    }
    void slipsAreCounted()
    {
        const QString word = QString::fromLatin1(QTest::currentDataTag());
        const int slips = test::rowOf<int>();
        QCOMPARE(workbench::slipsBetween(word, u"Rent"_s), slips);
        QCOMPARE(workbench::slipsBetween(u"Rent"_s, word), slips);
    }

    void whatIsAlikeIsOffered()
    {
        const QStringList known{u"Checking"_s, u"Chequing"_s,   u"Savings"_s,
                                u"Car"_s,      u"Rent"_s,       u"Rental"_s,
                                u"Y"_s,        u"Rent [x y]"_s, QString(100'000, u'X')};
        const auto offered = [&known](const QString &word) {
            return workbench::similarTo(word, known).join(u',');
        };
        QCOMPARE(offered(u"Cheking"_s), u"Checking"_s);
        QCOMPARE(offered(u"Cheking accont"_s), QString());
        QCOMPARE(offered(u"Cheing"_s), u"Checking,Chequing"_s);
        QCOMPARE(offered(u"savings"_s), u"Savings"_s);
        QCOMPARE(offered(u"Sav"_s), u"Savings"_s);
        QCOMPARE(offered(u"Rent"_s), u"Rental"_s); // not itself, and no beginning beside one alike
        QCOMPARE(offered(u"Tax"_s), QString());
        QCOMPARE(offered(u"X"_s), QString());
        QCOMPARE(offered({}), QString());
        QCOMPARE(offered(QString(100'000, u'a')), QString());
        const QStringList letters{u"Ab"_s, u"Ac"_s, u"Ad"_s, u"Ae"_s};
        QCOMPARE(workbench::similarTo(u"Aa"_s, letters), letters.first(3));
        QCOMPARE(workbench::similarTo(u"--on"_s, {u"--json"_s}), QStringList());
        const QString longName(60, u'X'); // both of them, and not their lengths together
        QCOMPARE(workbench::similarTo(longName, {longName + u'Y'}), {longName + u'Y'});
    }

private:
    static accounting::Account account(std::uint32_t number, const QString &name,
                                       std::optional<std::uint32_t> parent)
    {
        std::optional<accounting::AccountNumber> under;
        if (parent)
            under = accounting::AccountNumber(*parent);
        return {accounting::AccountTypes::Expense,
                accounting::AccountCode(accounting::AccountNumber(number), name, under),
                numira::Money(), false};
    }
};

static const kiv::test::Suite<TestWorkbench> testWorkbenchSuite;
#include "tst_workbench.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "adviser/budget_health.h"
#include "numira/local_text.h"

using kiv::adviser::BudgetHealth;
using kiv::adviser::HealthGrade;
using kiv::budgeting::BudgetTotals;
using kiv::budgeting::EventFrequency;
using namespace Qt::StringLiterals;

namespace {

const numira::Currency usd(840);

/// A monthly item with what its kind takes besides the amount.
template <typename Item>
Item item(const QString &amount, const auto &...others)
{
    return Item(kiv::budgeting::BudgetSource(u"Item"_s), toMoney(usd, amount.toStdString()),
                EventFrequency::Monthly, QDate(2026, 3, 31), others...);
}

} // namespace

class tst_BudgetHealth : public QObject {
    Q_OBJECT

private slots:
    void gradesByTheSharesOfTheIncome_data()
    {
        QTest::addColumn<QString>("amounts"); // wages, bills, debts, goals, free spending
        QTest::addColumn<HealthGrade>("grade");
        QTest::addColumn<QString>("missed"); // the beginning of each reason, joined by "; "
        using enum HealthGrade;
        QTest::newRow("every share at its limit")
            << u"1000 140 360 200 300"_s << Excellent << u""_s;
        QTest::newRow("a cent over the needs")
            << u"1000 300.01 200 200 299.99"_s << Good << u"Bills and debts take 50.1 %"_s;
        QTest::newRow("a cent short of the goals")
            << u"1000 500 0 199.99 300"_s << Good << u"Goals get 19.9 %"_s;
        QTest::newRow("two") << u"1000 100 400 50 100"_s << Fair
                             << u"Debts take 40 %; Goals get 5 %"_s;
        QTest::newRow("all four") << u"1000 200 400 0 400"_s << Poor
                                  << u"Bills and debts take 60 %; Debts take 40 %; Free spending "
                                     "takes 40 %; Goals get 0 %"_s;
        QTest::newRow("a cent more than the income")
            << u"1000 500 0 200 300.01"_s << Critical
            << u"100.1 % of the income is planned; Free spending takes 30.1 %"_s;
        QTest::newRow("beyond all bounds")
            << u"0.01 0 0 1.01 1000000000000000000000"_s << Critical
            << u"10000000000000000000010100 % of the income is planned; "
               "Free spending takes 10000000000000000000000000 %"_s;
        QTest::newRow("to the last digit") << u"1000 2007 0 200 0"_s << Critical
                                           << u"220.7 % of the income is planned; "
                                              "Bills and debts take 200.7 %"_s;
        QTest::newRow("no income") << u"0 0 0 0 1"_s << Critical << u"There is no income to pay"_s;
        QTest::newRow("nothing at all") << u"0 0 0 0 0"_s << Unknown << u""_s;
    }

    void gradesByTheSharesOfTheIncome()
    {
        QFETCH(const QString, amounts);
        QFETCH(const HealthGrade, grade);
        QFETCH(const QString, missed);
        const QStringList amount = amounts.split(u' ');
        kiv::budgeting::Budget budget;
        budget.wages.add(item<kiv::budgeting::Wage>(amount.at(0)));
        budget.bills.add(item<kiv::budgeting::Bill>(amount.at(1)));
        budget.debts.add(item<kiv::budgeting::Debt>(amount.at(2), numira::Money(usd)));
        budget.goals.add(item<kiv::budgeting::Goal>(amount.at(3), numira::Money(usd)));
        budget.nontracks.add(item<kiv::budgeting::Nontrack>(amount.at(4)));
        const BudgetHealth health(BudgetTotals(budget, usd, EventFrequency::Monthly));
        QStringList expected = missed.split(u"; "_s, Qt::SkipEmptyParts);
        for (const auto &[isSound, text, plainText] : health.reasons()) {
            if (!isSound)
                QVERIFY2(!expected.isEmpty() && text.startsWith(expected.takeFirst()),
                         qPrintable(text));
            QCOMPARE(plainText, text);
        }
        QCOMPARE(expected, QStringList());
        QCOMPARE(health.grade(), grade);
        QVERIFY(!health.reasons().empty() && health != BudgetHealth());
    }

    void onlyProgramsReadPlainNumbers()
    {
        kiv::budgeting::Budget budget;
        budget.wages.add(item<kiv::budgeting::Wage>(u"3"_s));
        budget.nontracks.add(item<kiv::budgeting::Nontrack>(u"1"_s));
        numira::setLocale("de_DE", numira::ShouldAllowFallback::No);
        const BudgetHealth health(BudgetTotals(budget, usd, EventFrequency::Monthly));
        numira::setLocale("en_US", numira::ShouldAllowFallback::No);
        const auto reason = health.reasons().at(3);
        QVERIFY(reason.text.startsWith(u"Free spending takes 33,4 % of"_s));
        QVERIFY(reason.plainText.startsWith(u"Free spending takes 33.4 % of"_s));
    }
};

static const kiv::test::Suite<tst_BudgetHealth> suite;
#include "tst_budget_health.moc"

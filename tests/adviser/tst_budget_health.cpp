// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "adviser/budget_health.h"
#include "numira/local_text.h"

#include "support/budgeting.h"

using namespace kiv::budgeting;
using namespace kiv::adviser;

namespace {

/// The health of a budget with one monthly item of each kind, or fewer.
BudgetHealth healthOf(const char *wages, const char *bills, const char *debts, const char *goals,
                      const char *freeSpending)
{
    Budget budget;
    budget.wages.add(item<Wage>("Item", usd(wages)));
    budget.bills.add(item<Bill>("Item", usd(bills)));
    budget.debts.add(item<Debt>("Item", usd(debts)));
    budget.goals.add(item<Goal>("Item", usd(goals)));
    budget.nontracks.add(item<Nontrack>("Item", usd(freeSpending)));
    return BudgetHealth(BudgetTotals(budget, numira::toCurrency("USD"), EventFrequency::Monthly));
}

} // namespace

class tst_BudgetHealth : public QObject {
    Q_OBJECT

private slots:
    void gradesByTheSharesOfTheIncome()
    {
        using enum HealthGrade;
        struct Row {
            BudgetHealth health;
            HealthGrade grade;
            const char *missed; ///< the beginning of each reason
        };
        for (const auto &[health, grade, missed] : std::initializer_list<Row>{
                 {healthOf("1000", "140", "360", "200", "300"), Excellent, ""},
                 {healthOf("1000", "300.01", "200", "200", "299.99"), Good,
                  "Bills and debts take 50.1 %"},
                 {healthOf("1000", "500", "0", "199.99", "300"), Good, "Goals get 19.9 %"},
                 {healthOf("1000", "100", "400", "50", "100"), Fair,
                  "Debts take 40 %; Goals get 5 %"},
                 {healthOf("1000", "200", "400", "0", "400"), Poor,
                  "Bills and debts take 60 %; Debts take 40 %; Free spending takes 40 %; "
                  "Goals get 0 %"},
                 {healthOf("1000", "500", "0", "200", "300.01"), Critical,
                  "100.1 % of the income is planned; Free spending takes 30.1 %"},
                 {healthOf("0.01", "0", "0", "1.01", "1000000000000000000000"), Critical,
                  "10000000000000000000010100 % of the income is planned; "
                  "Free spending takes 10000000000000000000000000 %"},
                 {healthOf("1000", "2007", "0", "200", "0"), Critical,
                  "220.7 % of the income is planned; Bills and debts take 200.7 %"},
                 {healthOf("0", "0", "0", "0", "1"), Critical, "There is no income to pay"},
                 {healthOf("0", "0", "0", "0", "0"), Unknown, ""}}) {
            QStringList expected = QString::fromLatin1(missed).split(u"; "_qs, Qt::SkipEmptyParts);
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
    }

    void onlyProgramsReadPlainNumbers()
    {
        numira::setLocale("de_DE", numira::ShouldAllowFallback::No);
        const auto reason = healthOf("3", "0", "0", "0", "1").reasons().at(3);
        numira::setLocale("en_US", numira::ShouldAllowFallback::No);
        QVERIFY(reason.text.startsWith(u"Free spending takes 33,4 % of"_qs));
        QVERIFY(reason.plainText.startsWith(u"Free spending takes 33.4 % of"_qs));
    }
};

static const kiv::test::Suite<tst_BudgetHealth> budgetHealthSuite;
#include "tst_budget_health.moc"

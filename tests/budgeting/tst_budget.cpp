// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "budgeting/budget_totals.h"
#include "budgeting/due.h"

#include "numira/error.h"

#include "support/budgeting.h"
#include "support/comparison.h"

using namespace kiv::budgeting;
using namespace kiv::test;

namespace {

/// One item of each kind, each of another size.
Budget household()
{
    using enum EventFrequency;
    const QDate date = day("2026-03-10");
    Budget budget;
    budget.bills.add(item<Bill>("Tax", usd("1200"), Yearly, date));
    budget.debts.add(item<Debt>("Car", usd("20"), Monthly, date, money("EUR", "900")));
    budget.goals.add(item<Goal>("Car", usd("3"), Monthly, date, money("GBP", "90")));
    budget.nontracks.add(item<Nontrack>("Food", usd("12"), Weekly, date));
    budget.wages.add(item<Wage>("Job", usd("500"), TwiceAMonth, date));
    return budget;
}

QString listed(const std::vector<BudgetItemAmountDue> &due)
{
    QStringList items;
    for (const BudgetItemAmountDue &item : due)
        items += dump(item);
    return items.join(u"; "_qs);
}

} // namespace

class tst_Budget : public QObject {
    Q_OBJECT

private slots:
    void itemsAreFoundByKindAndSource()
    {
        const Budget budget = household();
        const BudgetedMoney *goal = findBudgetItem({BudgetItemTypes::Goal, source("Car")}, budget);
        QVERIFY(goal);
        QVERIFY(*goal == *findBudgetItem<Goal>(source("Car"), budget));
        QVERIFY(!findBudgetItem<Bill>(source("Car"), budget));
        for (const int kind : {0, 1, 7}) {
            QVERIFY(!findBudgetItem({static_cast<BudgetItemTypes>(kind), source("Car")}, budget));
        }
    }

    void sourcesNameEveryKind()
    {
        Budget budget = household();
        budget.bills.remove(source("Tax"));
        const std::map<BudgetItemTypes, std::set<BudgetSource>> sources = budget.sources();
        QCOMPARE(sources.size(), std::size_t(5));
        QVERIFY(sources.at(BudgetItemTypes::Bill).empty());
        QCOMPARE(sources.at(BudgetItemTypes::Goal), std::set{source("Car")});
    }

    void aBudgetIsEmptyOnlyWithoutAnyItem()
    {
        QVERIFY(Budget().isEmpty());
        forEachItemClass([]<typename Item>(std::type_identity<Item>) {
            Budget budget;
            budget.items<Item>().add(item<Item>("A"));
            QVERIFY(!budget.isEmpty());
            QVERIFY(!(budget == Budget()));
        });
    }

    void currenciesOfAllSumsCount()
    {
        Budget budget = household();
        budget.wages.add(item<Wage>("Nothing", numira::Money()));
        QCOMPARE(containedCurrencies(budget),
                 (std::set{numira::toCurrency("USD"), numira::toCurrency("EUR"),
                           numira::toCurrency("GBP")}));
    }

    void totalsAreRestatedPerPeriod()
    {
        const Budget budget = household();
        const BudgetTotals totals(budget, numira::toCurrency("USD"), EventFrequency::Monthly);
        QCOMPARE(totals.bills(), usd("100"));
        QCOMPARE(totals.debts(), usd("20"));
        QCOMPARE(totals.goals(), usd("3"));
        QCOMPARE(totals.nontracks(), usd("52"));
        QCOMPARE(totals.wages(), usd("1000"));
        QCOMPARE(totals.outgoing(), usd("175"));
        QCOMPARE(totals.remaining(), usd("825"));
        QVERIFY_THROWS_EXCEPTION(
            numira::ConversionError,
            BudgetTotals(budget, numira::toCurrency("EUR"), EventFrequency::Monthly));
    }

    void whatIsDueComesInTheOrderOfItsDays()
    {
        using enum EventFrequency;
        Budget budget;
        budget.bills.add(item<Bill>("in the last day", usd("1"), Monthly, day("2026-03-17")));
        budget.bills.add(item<Bill>("a day later", usd("2"), Monthly, day("2026-03-18")));
        budget.bills.add(item<Bill>("not scheduled", usd("3"), None, day("2026-03-10")));
        budget.wages.add(item<Wage>("weeks overdue", usd("4"), Weekly, day("2025-12-31")));
        budget.goals.add(item<Goal>("today", usd("5"), Monthly, day("2026-03-10")));
        budget.debts.add(item<Debt>("today too", usd("6"), Monthly, day("2026-03-10")));
        budget.debts.add(item<Debt>("today before it", usd("7"), Monthly, day("2026-03-10")));
        const auto due = [&](int days, const char *today) {
            return listed(budgetItemsDue(std::chrono::days(days), budget, day(today)));
        };
        QCOMPARE(due(7, "2026-03-10"), u"weeks overdue (wage) on 2025-12-31 4.00 USD; "
                                       "today before it (debt) on 2026-03-10 7.00 USD; "
                                       "today too (debt) on 2026-03-10 6.00 USD; "
                                       "today (goal) on 2026-03-10 5.00 USD; "
                                       "in the last day (bill) on 2026-03-17 1.00 USD"_qs);
        QCOMPARE(due(0, "2026-01-01"), u"weeks overdue (wage) on 2025-12-31 4.00 USD"_qs);
        QCOMPARE(due(-1, "2025-12-31"), QString());
    }
};

static const kiv::test::Suite<tst_Budget> suite;
#include "tst_budget.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

#include "adviser/budget_health.h"

using kiv::adviser::BudgetHealth;
using kiv::adviser::HealthGrade;
using kiv::budgeting::BudgetTotals;
using kiv::budgeting::EventFrequency;

Q_DECLARE_METATYPE(HealthGrade)

namespace {

const numira::Currency usd(840);

/// One item of each kind that has an amount, per month.
template <typename Item>
Item item(const QString &amount)
{
    const kiv::budgeting::BudgetSource source(QStringLiteral("Item"));
    const auto money = numira::toMoney(usd, amount.toStdString());
    const QDate day(2026, 3, 31);
    if constexpr (std::is_constructible_v<Item, decltype(source), numira::Money, EventFrequency,
                                          QDate>)
        return Item(source, money, EventFrequency::Monthly, day);
    else
        return Item(source, money, EventFrequency::Monthly, day, numira::Money(usd));
}

} // namespace

class tst_BudgetHealth : public QObject {
    Q_OBJECT

private slots:
    void gradesByTheSharesOfTheIncome_data()
    {
        QTest::addColumn<QStringList>("amounts"); // wages, bills, debts, goals, free spending
        QTest::addColumn<HealthGrade>("grade");
        QTest::addColumn<QStringList>("missed");
        const auto row = [](const char *name, const QString &amounts, HealthGrade grade,
                            const QStringList &missed) {
            QTest::newRow(name) << amounts.split(u' ') << grade << missed;
        };
        const auto needs =
            QStringLiteral("Bills and debts take %1 % of the income; up to 50 % is sound.");
        const auto debts = QStringLiteral("Debts take %1 % of the income; up to 36 % is sound.");
        const auto freely =
            QStringLiteral("Free spending takes %1 % of the income; up to 30 % is sound.");
        const auto goals = QStringLiteral("Goals get %1 % of the income; from 20 % on is sound.");
        const auto all = QStringLiteral("%1 % of the income is planned; 100 % is all there is.");
        const auto arg = [](const QString &text, const char *share) {
            return text.arg(QString::fromLatin1(share));
        };

        row("every share at its limit", QStringLiteral("1000 140 360 200 300"),
            HealthGrade::Excellent, {});
        row("a cent over the needs", QStringLiteral("1000 300.01 200 200 299.99"),
            HealthGrade::Good, {arg(needs, "50.1")});
        row("a cent short of the goals", QStringLiteral("1000 500 0 199.99 300"), HealthGrade::Good,
            {arg(goals, "19.9")});
        row("debts and goals", QStringLiteral("1000 100 400 50 100"), HealthGrade::Fair,
            {arg(debts, "40"), arg(goals, "5")});
        row("needs, debts and goals", QStringLiteral("1000 200 400 0 300"), HealthGrade::Poor,
            {arg(needs, "60"), arg(debts, "40"), arg(goals, "0")});
        row("all four, within the income", QStringLiteral("1000 200 400 0 400"), HealthGrade::Poor,
            {arg(needs, "60"), arg(debts, "40"), arg(freely, "40"), arg(goals, "0")});
        row("a cent more than the income", QStringLiteral("1000 500 0 200 300.01"),
            HealthGrade::Critical, {arg(all, "100.1"), arg(freely, "30.1")});
        row("spending without income", QStringLiteral("0 0 0 0 1"), HealthGrade::Critical,
            {QStringLiteral("There is no income to pay for what goes out.")});
        row("nothing at all", QStringLiteral("0 0 0 0 0"), HealthGrade::Unknown, {});
        row("income alone", QStringLiteral("1000 0 0 0 0"), HealthGrade::Good, {arg(goals, "0")});
    }

    void gradesByTheSharesOfTheIncome()
    {
        QFETCH(const QStringList, amounts);
        QFETCH(const HealthGrade, grade);
        QFETCH(const QStringList, missed);
        kiv::budgeting::Budget budget;
        budget.wages.add(item<kiv::budgeting::Wage>(amounts.at(0)));
        budget.bills.add(item<kiv::budgeting::Bill>(amounts.at(1)));
        budget.debts.add(item<kiv::budgeting::Debt>(amounts.at(2)));
        budget.goals.add(item<kiv::budgeting::Goal>(amounts.at(3)));
        budget.nontracks.add(item<kiv::budgeting::Nontrack>(amounts.at(4)));
        const BudgetHealth health(BudgetTotals(budget, usd, EventFrequency::Monthly));
        QStringList texts;
        for (const auto &reason : health.reasons()) {
            if (!reason.isSound)
                texts.append(reason.text);
        }
        QCOMPARE(texts, missed);
        QCOMPARE(health.grade(), grade);
        QVERIFY(!health.reasons().empty());
    }

    void nothingIsKnownOfNothing()
    {
        QCOMPARE(BudgetHealth().grade(), HealthGrade::Unknown);
        QCOMPARE(BudgetHealth(BudgetTotals()).grade(), HealthGrade::Unknown);
        QVERIFY_EXCEPTION_THROWN((void)presentationText(HealthGrade(6)), std::logic_error);
    }
};

QTEST_APPLESS_MAIN(tst_BudgetHealth)
#include "tst_budget_health.moc"

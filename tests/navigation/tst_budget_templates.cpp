// SPDX-License-Identifier: GPL-3.0-or-later
#include <QtTest/QtTest>

#include "navigation/internal/budget_item_generator.h"

#include "budgeting/budget_items.h"
#include "foundation/dates.h"

using kiv::budgeting::BudgetItemTypes;
using kiv::budgeting::EventFrequency;
using kiv::budgeting::Goal;
using kiv::navigation::BudgetWizardTemplates;
using kiv::navigation::internal::GeneratedBudgetItem;
using kiv::navigation::internal::makeBudgetItemGenerator;

namespace {

const numira::Currency jpy(392);

std::vector<GeneratedBudgetItem> itemsOf(BudgetWizardTemplates household)
{
    return makeBudgetItemGenerator(household, jpy)->generate();
}

QStringList namesOf(const std::vector<GeneratedBudgetItem> &items)
{
    QStringList names;
    for (const auto &[item, isTied] : items)
        names.append(item->source().name());
    return names;
}

} // namespace

class tst_BudgetTemplates : public QObject {
    Q_OBJECT

private slots:
    void everyListHasItsShape_data()
    {
        QTest::addColumn<BudgetWizardTemplates>("household");
        QTest::addColumn<QString>("kinds");          // in order
        QTest::addColumn<QList<int>>("frequencies"); // how many of 3, 4, 6, 7, 8, 11, 15
        QTest::addColumn<QList<int>>("days"); // how many on the first, in the middle, at the end
        const auto row = [](BudgetWizardTemplates household, const char *kinds,
                            const QList<int> &frequencies, const QList<int> &days) {
            QString name;
            QDebug(&name) << household;
            QTest::newRow(qPrintable(name))
                << household << QString::fromLatin1(kinds) << frequencies << days;
        };
        using enum BudgetWizardTemplates;
        row(None, "", {0, 0, 0, 0, 0, 0, 0}, {0, 0, 0});
        row(Teenager, "4W 16B 4G 1N", {6, 1, 15, 0, 1, 2, 0}, {8, 15, 2});
        row(AdultSingle, "3W 32B 4G 1N", {4, 1, 23, 1, 2, 8, 1}, {18, 15, 7});
        row(AdultMarriedSingleIncome, "3W 32B 4G 2N 1G 4B", {6, 1, 24, 1, 3, 9, 2}, {23, 16, 7});
        row(AdultMarriedDoubleIncome, "3W 32B 4G 2N 1G 4B 1W", {6, 2, 24, 1, 3, 9, 2}, {23, 16, 8});
    }

    void everyListHasItsShape()
    {
        QFETCH(const BudgetWizardTemplates, household);
        QFETCH(const QString, kinds);
        QFETCH(const QList<int>, frequencies);
        QFETCH(const QList<int>, days);
        const auto items = itemsOf(household);

        QString letters;
        QList<int> byFrequency(7, 0);
        QList<int> byDay(3, 0);
        const QList<int> numbers{3, 4, 6, 7, 8, 11, 15};
        for (const auto &[item, isTied] : items) {
            const BudgetItemTypes type = toBudgetItemTypes(*item);
            letters += QStringLiteral("-BDGNW").at(int(type));
            QCOMPARE(isTied, type == BudgetItemTypes::Goal);
            QCOMPARE(item->amount(), numira::Money(jpy));
            if (const auto *goal = dynamic_cast<const Goal *>(item.get()))
                QCOMPARE(goal->final(), numira::Money(jpy));
            const auto frequency = numbers.indexOf(int(item->period()));
            QVERIFY(frequency >= 0);
            ++byFrequency[frequency];
            const QDate date = item->nextOccurOn();
            const QDate first = kiv::foundation::firstOfMonth(date);
            const QList<QDate> ofMonth{first, kiv::foundation::halfOfMonth(first),
                                       kiv::foundation::lastOfMonth(first)};
            const auto day = ofMonth.indexOf(date);
            QVERIFY(day >= 0);
            ++byDay[day];
            // This month; the tolerance is for midnight at its end.
            QVERIFY(qAbs(date.daysTo(QDate::currentDate())) <= 31);
        }
        QString expected;
        for (const QString &run : kinds.split(u' ', Qt::SkipEmptyParts))
            expected += QString(run.chopped(1).toInt(), run.back());
        QCOMPARE(letters, expected);
        QCOMPARE(byFrequency, frequencies);
        QCOMPARE(byDay, days);
    }

    void aTeenagersBillAndGoalShareAName()
    {
        QCOMPARE(namesOf(itemsOf(BudgetWizardTemplates::Teenager))
                     .count(QStringLiteral("Mobile carrier")),
                 2);
    }

    void couplesRenameInPlaceAndAppend()
    {
        QStringList single = namesOf(itemsOf(BudgetWizardTemplates::AdultSingle));
        const QMap<QString, QString> married{
            {QStringLiteral("Dating"), QStringLiteral("Date Night")},
            {QStringLiteral("Free Money"), QStringLiteral("Free Money Adult 1")},
            {QStringLiteral("Mobile"), QStringLiteral("Mobile Adult 1")},
            {QStringLiteral("Petrol"), QStringLiteral("Petrol Adult 1")},
            {QStringLiteral("Public transportation"),
             QStringLiteral("Public transportation Adult 1")},
            {QStringLiteral("Identification Document"),
             QStringLiteral("Identification Document Adult 1")},
            {QStringLiteral("Car Registration"), QStringLiteral("Car Registration Adult 1")},
        };
        for (QString &name : single)
            name = married.value(name, name);
        QStringList couple = namesOf(itemsOf(BudgetWizardTemplates::AdultMarriedSingleIncome));
        QCOMPARE(couple.first(single.size()), single);
        couple.replaceInStrings(QRegularExpression(QStringLiteral("^Job$")),
                                QStringLiteral("Job Adult 1"));
        couple.append(QStringLiteral("Job Adult 2"));
        QCOMPARE(namesOf(itemsOf(BudgetWizardTemplates::AdultMarriedDoubleIncome)), couple);
    }

    void refusesAChildAndTheUnknown()
    {
        for (const auto household : {BudgetWizardTemplates::Child, BudgetWizardTemplates(6)}) {
            try {
                (void)itemsOf(household);
                QFAIL("There is no such starter budget.");
            } catch (const std::logic_error &error) {
                QCOMPARE(error.what(), "Budget item generator template type not implemented.");
            }
        }
        QString text;
        QDebug(&text) << BudgetWizardTemplates::Child << BudgetWizardTemplates(6);
        QCOMPARE(text.trimmed(), QStringLiteral("Child Unknown budget template wizard value: 6"));
    }
};

QTEST_APPLESS_MAIN(tst_BudgetTemplates)
#include "tst_budget_templates.moc"

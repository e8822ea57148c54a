// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/suite.h"

#include "navigation/internal/budget_item_generator.h"

#include "budgeting/budget_items.h"
#include "foundation/dates.h"

using kiv::navigation::BudgetWizardTemplates;
using kiv::navigation::internal::makeBudgetItemGenerator;

namespace {

const numira::Currency jpy(392);

/// A list's kinds in order, then how many items have each frequency, and each day.
using Shape = std::tuple<BudgetWizardTemplates, QString, QString, QString>;

} // namespace

class tst_BudgetTemplates : public QObject {
    Q_OBJECT

private slots:
    void everyListHasItsShape_data()
    {
        using enum BudgetWizardTemplates;
        kiv::test::addRows<Shape>(
            {{"none", {None, {}, {}, {}}},
             {"teenager",
              {Teenager, u"4W 16B 4G 1N"_s, u"3:6 4:1 6:15 8:1 11:2"_s,
               u"first:8 half:15 last:2"_s}},
             {"single",
              {AdultSingle, u"3W 32B 4G 1N"_s, u"3:4 4:1 6:23 7:1 8:2 11:8 15:1"_s,
               u"first:18 half:15 last:7"_s}},
             {"one income",
              {AdultMarriedSingleIncome, u"3W 32B 4G 2N 1G 4B"_s,
               u"3:6 4:1 6:24 7:1 8:3 11:9 15:2"_s, u"first:23 half:16 last:7"_s}},
             {"two incomes",
              {AdultMarriedDoubleIncome, u"3W 32B 4G 2N 1G 4B 1W"_s,
               u"3:6 4:2 6:24 7:1 8:3 11:9 15:2"_s, u"first:23 half:16 last:8"_s}}});
    }
    void everyListHasItsShape()
    {
        const auto [household, kinds, frequencies, days] = kiv::test::rowOf<Shape>();
        QString letters;
        std::map<int, int> byFrequency;
        std::map<QString, int> byDay;
        for (const auto &[item, isTied] : makeBudgetItemGenerator(household, jpy)->generate()) {
            const auto type = toBudgetItemTypes(*item);
            letters += u"-BDGNW"_s.at(int(type));
            const auto *goal = dynamic_cast<const kiv::budgeting::Goal *>(item.get());
            QCOMPARE(isTied, goal != nullptr);
            QCOMPARE(item->amount(), numira::Money(jpy));
            QCOMPARE(goal ? goal->final() : item->amount(), numira::Money(jpy));
            ++byFrequency[int(item->period())];
            const QDate date = item->nextOccurOn();
            ++byDay[date == kiv::foundation::firstOfMonth(date)  ? u"first"_s
                    : date == kiv::foundation::halfOfMonth(date) ? u"half"_s
                    : date == kiv::foundation::lastOfMonth(date) ? u"last"_s
                                                                 : u"other"_s];
            // This month; the tolerance is for midnight at its end.
            QVERIFY(qAbs(date.daysTo(QDate::currentDate())) <= 31);
        }
        QString expected;
        for (const QString &run : kinds.split(u' ', Qt::SkipEmptyParts))
            expected += QString(run.chopped(1).toInt(), run.back());
        QCOMPARE(letters, expected);
        const auto listed = [](const auto &counts) {
            QStringList list;
            for (const auto &[key, count] : counts)
                list.append(u"%1:%2"_s.arg(key).arg(count));
            return list.join(u' ');
        };
        QCOMPARE(listed(byFrequency), frequencies);
        QCOMPARE(listed(byDay), days);
    }

    void refusesTheUnknown()
    {
        QVERIFY_THROWS_EXCEPTION(
            std::logic_error,
            (void)makeBudgetItemGenerator(BudgetWizardTemplates(6), jpy)->generate());
    }
};

static const kiv::test::Suite<tst_BudgetTemplates> budgetTemplatesSuite;
#include "tst_budget_templates.moc"

// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/suite.h"

#include "navigation/internal/budget_item_generator.h"

#include "budgeting/budget_items.h"
#include "foundation/dates.h"

using kiv::navigation::BudgetWizardTemplates;
using kiv::navigation::internal::makeBudgetItemGenerator;
using namespace Qt::StringLiterals;

namespace {

const numira::Currency jpy(392);

} // namespace

class tst_BudgetTemplates : public QObject {
    Q_OBJECT

private slots:
    void everyListHasItsShape_data()
    {
        QTest::addColumn<BudgetWizardTemplates>("household");
        QTest::addColumn<QString>("kinds");       // in order
        QTest::addColumn<QString>("frequencies"); // how many of each
        QTest::addColumn<QString>("days");        // how many on each day
        using enum BudgetWizardTemplates;
        QTest::newRow("none") << None << u""_s << u""_s << u""_s;
        QTest::newRow("teenager") << Teenager << u"4W 16B 4G 1N"_s << u"3:6 4:1 6:15 8:1 11:2"_s
                                  << u"first:8 half:15 last:2"_s;
        QTest::newRow("single") << AdultSingle << u"3W 32B 4G 1N"_s
                                << u"3:4 4:1 6:23 7:1 8:2 11:8 15:1"_s
                                << u"first:18 half:15 last:7"_s;
        QTest::newRow("one income")
            << AdultMarriedSingleIncome << u"3W 32B 4G 2N 1G 4B"_s
            << u"3:6 4:1 6:24 7:1 8:3 11:9 15:2"_s << u"first:23 half:16 last:7"_s;
        QTest::newRow("two incomes")
            << AdultMarriedDoubleIncome << u"3W 32B 4G 2N 1G 4B 1W"_s
            << u"3:6 4:2 6:24 7:1 8:3 11:9 15:2"_s << u"first:23 half:16 last:8"_s;
    }

    void everyListHasItsShape()
    {
        QFETCH(const BudgetWizardTemplates, household);
        QFETCH(const QString, kinds);
        QFETCH(const QString, frequencies);
        QFETCH(const QString, days);
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

    void refusesAChildAndTheUnknown()
    {
        for (const auto household : {BudgetWizardTemplates::Child, BudgetWizardTemplates(6)})
            QVERIFY_THROWS_EXCEPTION(std::logic_error,
                                     (void)makeBudgetItemGenerator(household, jpy)->generate());
    }
};

static const kiv::test::Suite<tst_BudgetTemplates> suite;
#include "tst_budget_templates.moc"

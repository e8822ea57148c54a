// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "budgeting/budget_totals.h"
#include "budgeting/due.h"
#include "budgeting/errors.h"
#include "budgeting/item_account.h"

#include "numira/error.h"

#include "support/budgeting.h"
#include "support/comparison.h"

#include <rapidcheck.h>

using namespace kiv::budgeting;
using enum EventFrequency;

namespace {

/// One item of each kind, each of another size.
Budget household()
{
    const QDate date = day("2026-03-10");
    Budget budget;
    budget.bills.add(item<Bill>("Tax", usd("1200"), Yearly, date));
    budget.debts.add(item<Debt>("Car", usd("20"), Monthly, date, money("EUR", "900")));
    budget.goals.add(item<Goal>("Car", usd("3"), Monthly, date, money("GBP", "90")));
    budget.nontracks.add(item<Nontrack>("Food", usd("12"), Weekly, date));
    budget.wages.add(item<Wage>("Job", usd("500"), TwiceAMonth, date));
    return budget;
}

using Map = BudgetedMoneyMap<Bill>;

/// "key=source amount" for each item, in order.
QString told(const Map &map)
{
    QStringList items;
    for (const auto &[key, item] : map) {
        items += QStringLiteral("%1=%2 %3")
                     .arg(key.name(), item.source().name(),
                          QString::fromStdString(toText(item.amount())));
    }
    return items.join(u", "_qs);
}

/// A request to a map of two items, A with 1 USD and B% with 2 EUR: what there is after it,
/// and why it is refused.
struct MapRow {
    const char *items;
    std::function<void(Map &)> request;
    const char *refusal = "";
};

constexpr const char *same = "A=A 1.00, B%=B% 2.00";
constexpr const char *unnamed = "The new budgeted money item source cannot be empty.";

const std::initializer_list<MapRow> rows{
    {"A=A 1.00, B%=B% 2.00, a=a 3.00", [](Map &map) { map.add(item<Bill>("a", usd("3"))); }},
    {same, [](Map &map) { map.add(item<Bill>("")); }, unnamed},
    {same, [](Map &map) { map.add(item<Bill>("A", usd("3"))); },
     "The new budgeted money item source already exists."},
    {"B%=B% 2.00", [](Map &map) { map.remove(source("A")); }},
    {same, [](Map &map) { map.remove(source("a")); },
     "Failed to remove the budgeted money item as it does not exist."},
    {"A=A 3.00, B%=B% 2.00", [](Map &map) { map.update(item<Bill>("A", usd("3"))); }},
    {"A=A 3.00, B%=B% 2.00", [](Map &map) { map.update(item<Bill>("A", money("EUR", "3"))); }},
    {same, [](Map &map) { map.update(item<Bill>("a")); },
     "Cannot update the budgeted money item as it does not exist."},
    {"B%=B% 2.00, C=C 1.00", [](Map &map) { map.rename(source("A"), source("C")); }},
    {same, [](Map &map) { map.rename(source("a"), source("A")); },
     "Cannot rename the budgeted money item source as it does not exist."},
    {same, [](Map &map) { map.rename(source("A"), source("B%")); },
     "Cannot rename the budgeted money item source, as the new source, B%, already exists."},
    {same, [](Map &map) { map.rename(source("A"), source("A")); },
     "Cannot rename the budgeted money item source, as the new source, A, already exists."},
    // An item may lose its name, but none comes without one, and none changes its
    // currency so, which takes it out and adds it.
    {"= 1.00, B%=B% 2.00", [](Map &map) { map.rename(source("A"), source("")); }},
    {"= 1.00, B%=B% 2.00",
     [](Map &map) {
         map.rename(source("A"), source(""));
         map.add(item<Bill>(""));
     },
     unnamed},
    {"B%=B% 2.00",
     [](Map &map) {
         map.rename(source("A"), source(""));
         map.update(item<Bill>("", money("EUR", "3")));
     },
     unnamed},
};

QDate anyDate()
{
    return QDate(2024, 2, 29).addDays(*rc::gen::inRange(-40'000, 40'000));
}

EventFrequency anyRecurring()
{
    return static_cast<EventFrequency>(*rc::gen::inRange(1, 16));
}

} // namespace

class tst_Budgeting : public QObject {
    Q_OBJECT

private slots:
    void itemsAreFoundByKindAndSource()
    {
        Budget budget = household();
        const BudgetedMoney *goal = findBudgetItem({BudgetItemTypes::Goal, source("Car")}, budget);
        QVERIFY(goal && *goal == *findBudgetItem<Goal>(source("Car"), budget));
        QVERIFY(!findBudgetItem<Bill>(source("Car"), budget));
        for (const int kind : {0, 1, 7})
            QVERIFY(!findBudgetItem({static_cast<BudgetItemTypes>(kind), source("Car")}, budget));

        budget.bills.remove(source("Tax"));
        const std::map<BudgetItemTypes, std::set<BudgetSource>> sources = budget.sources();
        QVERIFY(sources.size() == 5 && sources.at(BudgetItemTypes::Bill).empty());
        QCOMPARE(sources.at(BudgetItemTypes::Goal), std::set{source("Car")});
    }

    void totalsAreRestatedPerPeriod()
    {
        Budget budget = household();
        budget.wages.add(item<Wage>("Nothing", numira::Money()));
        const BudgetTotals totals(budget, numira::toCurrency("USD"), Monthly);
        QVERIFY(totals.bills() == usd("100") && totals.debts() == usd("20"));
        QVERIFY(totals.goals() == usd("3") && totals.nontracks() == usd("52"));
        QVERIFY(totals.wages() == usd("1000") && totals.outgoing() == usd("175"));
        QCOMPARE(totals.remaining(), usd("825"));
        QVERIFY_THROWS_EXCEPTION(numira::ConversionError,
                                 BudgetTotals(budget, numira::toCurrency("EUR"), Monthly));
        // Those of opening and target sums are there, too.
        QCOMPARE(containedCurrencies(budget),
                 (std::set{numira::toCurrency("USD"), numira::toCurrency("EUR"),
                           numira::toCurrency("GBP")}));
    }

    void whatIsDueComesInTheOrderOfItsDays()
    {
        Budget budget;
        budget.bills.add(item<Bill>("in the last day", usd("1"), Monthly, day("2026-03-17")));
        budget.bills.add(item<Bill>("a day later", usd("2"), Monthly, day("2026-03-18")));
        budget.bills.add(item<Bill>("not scheduled", usd("3"), None, day("2026-03-10")));
        budget.wages.add(item<Wage>("weeks overdue", usd("4"), Weekly, day("2025-12-31")));
        budget.goals.add(item<Goal>("today", usd("5"), Monthly, day("2026-03-10")));
        budget.debts.add(item<Debt>("today too", usd("6"), Monthly, day("2026-03-10")));
        budget.debts.add(item<Debt>("today before it", usd("7"), Monthly, day("2026-03-10")));
        const auto due = [&](int days, const char *today) {
            QStringList items;
            for (const auto &item : budgetItemsDue(std::chrono::days(days), budget, day(today)))
                items += dump(item);
            return items.join(u"; "_qs);
        };
        QCOMPARE(due(7, "2026-03-10"), u"weeks overdue (wage) on 2025-12-31 4.00 USD; "
                                       "today before it (debt) on 2026-03-10 7.00 USD; "
                                       "today too (debt) on 2026-03-10 6.00 USD; "
                                       "today (goal) on 2026-03-10 5.00 USD; "
                                       "in the last day (bill) on 2026-03-17 1.00 USD"_qs);
        QCOMPARE(due(0, "2026-01-01"), u"weeks overdue (wage) on 2025-12-31 4.00 USD"_qs);
        QCOMPARE(due(-1, "2025-12-31"), QString());
    }

    void anItemNeedsADateAndNoNegativeAmount()
    {
        const auto make = [](const char *amount, QDate date) {
            item<Bill>("Rent", usd(amount), None, date);
        };
        make("0", day("2026-01-31"));
        QVERIFY_THROWS_EXCEPTION(BudgetItemError, make("-0.01", day("2026-01-31")));
        QVERIFY_THROWS_EXCEPTION(BudgetItemError, make("1", QDate()));
        const auto date = day("2026-01-31");
        QCOMPARE(item<Debt>("Loan", usd("1"), Monthly, date, usd("-5")).borrowed(), usd("-5"));
    }

    void itemsAreOrderedByAllThatTheyHold()
    {
        const QDate date = day("2026-02-28");
        const QDate later = day("2026-03-28");
        auto onThe31st = item<Bill>("A", usd("1"), Monthly, date);
        onThe31st.setDayOfMonth(31);
        std::vector<std::unique_ptr<BudgetedMoney>> items;
        const auto append = [&items](const auto &...next) { (items.push_back(next.clone()), ...); };
        append(item<Bill>("A", usd("1"), Monthly, date),
               item<Debt>("A", usd("1"), Monthly, date, usd("1")),
               item<Debt>("A", usd("1"), Monthly, date, usd("2")),
               item<Goal>("A", usd("1"), Monthly, date, usd("1")),
               item<Goal>("A", usd("1"), Monthly, date, money("EUR", "0")),
               item<Nontrack>("A", usd("1"), Monthly, date),
               item<Wage>("A", usd("1"), Monthly, date), onThe31st,
               item<Bill>("A", usd("1"), Monthly, later), item<Bill>("A", usd("1"), Yearly, date),
               item<Bill>("A", usd("2"), Monthly, date),
               item<Bill>("A", money("EUR", "1"), Monthly, date),
               item<Bill>("B", usd("1"), Monthly, date));
        QCOMPARE(
            comparisonFault(items, [](const auto &held) -> const BudgetedMoney & { return *held; }),
            QString());
    }

    void theKindGoesWithTheObject()
    {
        const auto unknown = [] { return std::logic_error("unknown"); };
        forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
            const Item made = item<Item>("A");
            QCOMPARE(toBudgetItemTypes(made), ItemTraits<Item>::type);
            QCOMPARE(toBudgetItemTypes(*made.clone()), ItemTraits<Item>::type);
            QCOMPARE(toBudgetItemTypes(BudgetedMoney(made)), BudgetItemTypes::None);
            QVERIFY(!(BudgetedMoney(made) == made));
            Budget budget;
            QVERIFY(budget.isEmpty());
            budget.items<Item>().add(made);
            QVERIFY(!budget.isEmpty() && !(budget == Budget()));
            visitItemClass(ItemTraits<Item>::type, unknown,
                           []<typename Visited>(std::type_identity<Visited>) {
                               QVERIFY((std::is_same_v<Visited, Item>));
                           });
        });
        QCOMPARE(toBudgetItemTypes(std::type_index(typeid(int))), BudgetItemTypes::None);
        for (const int value : {0, 6}) {
            QVERIFY_THROWS_EXCEPTION(
                std::logic_error,
                visitItemClass(static_cast<BudgetItemTypes>(value), unknown, [](auto) {}));
        }
    }

    void movingOnKeepsTheDayOfTheMonth()
    {
        Bill bill = item<Bill>("Rent");
        bill.updateNextOccurOn();
        QCOMPARE(bill.nextOccurOn(), day("2026-02-28"));
        bill.rename(source("Flat"));
        QCOMPARE(Bill(bill).dayOfMonth(), 31);
        bill.updateNextOccurOn();
        QCOMPARE(bill.nextOccurOn(), day("2026-03-31"));

        Bill never = item<Bill>("Gift", usd("1"), None);
        QVERIFY_THROWS_EXCEPTION(kiv::foundation::Error, never.updateNextOccurOn());
        QCOMPARE(never.nextOccurOn(), day("2026-01-31"));
        for (const int outside : {0, 32})
            QVERIFY_THROWS_EXCEPTION(BudgetItemError, never.setDayOfMonth(outside));
        QCOMPARE(never.dayOfMonth(), 31);
        never.setDayOfMonth(1);
        QCOMPARE(never.dayOfMonth(), 1);
    }

    void itemsHaveNamesAndAccounts()
    {
        const BudgetItemIdentifier unknown{static_cast<BudgetItemTypes>(7), source("Food\n%2")};
        QCOMPARE(presentationText(unknown), u"Food\n%2 (7)"_qs);
        QCOMPARE(dump(unknown), u"Food\\u{000A}%2 (7)"_qs);
        QVERIFY_THROWS_EXCEPTION(std::logic_error,
                                 static_cast<void>(presentationText(unknown.type)));
        QCOMPARE(itemAccountName(source("Rent %1")), u"Rent %1 [Budget Item]"_qs);
        QCOMPARE(openingMoney(*item<Debt>("Loan").clone()), usd("100"));
        QCOMPARE(openingMoney(item<Goal>("Car", money("EUR", "1"))), money("EUR", "0"));
    }

    void requestsToAMapAreDoneOrRefused()
    {
        for (const auto &[items, request, refusal] : rows) {
            Map map;
            map.add(item<Bill>("B%", money("EUR", "2")));
            map.add(item<Bill>("A", usd("1")));
            const auto before = map;
            QString said;
            try {
                request(map);
            } catch (const BudgetItemError &error) {
                said = error.message();
                const bool isUnnamed = said == QLatin1String(unnamed);
                const bool isUnknown = said.endsWith(u"does not exist."_qs);
                QCOMPARE(error.source(), source(isUnnamed ? "" : isUnknown ? "a" : "A"));
            }
            QCOMPARE(said, QString::fromLatin1(refusal));
            QCOMPARE(told(map), QString::fromLatin1(items));
            QCOMPARE(map == before, items == same);
        }
    }

    void datesFollowEachOther()
    {
        struct Row {
            EventFrequency frequency;
            int dayOfMonth;
            const char *dates;
        };
        for (const auto &[frequency, dayOfMonth, dates] : std::initializer_list<Row>{
                 {Daily, 1, "2024-02-28 2024-02-29 2024-03-01"},
                 // From a weekday, a Saturday and a Sunday.
                 {EveryWeekday, 1, "2026-01-01 2026-01-02 2026-01-05"},
                 {EveryWeekday, 1, "2026-01-03 2026-01-05"},
                 {EveryWeekday, 1, "2026-01-04 2026-01-05"},
                 {Weekly, 29, "2025-12-29 2026-01-05 2026-01-12"},
                 {EveryTwoWeeks, 20, "2026-02-20 2026-03-06"},
                 {TwiceAMonth, 1, "2026-01-01 2026-01-16 2026-02-01"},
                 {TwiceAMonth, 15,
                  "2026-01-15 2026-01-30 2026-02-15 2026-02-28 2026-03-15 2026-03-30"},
                 {TwiceAMonth, 16, "2026-01-16 2026-02-01 2026-02-16"},
                 {TwiceAMonth, 30, "2024-01-30 2024-02-15 2024-02-29 2024-03-15"},
                 {TwiceAMonth, 31, "2026-01-31 2026-02-15 2026-02-28 2026-03-15 2026-03-31"},
                 {TwiceAMonth, 1, "2026-12-20 2027-01-01"}, // from a day between
                 {Monthly, 31, "2026-01-31 2026-02-28 2026-03-31 2026-04-30"},
                 {Monthly, 31, "2023-12-31 2024-01-31 2024-02-29 2024-03-31"},
                 {Monthly, 30, "2026-01-30 2026-02-28 2026-03-30"},
                 {EveryTwoMonths, 31, "2025-12-31 2026-02-28 2026-04-30 2026-06-30"},
                 {Quarterly, 30, "2025-11-30 2026-02-28 2026-05-30"},
                 {EveryFourMonths, 29, "2025-10-29 2026-02-28 2026-06-29"},
                 {TwiceAYear, 31, "2025-08-31 2026-02-28 2026-08-31"},
                 {Yearly, 29, "2024-02-29 2025-02-28 2026-02-28 2027-02-28 2028-02-29"},
                 {EveryTwoYears, 29, "2024-02-29 2026-02-28 2028-02-29"},
                 {EveryThreeYears, 29, "2024-02-29 2027-02-28"},
                 {EveryFiveYears, 29, "2024-02-29 2029-02-28"},
                 {EveryTenYears, 29, "2024-02-29 2034-02-28 2044-02-29"}}) {
            const QStringList expected = QString::fromLatin1(dates).split(u' ');
            QStringList seen{expected.first()};
            for (QDate at = QDate::fromString(expected.first(), Qt::ISODate);
                 seen.size() < expected.size();) {
                at = nextOccurrence(frequency, at, dayOfMonth);
                seen += at.toString(Qt::ISODate);
            }
            QCOMPARE(seen, expected);
        }
    }

    void someDatesHaveNoNext()
    {
        QCOMPARE(nextOccurrence(Daily, day("9999-12-30"), 30), day("9999-12-31"));
        for (const auto &[frequency, date] : {std::pair(None, day("2026-01-31")),
                                              {Monthly, QDate()},
                                              {Daily, day("9999-12-31")},
                                              {TwiceAMonth, day("9999-12-31")},
                                              {EveryTenYears, day("9990-01-31")}})
            QVERIFY_THROWS_EXCEPTION(kiv::foundation::Error,
                                     static_cast<void>(nextOccurrence(frequency, date, 31)));
    }

    void periodsBetweenDates()
    {
        struct Row {
            EventFrequency frequency;
            const char *from;
            const char *next;
            double periods;
        };
        for (const auto &[frequency, from, next, periods] : std::initializer_list<Row>{
                 {Daily, "2024-02-28", "2024-03-01", 2},
                 // Over a weekend, within one, and back.
                 {EveryWeekday, "2026-01-02", "2026-01-05", 1},
                 {EveryWeekday, "2026-01-02", "2026-01-04", 0},
                 {EveryWeekday, "2026-01-16", "2026-01-01", -11},
                 {Weekly, "2026-01-01", "2026-01-11", 10 / 7.0},
                 {EveryTwoWeeks, "2026-01-01", "2026-01-08", 0.5},
                 {TwiceAMonth, "2026-01-01", "2026-02-16", 3},
                 {TwiceAMonth, "2026-01-31", "2026-02-15", 1},
                 {TwiceAMonth, "2026-01-20", "2026-02-01", 1 - 4 / 16.0},
                 {TwiceAMonth, "2026-01-14", "2026-01-15", 1 / 16.0},
                 {TwiceAMonth, "2026-01-15", "2026-01-16", 1 - 14 / 16.0},
                 // To a short month, from one, and parts of a month.
                 {Monthly, "2026-01-15", "2026-04-15", 3},
                 {Monthly, "2026-01-31", "2026-02-28", 1},
                 {Monthly, "2026-02-28", "2026-03-31", 1},
                 {Monthly, "2026-01-31", "2026-02-27", 1 - 4 / 31.0},
                 {Monthly, "2026-01-01", "2026-01-16", 15 / 31.0},
                 {Quarterly, "2026-11-01", "2026-03-16", -7.5161290322580645 / 3},
                 {Yearly, "2026-01-15", "2027-03-15", 14 / 12.0},
                 {EveryTenYears, "2026-01-15", "2031-01-15", 0.5},
                 {None, "2026-01-15", "2031-01-15", 0},
                 {Monthly, "2026-01-15", "", 0}}) {
            const double found = occurrencesIn(frequency, day(from), day(next));
            // No doubt about how a double rounds.
            QVERIFY2(std::abs(found - periods) < 1e-12, QByteArray::number(found, 'g', 17) + from);
        }
    }

    void stepsAndPeriodsAgree()
    {
        QVERIFY(rc::check("n steps are n periods", [] {
            const EventFrequency frequency = anyRecurring();
            const QDate start = anyDate();
            std::vector<QDate> dates{start};
            for (int step = *rc::gen::inRange(1, 30); step > 0; --step) {
                dates.push_back(nextOccurrence(frequency, dates.back(), start.day()));
                RC_ASSERT(dates.back() > dates.at(dates.size() - 2));
            }
            const auto end = static_cast<int>(dates.size()) - 1;
            const int middle = *rc::gen::inRange(0, end + 1);
            const QDate between = dates.at(static_cast<std::size_t>(middle));
            RC_ASSERT(occurrencesIn(frequency, start, between) == middle);
            RC_ASSERT(occurrencesIn(frequency, dates.back(), between) == middle - end);
        }));
        QVERIFY(rc::check("periods are signed and grow with the date", [] {
            const EventFrequency frequency = anyRecurring();
            const QDate from = anyDate();
            const QDate near = anyDate();
            const QDate far = near.addDays(*rc::gen::inRange(0, 70));
            RC_ASSERT(occurrencesIn(frequency, from, near) ==
                      -occurrencesIn(frequency, near, from));
            RC_ASSERT(occurrencesIn(frequency, from, near) <= occurrencesIn(frequency, from, far));
        }));
    }

    void amountsAreRestatedPerPeriod()
    {
        // So much is 100 a month.
        for (const auto &[period, amount] : {std::pair(TwiceAMonth, "50"),
                                             {Monthly, "100"},
                                             {EveryTwoMonths, "200"},
                                             {Quarterly, "300"},
                                             {EveryFourMonths, "400"},
                                             {TwiceAYear, "600"},
                                             {Yearly, "1200"},
                                             {EveryTwoYears, "2400"},
                                             {EveryThreeYears, "3600"},
                                             {EveryFiveYears, "6000"},
                                             {EveryTenYears, "12000"}}) {
            QCOMPARE(accumulateOver(Monthly, usd(amount), period), usd("100"));
            QCOMPARE(accumulateOver(period, usd("100"), Monthly), usd(amount));
        }
        for (const auto &[period, amount] : {std::pair(Daily, "365"),
                                             {EveryWeekday, "260"},
                                             {Weekly, "52"},
                                             {EveryTwoWeeks, "26"},
                                             {None, "0"}})
            QCOMPARE(accumulateOver(Yearly, usd("1"), period), usd(amount));
        QCOMPARE(accumulateOver(Weekly, usd("100"), Monthly), usd("23.076923076923"));
        QCOMPARE(accumulateOver(None, usd("100"), Monthly), usd("0"));
    }

    void unknownFrequenciesAreProgrammingErrors()
    {
        const auto unknown = static_cast<EventFrequency>(16);
        const QDate date = day("2026-01-31");
        for (const auto &use : std::initializer_list<std::function<void()>>{
                 [&] { static_cast<void>(toQString(unknown)); },
                 [&] { static_cast<void>(nextOccurrence(unknown, date, 1)); },
                 [&] { static_cast<void>(occurrencesIn(unknown, date, date)); },
                 [&] { static_cast<void>(accumulateOver(None, usd("1"), unknown)); },
                 [&] { static_cast<void>(isRarerThanMonthly(unknown)); },
                 [&] { static_cast<void>(BudgetTotals(Budget(), usd("1").code(), unknown)); },
                 [&] { item<Bill>("Rent", usd("1"), unknown, date); }})
            QVERIFY_THROWS_EXCEPTION(std::logic_error, use());
    }
};

static const kiv::test::Suite<tst_Budgeting> budgetingSuite;
#include "tst_budgeting.moc"

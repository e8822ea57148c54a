// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "budgeting/budget_totals.h"
#include "budgeting/event_frequency.h"

#include "foundation/error.h"

#include "support/accounting.h"

#include <rapidcheck.h>

#include <stdexcept>

using namespace kiv::budgeting;
using namespace kiv::test;

namespace {

QDate anyDate()
{
    return QDate(2024, 2, 29).addDays(*rc::gen::inRange(-40'000, 40'000));
}

EventFrequency anyRecurring()
{
    return static_cast<EventFrequency>(*rc::gen::inRange(1, 16));
}

/// A multiple of a period that leaves no doubt about how a double rounds.
bool isNear(double value, double expected)
{
    return std::abs(value - expected) < 1e-12;
}

} // namespace

class tst_EventFrequency : public QObject {
    Q_OBJECT

private slots:
    void datesFollowEachOther_data()
    {
        QTest::addColumn<EventFrequency>("frequency");
        QTest::addColumn<int>("dayOfMonth");
        QTest::addColumn<QString>("dates");
        using enum EventFrequency;
        const auto row = [](const char *name, EventFrequency frequency, int dayOfMonth,
                            const char *dates) {
            QTest::newRow(name) << frequency << dayOfMonth << QString::fromLatin1(dates);
        };
        row("daily, leap day", Daily, 1, "2024-02-28 2024-02-29 2024-03-01");
        row("weekdays skip the weekend", EveryWeekday, 1, "2026-01-01 2026-01-02 2026-01-05");
        row("weekdays from a Saturday", EveryWeekday, 1, "2026-01-03 2026-01-05");
        row("weekdays from a Sunday", EveryWeekday, 1, "2026-01-04 2026-01-05");
        row("weekly", Weekly, 29, "2025-12-29 2026-01-05 2026-01-12");
        row("every two weeks", EveryTwoWeeks, 20, "2026-02-20 2026-03-06");
        row("twice a month, 1st", TwiceAMonth, 1, "2026-01-01 2026-01-16 2026-02-01");
        row("twice a month, 15th", TwiceAMonth, 15,
            "2026-01-15 2026-01-30 2026-02-15 2026-02-28 2026-03-15 2026-03-30");
        row("twice a month, 16th", TwiceAMonth, 16, "2026-01-16 2026-02-01 2026-02-16");
        row("twice a month, 30th", TwiceAMonth, 30, "2024-01-30 2024-02-15 2024-02-29 2024-03-15");
        row("twice a month, 31st", TwiceAMonth, 31,
            "2026-01-31 2026-02-15 2026-02-28 2026-03-15 2026-03-31");
        row("twice a month, from a day between", TwiceAMonth, 1, "2026-12-20 2027-01-01");
        row("monthly, 31st", Monthly, 31, "2026-01-31 2026-02-28 2026-03-31 2026-04-30");
        row("monthly, 31st, leap year", Monthly, 31, "2023-12-31 2024-01-31 2024-02-29 2024-03-31");
        row("monthly, 30th", Monthly, 30, "2026-01-30 2026-02-28 2026-03-30");
        row("every two months", EveryTwoMonths, 31, "2025-12-31 2026-02-28 2026-04-30 2026-06-30");
        row("quarterly", Quarterly, 30, "2025-11-30 2026-02-28 2026-05-30");
        row("every four months", EveryFourMonths, 29, "2025-10-29 2026-02-28 2026-06-29");
        row("twice a year", TwiceAYear, 31, "2025-08-31 2026-02-28 2026-08-31");
        row("yearly, leap day", Yearly, 29,
            "2024-02-29 2025-02-28 2026-02-28 2027-02-28 2028-02-29");
        row("every two years", EveryTwoYears, 29, "2024-02-29 2026-02-28 2028-02-29");
        row("every three years", EveryThreeYears, 29, "2024-02-29 2027-02-28");
        row("every five years", EveryFiveYears, 29, "2024-02-29 2029-02-28");
        row("every ten years", EveryTenYears, 29, "2024-02-29 2034-02-28 2044-02-29");
    }

    void datesFollowEachOther()
    {
        QFETCH(EventFrequency, frequency);
        QFETCH(int, dayOfMonth);
        QFETCH(QString, dates);
        const QStringList expected = dates.split(u' ');
        QStringList seen{expected.first()};
        for (QDate at = QDate::fromString(expected.first(), Qt::ISODate);
             seen.size() < expected.size();) {
            at = nextOccurrence(frequency, at, dayOfMonth);
            seen += at.toString(Qt::ISODate);
        }
        QCOMPARE(seen, expected);
    }

    void someDatesHaveNoNext()
    {
        const auto next = [](EventFrequency frequency, QDate date) {
            static_cast<void>(nextOccurrence(frequency, date, 31));
        };
        using kiv::foundation::Error;
        QVERIFY_THROWS_EXCEPTION(Error, next(EventFrequency::None, day("2026-01-31")));
        QVERIFY_THROWS_EXCEPTION(Error, next(EventFrequency::Monthly, QDate()));
        QCOMPARE(nextOccurrence(EventFrequency::Daily, day("9999-12-30"), 30), day("9999-12-31"));
        QVERIFY_THROWS_EXCEPTION(Error, next(EventFrequency::Daily, day("9999-12-31")));
        QVERIFY_THROWS_EXCEPTION(Error, next(EventFrequency::TwiceAMonth, day("9999-12-31")));
        QVERIFY_THROWS_EXCEPTION(Error, next(EventFrequency::EveryTenYears, day("9990-01-31")));
    }

    void periodsBetweenDates_data()
    {
        QTest::addColumn<EventFrequency>("frequency");
        QTest::addColumn<QDate>("from");
        QTest::addColumn<QDate>("next");
        QTest::addColumn<double>("periods");
        using enum EventFrequency;
        const auto row = [](const char *name, EventFrequency frequency, const char *from,
                            const char *next, double periods) {
            QTest::newRow(name) << frequency << day(from) << day(next) << periods;
        };
        row("days", Daily, "2024-02-28", "2024-03-01", 2);
        row("weekdays over a weekend", EveryWeekday, "2026-01-02", "2026-01-05", 1);
        row("weekdays within a weekend", EveryWeekday, "2026-01-02", "2026-01-04", 0);
        row("weekdays back", EveryWeekday, "2026-01-16", "2026-01-01", -11);
        row("part of a week", Weekly, "2026-01-01", "2026-01-11", 10 / 7.0);
        row("two weeks", EveryTwoWeeks, "2026-01-01", "2026-01-08", 0.5);
        row("halves of a month", TwiceAMonth, "2026-01-01", "2026-02-16", 3);
        row("from the 31st to the 15th", TwiceAMonth, "2026-01-31", "2026-02-15", 1);
        row("part of half a month", TwiceAMonth, "2026-01-20", "2026-02-01", 1 - 4 / 16.0);
        row("half a month, less a day", TwiceAMonth, "2026-01-14", "2026-01-15", 1 / 16.0);
        row("from the 15th into the second half", TwiceAMonth, "2026-01-15", "2026-01-16",
            1 - 14 / 16.0);
        row("months of different length", Monthly, "2026-01-15", "2026-04-15", 3);
        row("to a short month", Monthly, "2026-01-31", "2026-02-28", 1);
        row("from a short month", Monthly, "2026-02-28", "2026-03-31", 1);
        row("one day less than a month", Monthly, "2026-01-31", "2026-02-27", 1 - 4 / 31.0);
        row("part of a month", Monthly, "2026-01-01", "2026-01-16", 15 / 31.0);
        row("two quarters and a half, back", Quarterly, "2026-11-01", "2026-03-16",
            -7.5161290322580645 / 3);
        row("fourteen months of a year", Yearly, "2026-01-15", "2027-03-15", 14 / 12.0);
        row("ten years", EveryTenYears, "2026-01-15", "2031-01-15", 0.5);
        row("not scheduled", None, "2026-01-15", "2031-01-15", 0);
        QTest::newRow("no date") << Monthly << day("2026-01-15") << QDate() << 0.0;
    }

    void periodsBetweenDates()
    {
        QFETCH(EventFrequency, frequency);
        QFETCH(QDate, from);
        QFETCH(QDate, next);
        QFETCH(double, periods);
        QVERIFY2(isNear(occurrencesIn(frequency, from, next), periods),
                 QByteArray::number(occurrencesIn(frequency, from, next), 'g', 17));
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

    void amountsAreRestatedPerPeriod_data()
    {
        QTest::addColumn<EventFrequency>("from");
        QTest::addColumn<QString>("amount");
        QTest::addColumn<EventFrequency>("to");
        QTest::addColumn<QString>("restated");
        using enum EventFrequency;
        const auto row = [](EventFrequency from, const char *amount, EventFrequency to,
                            const char *restated) {
            QTest::addRow("%s to %s", qPrintable(toQString(from)), qPrintable(toQString(to)))
                << from << QString::fromLatin1(amount) << to << QString::fromLatin1(restated);
        };
        row(Daily, "1.00", Yearly, "365.00");
        row(EveryWeekday, "1.00", Yearly, "260.00");
        row(Weekly, "10.00", Yearly, "520.00");
        row(EveryTwoWeeks, "100.00", Monthly, "216.666666666667");
        row(TwiceAMonth, "100.00", Monthly, "200.00");
        row(Monthly, "99.99", Monthly, "99.99");
        row(Monthly, "100.00", Weekly, "23.076923076923");
        row(EveryTwoMonths, "200.00", Monthly, "100.00");
        row(Quarterly, "300.00", Monthly, "100.00");
        row(EveryFourMonths, "400.00", Monthly, "100.00");
        row(TwiceAYear, "600.00", Monthly, "100.00");
        row(Yearly, "1200.00", Monthly, "100.00");
        row(EveryTwoYears, "2400.00", Monthly, "100.00");
        row(EveryThreeYears, "3600.00", Monthly, "100.00");
        row(EveryFiveYears, "6000.00", Monthly, "100.00");
        row(EveryTenYears, "12000.00", Monthly, "100.00");
        row(Monthly, "100.00", EveryTenYears, "12000.00");
        row(None, "100.00", Monthly, "0.00");
        row(Monthly, "100.00", None, "0.00");
    }

    void amountsAreRestatedPerPeriod()
    {
        QFETCH(EventFrequency, from);
        QFETCH(QString, amount);
        QFETCH(EventFrequency, to);
        QFETCH(QString, restated);
        QCOMPARE(accumulateOver(to, money("EUR", qPrintable(amount)), from),
                 money("EUR", qPrintable(restated)));
    }

    void onlyLongPeriodsAreRare()
    {
        for (int value = 0; value <= 15; ++value)
            QCOMPARE(isRarerThanMonthly(static_cast<EventFrequency>(value)), value >= 7);
    }

    void unknownFrequenciesAreProgrammingErrors()
    {
        const auto unknown = static_cast<EventFrequency>(16);
        const QDate date = day("2026-01-31");
        const std::vector<std::function<void()>> uses{
            [&] { static_cast<void>(toQString(unknown)); },
            [&] { static_cast<void>(nextOccurrence(unknown, date, 1)); },
            [&] { static_cast<void>(occurrencesIn(unknown, date, date)); },
            [&] { static_cast<void>(accumulateOver(EventFrequency::None, usd("1"), unknown)); },
            [&] { static_cast<void>(isRarerThanMonthly(unknown)); },
            [&] { static_cast<void>(BudgetTotals(Budget(), usd("1").code(), unknown)); },
            [&] { static_cast<void>(Bill(BudgetSource(u"Rent"_qs), usd("1"), unknown, date)); },
        };
        for (const auto &use : uses)
            QVERIFY_THROWS_EXCEPTION(std::logic_error, use());
    }
};

static const kiv::test::Suite<tst_EventFrequency> suite;
#include "tst_event_frequency.moc"

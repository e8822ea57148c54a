// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "foundation/dates.h"
#include "foundation/local_dates.h"
#include "foundation/percentage.h"
#include "foundation/presentation.h"
#include "foundation/streams.h"
#include "foundation/strong_bool.h"

#include "numira/error.h"

#include <rapidcheck.h>

#include <cmath>

using namespace kiv::foundation;

namespace {

using IsOpen = StrongBool<struct IsOpenTag>;
static_assert(!std::is_convertible_v<bool, IsOpen> && !std::is_convertible_v<IsOpen, bool>);
static_assert(!std::is_constructible_v<IsOpen, StrongBool<struct IsLateTag>>);

QDate anyDate()
{
    return QDate(2024, 2, 29).addDays(*rc::gen::inRange(-100'000, 100'000));
}

} // namespace

class tst_FoundationValues : public QObject {
    Q_OBJECT

private slots:
    void monthsHaveTheirDays()
    {
        const QDate leapDay(2024, 2, 29);
        QCOMPARE(firstOfMonth(leapDay), QDate(2024, 2, 1));
        QCOMPARE(halfOfMonth(leapDay), QDate(2024, 2, 15));
        QCOMPARE(lastOfMonth(QDate(2024, 2, 1)), leapDay);
        QCOMPARE(lastOfMonth(QDate(2023, 2, 1)), QDate(2023, 2, 28));
        QVERIFY(!firstOfMonth(QDate()).isValid() && !lastOfMonth(QDate()).isValid());
        QCOMPARE(daysBetween(leapDay, QDate(2024, 2, 1)), -28);
        QCOMPARE(presentationText(leapDay.addDays(1)), u"2024-03-01"_qs);
        QCOMPARE(presentationText(QDate()), u"no date"_qs);
    }

    void peopleReadDatesAndSharesInTheirLocale_data()
    {
        QTest::addColumn<QString>("shown");
        QTest::newRow("de_AT.UTF-8") << u"09.03.2026"_qs;
        QTest::newRow("es_ES") << u"09/03/2026"_qs;
        QTest::newRow("en_US.UTF-8@euro") << u"03/09/2026"_qs;
        QTest::newRow("hu_HU") << u"2026. 03. 09."_qs;
        QTest::newRow("th_TH") << u"09/03/2026"_qs; // another calendar
        QTest::newRow("C.UTF-8") << u"2026-03-09"_qs;
        QTest::newRow("POSIX") << u"2026-03-09"_qs;
        QTest::newRow("") << u"2026-03-09"_qs;
    }

    void peopleReadDatesAndSharesInTheirLocale()
    {
        QFETCH(const QString, shown);
        const auto back = qScopeGuard([] { kiv::foundation::setDateLocale(""); });
        kiv::foundation::setDateLocale(QTest::currentDataTag());
        const QDate date(2026, 3, 9);
        QCOMPARE(presentationText(date), shown);
        QCOMPARE(kiv::foundation::dateFromLocalText(shown), date);
        QVERIFY(!kiv::foundation::dateFromLocalText(shown.left(9)).isValid());
        QCOMPARE(kiv::foundation::isoText(date), u"2026-03-09"_qs);
    }

    void elapsedMonthsAddUpAndKeepTheDay()
    {
        QCOMPARE(monthsBetween(QDate(2025, 1, 31), QDate(2025, 2, 1)), 1);
        QCOMPARE(monthsBetween(QDate(2025, 1, 1), QDate(2024, 12, 31)), -1);
        QCOMPARE(addMonthsOnDay(QDate(2025, 2, 28), 1, 31), QDate(2025, 3, 31));
        QCOMPARE(addMonthsOnDay(QDate(2024, 1, 31), -2, 31), QDate(2023, 11, 30));
        QVERIFY(!addMonthsOnDay(QDate(), 1, 31).isValid());
        QVERIFY(rc::check("months add up over a chain", [] {
            const QDate a = anyDate();
            const QDate b = anyDate();
            const QDate c = anyDate();
            RC_ASSERT(monthsBetween(a, b) + monthsBetween(b, c) == monthsBetween(a, c));
            const QDate moved = addMonthsOnDay(a, monthsBetween(a, b), c.day());
            RC_ASSERT(monthsBetween(b, moved) == 0);
            RC_ASSERT(moved.day() == std::min(c.day(), b.daysInMonth()));
        }));
    }

    void percentagesAreExact_data()
    {
        QTest::addColumn<Percentage>("percentage");
        QTest::addColumn<QString>("fraction"); // nothing when there is none
        QTest::addColumn<QString>("text");
        QTest::newRow("survey window") << Percentage(2.75, 6) << u"0.0275"_qs << u"2.75 %"_qs;
        QTest::newRow("half to even") << Percentage(0.125, 2) << u"0.0012"_qs << u"0.12 %"_qs;
        QTest::newRow("no digits") << Percentage(-2.5, 0) << u"-0.02"_qs << u"-2 %"_qs;
        QTest::newRow("all digits") << Percentage(0.1 + 0.2, 255) << u"0.003"_qs << u"0.3 %"_qs;
        QTest::newRow("huge") << Percentage(1e300, 6) << QString() << u"1e+300 %"_qs;
        QTest::newRow("no number") << Percentage(std::nan(""), 6) << QString() << u"nan %"_qs;
    }

    void percentagesAreExact()
    {
        QFETCH(Percentage, percentage);
        QFETCH(QString, fraction);
        QFETCH(QString, text);
        if (fraction.isEmpty())
            QVERIFY_THROWS_EXCEPTION(numira::Error, (void)percentage.fraction());
        else
            QCOMPARE(QString::fromStdString(percentage.fraction().toText()), fraction);
        QCOMPARE(presentationText(percentage), text);
        const Percentage window(2.75, 6);
        QVERIFY(window == Percentage(2.75, 2) && window == 2.75 && window > 2.7 && 2.7 < window);
    }

    void escapesWhatATerminalObeys()
    {
        const QString plain = u"Miete \\ 50 % – ñ 家 😀 \u00A0"_qs;
        QCOMPARE(escaped(plain), plain);
        QCOMPARE(escapedUtf8(plain), plain.toStdString());
        for (const uint unit :
             {0x0000U, 0x001BU, 0x007FU, 0x0085U, 0x009FU, 0x061CU, 0x200EU, 0x200FU, 0x2028U,
              0x2029U, 0x202AU, 0x202EU, 0x2066U, 0x2069U, 0xFEFFU, 0xDE00U})
            QCOMPARE(escaped(u"a"_qs + QChar(unit) + u"b"_qs),
                     QString::asprintf("a\\u{%04X}b", unit));
        QCOMPARE(escaped(QString(2, QChar(0xDE00)) + QChar(0xD83D)),
                 u"\\u{DE00}\\u{DE00}\\u{D83D}"_qs);
    }

    void debugFormIsTheStreamForm()
    {
        QString text;
        QDebug(&text) << "due" << numira::Money(numira::Currency(840), 5, 0)
                      << numira::Currency(978) << Percentage(2.5, 1) << "end";
        QCOMPARE(text, u"due 5.00 USD EUR 2.5 % end "_qs);
        std::ostringstream range;
        streamRange(range, std::set{numira::Currency(978), numira::Currency(392)});
        QCOMPARE(range.str(), "(JPY, EUR)");
    }
};

static const kiv::test::Suite<tst_FoundationValues> suite;
#include "tst_foundation_values.moc"

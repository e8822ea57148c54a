// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/dates.h"
#include "foundation/percentage.h"
#include "foundation/presentation.h"
#include "foundation/streams.h"
#include "foundation/strong_bool.h"

#include "numira/error.h"

#include <QtTest/QtTest>
#include <rapidcheck.h>

#include <cmath>

using namespace kiv::foundation;

namespace {

using IsOpen = StrongBool<struct IsOpenTag>;
using IsLate = StrongBool<struct IsLateTag>;
static_assert(!std::is_convertible_v<bool, IsOpen> && !std::is_convertible_v<IsOpen, bool>);
static_assert(!std::is_constructible_v<IsOpen, IsLate>);

QDate anyDate()
{
    return QDate(2024, 2, 29).addDays(*rc::gen::inRange(-100'000, 100'000));
}

} // namespace

class tst_FoundationValues : public QObject {
    Q_OBJECT

private slots:
    void monthsHaveTheirDays();
    void elapsedMonthsAddUp();
    void monthlyStepsKeepTheDay_data();
    void monthlyStepsKeepTheDay();
    void datesAreShownAsIso();
    void percentagesAreExact_data();
    void percentagesAreExact();
    void percentagesCompareByRate();
    void escapesWhatATerminalObeys_data();
    void escapesWhatATerminalObeys();
    void debugFormIsTheStreamForm();
};

void tst_FoundationValues::monthsHaveTheirDays()
{
    const QDate leapDay(2024, 2, 29);
    QCOMPARE(firstOfMonth(leapDay), QDate(2024, 2, 1));
    QCOMPARE(halfOfMonth(leapDay), QDate(2024, 2, 15));
    QCOMPARE(lastOfMonth(QDate(2024, 2, 1)), leapDay);
    QCOMPARE(lastOfMonth(QDate(2023, 2, 1)), QDate(2023, 2, 28));
    QVERIFY(!firstOfMonth(QDate()).isValid() && !lastOfMonth(QDate()).isValid());
    QCOMPARE(daysBetween(leapDay, QDate(2024, 2, 1)), qint64(-28));
}

void tst_FoundationValues::elapsedMonthsAddUp()
{
    QCOMPARE(monthsBetween(QDate(2025, 1, 31), QDate(2025, 2, 1)), 1);
    QCOMPARE(monthsBetween(QDate(2025, 1, 1), QDate(2024, 12, 31)), -1);
    QCOMPARE(monthsBetween(QDate(2025, 1, 1), QDate(2025, 1, 31)), 0);
    QVERIFY(rc::check("months add up over a chain", [] {
        const QDate a = anyDate();
        const QDate b = anyDate();
        const QDate c = anyDate();
        RC_ASSERT(monthsBetween(a, b) + monthsBetween(b, c) == monthsBetween(a, c));
        const QDate moved = addMonthsOnDay(a, monthsBetween(a, b), a.day());
        RC_ASSERT(monthsBetween(b, moved) == 0);
        RC_ASSERT(moved.day() == std::min(a.day(), b.daysInMonth()));
    }));
}

void tst_FoundationValues::monthlyStepsKeepTheDay_data()
{
    QTest::addColumn<QDate>("from");
    QTest::addColumn<int>("months");
    QTest::addColumn<int>("day");
    QTest::addColumn<QDate>("to");
    QTest::newRow("short month") << QDate(2025, 1, 31) << 1 << 31 << QDate(2025, 2, 28);
    QTest::newRow("back to the day") << QDate(2025, 2, 28) << 1 << 31 << QDate(2025, 3, 31);
    QTest::newRow("over a year's end, back")
        << QDate(2024, 1, 31) << -2 << 30 << QDate(2023, 11, 30);
    QTest::newRow("leap year") << QDate(2020, 2, 29) << 48 << 29 << QDate(2024, 2, 29);
    QTest::newRow("earlier day") << QDate(2025, 5, 31) << 0 << 5 << QDate(2025, 5, 5);
    QTest::newRow("no date") << QDate() << 1 << 31 << QDate();
}

void tst_FoundationValues::monthlyStepsKeepTheDay()
{
    QFETCH(QDate, from);
    QFETCH(int, months);
    QFETCH(int, day);
    QFETCH(QDate, to);
    QCOMPARE(addMonthsOnDay(from, months, day), to);
}

void tst_FoundationValues::datesAreShownAsIso()
{
    QCOMPARE(presentationText(QDate(2026, 3, 1)), u"2026-03-01"_qs);
    QCOMPARE(presentationText(QDate()), u"no date"_qs);
}

void tst_FoundationValues::percentagesAreExact_data()
{
    QTest::addColumn<double>("rate");
    QTest::addColumn<int>("digits");
    QTest::addColumn<QByteArray>("fraction"); // nothing when there is none
    QTest::addColumn<QString>("text");
    QTest::newRow("survey window") << 2.75 << 6 << QByteArray("0.0275") << u"2.75 %"_qs;
    QTest::newRow("half to even") << 0.125 << 2 << QByteArray("0.0012") << u"0.12 %"_qs;
    QTest::newRow("no digits") << -2.5 << 0 << QByteArray("-0.02") << u"-2 %"_qs;
    QTest::newRow("more digits than kept")
        << 100.0 / 3 << 255 << QByteArray("0.333333333333") << u"33.333333333333 %"_qs;
    QTest::newRow("huge") << 1e300 << 6 << QByteArray() << u"1e+300 %"_qs;
    QTest::newRow("not a number") << std::nan("") << 6 << QByteArray() << u"nan %"_qs;
}

void tst_FoundationValues::percentagesAreExact()
{
    QFETCH(double, rate);
    QFETCH(int, digits);
    QFETCH(QByteArray, fraction);
    QFETCH(QString, text);
    const Percentage percentage(rate, static_cast<std::uint8_t>(digits));
    if (fraction.isEmpty())
        QVERIFY_EXCEPTION_THROWN((void)percentage.fraction(), numira::Error);
    else
        QCOMPARE(percentage.fraction().toText(), fraction.toStdString());
    QCOMPARE(presentationText(percentage), text);
}

void tst_FoundationValues::percentagesCompareByRate()
{
    const Percentage window(2.75, 6);
    QVERIFY(window == Percentage(2.75, 2) && window == 2.75);
    QVERIFY(window < Percentage(3, 0) && window > 2.7 && 2.7 < window);
}

void tst_FoundationValues::escapesWhatATerminalObeys_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shown");
    const QString plain = u"Miete \\ 50 % – ñ 家 😀 \u00A0"_qs;
    QTest::newRow("harmless") << plain << plain;
    const QList<char16_t> unsafe{0x0000, 0x001B, 0x007F, 0x0085, 0x009F, 0x061C, 0x200E, 0x200F,
                                 0x2028, 0x2029, 0x202A, 0x202E, 0x2066, 0x2069, 0xFEFF};
    for (const char16_t unit : unsafe) {
        QTest::addRow("U+%04X", unsigned(unit))
            << u"a"_qs + QChar(unit) + u"b"_qs << QString::asprintf("a\\u{%04X}b", unsigned(unit));
    }
    QTest::newRow("high surrogate at the end") << u"a"_qs + QChar(0xD83D) << u"a\\u{D83D}"_qs;
    QTest::newRow("halves in the wrong order")
        << QString(QChar(0xDE00)) + QChar(0xD83D) << u"\\u{DE00}\\u{D83D}"_qs;
}

void tst_FoundationValues::escapesWhatATerminalObeys()
{
    QFETCH(QString, text);
    QFETCH(QString, shown);
    QCOMPARE(escaped(text), shown);
    QCOMPARE(escapedUtf8(text), shown.toStdString());
}

void tst_FoundationValues::debugFormIsTheStreamForm()
{
    QString text;
    QDebug(&text) << "due" << numira::Money(numira::Currency(840), 5, 0) << numira::Currency(978)
                  << Percentage(2.5, 1) << "end";
    QCOMPARE(text, u"due 5.00 USD EUR 2.5 % end "_qs);
    std::ostringstream range;
    streamRange(range, std::set<numira::Currency>{numira::Currency(978), numira::Currency(392)});
    QCOMPARE(range.str(), std::string("(JPY, EUR)"));
}

QTEST_APPLESS_MAIN(tst_FoundationValues)
#include "tst_foundation_values.moc"

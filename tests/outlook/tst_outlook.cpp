// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "outlook/outlook.h"

#include "support/accounting.h"

using namespace kiv::outlook;
using namespace kiv::budgeting;

namespace {

constexpr auto checking = 1U;
constexpr auto holiday = 2U; // of a goal
constexpr auto shop = 9U;    // an expense, of which nothing is told

Expected every(EventFrequency frequency, const char *name, const char *amount, const char *next,
               unsigned to = shop)
{
    const QDate due = day(next);
    return {{BudgetItemTypes::Bill, BudgetSource(QString::fromLatin1(name))},
            usd(amount),
            frequency,
            due,
            due.day(),
            no(checking),
            no(to)};
}

/// The payments as "04-03 Rent", and the balances at the end of some days.
QString told(const Outlook &outlook)
{
    QStringList lines;
    for (const Payment &one : outlook.payments)
        lines += one.day.toString(u"MM-dd "_s) + (one.item ? one.item->source.name() : u"once"_s);
    return lines.join(u", "_s);
}

} // namespace

class tst_Outlook : public QObject {
    Q_OBJECT

private slots:
    void goesDayByDay()
    {
        Beginning from{day("2026-03-30"), 10, {{no(checking), usd("100")}}, {no(checking)}, {}};
        from.balances[no(holiday)] = usd("40");
        from.expected = {every(EventFrequency::Monthly, "Rent", "60", "2026-01-31"),
                         every(EventFrequency::Weekly, "Trip", "5", "2026-04-01", holiday),
                         every(EventFrequency::None, "Never", "1", "2026-04-01")};
        from.expected[1].until = Ending{no(holiday), usd("45")};
        from.once = {{day("2026-04-01"), usd("50"), no(shop), no(checking)},
                     {day("2026-04-08"), usd("1"), no(shop), no(checking)}};
        const Outlook outlook = look(from);
        // The dates that were missed come first; the goal is reached with one payment.
        QCOMPARE(told(outlook), u"03-30 Rent, 03-30 Rent, 03-31 Rent, 04-01 Trip, 04-01 once, "
                                "04-08 once"_s);
        const Curve &curve = outlook.accounts.at(no(checking));
        QCOMPARE(curve.ends.at(0), usd("-20"));
        QCOMPARE(outlook.day(curve.lowest()), day("2026-03-31"));
        QCOMPARE(curve.least(), usd("-80"));
        QCOMPARE(curve.least(1), usd("-20"));
        QCOMPARE(curve.ends.back(), usd("-34"));
        QCOMPARE(outlook.cause(curve, curve.lowest())->item->source.name(), u"Rent"_s);
        QVERIFY(!outlook.cause(curve, 2)); // more than a day before, less than two
        QCOMPARE(curve.firstBelow(usd("-30")), std::optional<std::size_t>(1));
        QVERIFY(!curve.firstBelow(usd("-90")));
        // Money that moves between two of the accounts is still there.
        from.watched.insert(no(holiday));
        QCOMPARE(look(from).together(from.watched, numira::toCurrency("USD"))->ends.back(),
                 usd("11"));
    }

    void namesWhatItCannotTell()
    {
        Beginning from{day("2026-03-30"), 40, {{no(checking), usd("100")}}, {no(checking)}, {}};
        from.expected = {every(EventFrequency::Daily, "Hotel", "9", "2026-04-01"),
                         every(EventFrequency::Yearly, "Rent", "60", "9998-12-31")};
        from.expected[0].amount = money("EUR", "9");
        const Outlook outlook = look(from);
        QCOMPARE(outlook.leftOut.size(), std::size_t{1});
        QCOMPARE(outlook.leftOut[0].item->source.name(), u"Hotel"_s);
        QVERIFY(outlook.payments.empty());
        from.first = day("9998-12-01");
        from.days = 5'000;
        from.expected = {every(EventFrequency::Yearly, "Rent", "60", "9998-12-31")};
        QCOMPARE(look(from).payments.size(), std::size_t{2});
        from.once = {
            {day("9999-01-01"), usd("99999999999999999999999999"), no(shop), no(checking)},
            {day("9999-01-01"), usd("99999999999999999999999999"), no(shop), no(checking)}};
        QVERIFY_EXCEPTION_THROWN((void)look(from), std::exception);
        from.days = 0;
        QVERIFY_EXCEPTION_THROWN((void)look(from), std::logic_error);
    }
};

static const kiv::test::Suite<tst_Outlook> outlookSuite;
#include "tst_outlook.moc"

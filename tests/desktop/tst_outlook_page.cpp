// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"
#include "widgets/chart_view.h"

using namespace kiv;
using namespace kiv::test;
using namespace Qt::Literals::StringLiterals;

namespace {

QString told(HouseholdWindow &home)
{
    return part<QLabel>(home, "told").text();
}

QString dayText(int days)
{
    return foundation::presentationText(foundation::today().addDays(days));
}

/// The middle of all that is drawn in a colour.
QPoint middleOf(desktop::ChartView &chart, desktop::Colour meaning)
{
    const QImage picture = chart.grab().toImage();
    const QRgb wanted = desktop::colour(meaning, chart.palette()).rgb();
    QPoint sum;
    int count = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) == wanted) {
                sum += QPoint(x, y);
                ++count;
            }
        }
    }
    return count > 0 ? sum / count : QPoint();
}

} // namespace

/// The page that looks ahead, by keys, and its chart.
class TestOutlookPage : public QObject {
    Q_OBJECT

private slots:
    void theLowestDayIsToldAndListedWithItsCause()
    {
        SmallHousehold home;
        show(home, "home");
        const QString lowest =
            u"Lowest on %1: %2, because of Rent."_s.arg(dayText(0), dollars("2080"));
        QCOMPARE(part<QLabel>(home, "ahead").text(),
                 lowest + u" The next wage comes on %1."_s.arg(dayText(2)));
        home.trigger("page outlook");
        QVERIFY2(told(home).startsWith(lowest), qPrintable(told(home)));
        QCOMPARE(texts(home, 0, "curves"), QStringList({u"All together"_s, u"Checking"_s}));
        QCOMPARE(texts(home, 0, "payments").first(3),
                 QStringList({u"Rent"_s, u"Phone"_s, u"Salary"_s}));
        QCOMPARE(texts(home, 1, "payments").first(2),
                 QStringList({u"%1, due on %2"_s.arg(dayText(0), dayText(-3)), dayText(0)}));
        QCOMPARE(texts(home, 5, "payments").first(3),
                 QStringList({dollars("2100"), dollars("2080"), dollars("4580")}));
        // The last balance of the payments is that of the account at the end.
        QCOMPARE(texts(home, 5, "payments").last(), texts(home, 5, "curves").last());
    }

    void whatIfIsAskedWithoutAnyChange()
    {
        SmallHousehold home;
        show(home, "outlook");
        const auto before = home.document().present();
        for (const auto &[key, text] : {std::pair(Qt::Key_P, u"2500"_s),
                                        {Qt::Key_O, u"+1"_s},
                                        {Qt::Key_N, u"100"_s},
                                        {Qt::Key_D, u"10"_s}}) {
            press(home, key, Qt::AltModifier);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
            type(home, text);
        }
        press(home, Qt::Key_Return);
        QCOMPARE(told(home).section(u'\n', 0, 1),
                 u"Lowest on %1: %2, because of what was asked about.\n"
                 "Below %3 for the first time on %1."_s.arg(dayText(1), dollars("-420"),
                                                            dollars("100")));
        press(home, Qt::Key_L, Qt::AltModifier);
        type(home, u"Rent"_s);
        press(home, Qt::Key_Return);
        QVERIFY2(told(home).contains(u": %1, because"_s.arg(dollars("480"))),
                 qPrintable(told(home)));
        // A change in the budget is followed, and what is asked stays.
        home.document().perform({u"More"_s, {}, {}}, [&] {
            home.addItem<budgeting::Bill>("Gas", "80", foundation::today());
        });
        QVERIFY2(told(home).contains(u": %1, because"_s.arg(dollars("400"))),
                 qPrintable(told(home)));
        home.trigger("undo");
        // Del leaves out what is chosen: the phone.
        table(home, "payments").setFocus();
        press(home, Qt::Key_Delete);
        QCOMPARE(texts(home, 0, "payments").first(), u"what was asked about"_s);
        QCOMPARE(part<QLineEdit>(home, "without").text(), u"Rent, bill:Phone"_s);
        press(home, Qt::Key_A, Qt::AltModifier);
        QVERIFY(told(home).contains(u"because of Rent"_s));
        QVERIFY(before == home.document().present());
        QVERIFY(!home.document().undoable());
    }

    void whatCannotBeAskedIsToldAtItsField()
    {
        SmallHousehold home;
        show(home, "outlook");
        const QString before = told(home);
        for (const auto &[field, wrong] : {std::pair("days", u"0"_s),
                                           {"days", u"3661"_s},
                                           {"floor", u"much"_s},
                                           {"floor", u"5 CHF"_s}, // without an exchange rate
                                           {"without", u"Rentt"_s},
                                           {"amount", u"x"_s},
                                           {"day", u"2026-02-30"_s},
                                           {"day", u"+92"_s},
                                           {"day", u""_s}}) {
            auto &edit = part<QLineEdit>(home, field);
            const QString usual = edit.text();
            if (QByteArray(field) == "day")
                part<QLineEdit>(home, "amount").setText(u"5"_s);
            edit.setFocus();
            edit.setText(wrong);
            press(home, Qt::Key_Return);
            QVERIFY2(!message(home).isEmpty(), qPrintable(wrong));
            QVERIFY(edit.hasFocus());
            QCOMPARE(edit.text(), wrong);
            QCOMPARE(told(home), before);
            edit.setText(usual);
        }
        press(home, Qt::Key_Escape);
        QCOMPARE(message(home), QString());
    }

    void aChartIsReadInBothDirectionsAndByKeys()
    {
        interchange::Chart chart{interchange::ChartKind::Steps,
                                 u"Money"_s,
                                 u"Lowest."_s,
                                 {u"Mon"_s, u"Tue"_s, u"Wed"_s, u"Thu"_s},
                                 {{u"Money"_s, {usd("100"), usd("-20"), usd("60"), usd("80")}}}};
        chart.mark = {0, 1, u"here"_s};
        desktop::ChartView view(nullptr);
        view.resize(600, 300);
        view.setChart(chart, {});
        QSignalSpy told(&view, &desktop::ChartView::told);
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            view.setLayoutDirection(direction);
            const bool isFromRight = direction == Qt::RightToLeft;
            const QPoint mark = middleOf(view, desktop::Colour::Wrong);
            QCOMPARE(mark.x() > 300, isFromRight); // the second of four
            QVERIFY(mark.y() > middleOf(view, desktop::Colour::Heading).y());
            QTest::keyClick(&view, Qt::Key_Home);
            QTest::keyClick(&view, isFromRight ? Qt::Key_Left : Qt::Key_Right);
            QCOMPARE(told.last()[0].toString(), u"Tue: -20.00 USD"_s);
            QVERIFY(view.accessibleName().endsWith(u"-20.00 USD"_s));
            QTest::mouseClick(&view, Qt::LeftButton, {}, {isFromRight ? 1 : 599, 100});
            QCOMPARE(told.last()[0].toString(), u"Thu: 80.00 USD"_s);
            QTest::keyClick(&view, isFromRight ? Qt::Key_Left : Qt::Key_Right); // there is no more
            QCOMPARE(view.point(), std::optional(std::size_t{3}));
        }
        QCOMPARE(view.accessibleDescription(), u"Lowest."_s);
        view.setChart({}, {});
        QTest::keyClick(&view, Qt::Key_End);
        view.grab();
    }
};

static const kiv::test::Suite<TestOutlookPage> suite;

#include "tst_outlook_page.moc"

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "desktop/page_keys.h"
#include "widgets/chart_view.h"

namespace {

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

// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/suite.h"

#include "cases.h"

#include "books.h"

#include "interchange/html_report.h"

using namespace kiv::interchange;
using namespace kiv::test;

namespace {

/// The page, or those of its lines that hold a part; of its style only the place.
QString pageOf(const Case &given)
{
    const Books books(given.text);
    const Period period(day(given.option("from").toLatin1()), day(given.option("to").toLatin1()));
    QString page = QString::fromUtf8(
        toHtml(figuresOf(period, books.accounts, books.transactions, books.budget),
               given.option("title", u"t"_s)));
    for (const char *loaded : {"http:", "https:", "src=", "@import", "url("})
        if (page.contains(QLatin1String(loaded)))
            return u"It loads something."_s;
    page.remove(QRegularExpression(u"(?s)(?<=<style>).*(?=</style>)"_s));
    return page.split(u'\n').filter(given.option("only")).join(u'\n');
}

/// The chart with a bar or point for each number of the text.
Chart chartOf(const QString &text)
{
    Chart chart;
    chart.series.resize(1);
    for (const QString &number : text.split(u' '))
        chart.series[0].values.push_back(usd(number.toLatin1()));
    return chart;
}

} // namespace

class TestFigures : public QObject {
    Q_OBJECT

private slots:
    void reports_data() { addCases(u"reports"_s); }
    void reports()
    {
        QFETCH(Case, given);
        if (given.file == u"ticks")
            return compareLines(given, [](const QString &text) {
                QStringList ticks;
                for (const numira::Decimal &tick : axisTicks(chartOf(text)))
                    ticks += QString::fromStdString(tick.toText());
                return ticks.join(u' ');
            });
        compare(given, outcome<kiv::foundation::Error>([&] { return pageOf(given); }));
    }

    void chartsOfNothingAreEmpty()
    {
        QCOMPARE(toSvg({}, u"c"_s), QString());
        QCOMPARE(toSvg({ChartKind::Bars, {}, {}, {u"2026-01"_s}, {}}, u"c"_s), QString());
        QCOMPARE(toSvg(chartOf(u"1"_s), u"c"_s), QString());
    }
};

static const kiv::test::Suite<TestFigures> suite;
#include "tst_figures.moc"

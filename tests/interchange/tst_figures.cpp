// SPDX-License-Identifier: GPL-3.0-or-later
#include "cases.h"

#include "books.h"

#include "interchange/html_report.h"

using namespace kiv::interchange;
using namespace kiv::test;
using kiv::foundation::Error;
using kiv::foundation::toQString;
using numira::Money;

namespace {

Figures figuresOf(const Case &given)
{
    const Books books(given.text);
    const auto date = [&](const char *name) { return day(given.option(name).toLatin1()); };
    return figuresOf(Period(date("from"), date("to")), books.accounts, books.transactions,
                     books.budget);
}

/// All figures, month by month.
QString linesOf(const Figures &figures)
{
    QStringList lines;
    const auto add = [&lines](const QString &what, const std::vector<Money> &amounts) {
        QStringList texts;
        for (const Money &amount : amounts)
            texts += toQString(amount);
        lines += what + u": "_s + texts.join(u' ');
    };
    lines += figures.period.from().toString(Qt::ISODate) + u" to "_s +
             figures.period.to().toString(Qt::ISODate) + u": "_s +
             figures.period.labels().join(u' ');
    for (const auto &[currency, sums] : figures.currencies) {
        const QString code = toQString(currency);
        add(code + u" net worth"_s, sums.netWorth);
        add(code + u" income"_s, sums.income);
        add(code + u" expenses"_s, sums.expenses);
        add(code + u" going out, of "_s + (sums.hasItems ? toQString(sums.planned) : u"none"_s),
            sums.outgoing);
    }
    for (const ItemFigure &item : figures.items)
        add(presentationText(item.kind) + u' ' + item.name + u", "_s + withCode(item.planned),
            item.actual);
    for (const BalanceFigure &figure : figures.balances)
        lines += kiv::accounting::toQString(figure.type) + u' ' + figure.path + u": "_s +
                 withCode(figure.balance);
    return lines.join(u'\n');
}

/// The page, one element of a list to a line; of its style only where it stands.
QString pageOf(const Case &given)
{
    QString page = QString::fromUtf8(toHtml(figuresOf(given), given.option("title", u"t"_s)));
    static const QRegularExpression style(u"<style>.*</style>"_s,
                                          QRegularExpression::DotMatchesEverythingOption);
    for (const QString &loaded : {u"http:"_s, u"https:"_s, u"src="_s, u"@import"_s, u"url("_s})
        if (page.contains(loaded))
            return u"It loads something."_s;
    page.replace(style, u"<style></style>"_s);
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
        compare(given, outcome<Error>([&] {
                    return given.file == u"pages" ? pageOf(given) : linesOf(figuresOf(given));
                }));
    }

    void chartsOfNothingAreEmpty()
    {
        QCOMPARE(toSvg({}, u"c"_s), QString());
        QCOMPARE(toSvg({ChartKind::Bars, {}, {}, {u"2026-01"_s}, {}}, u"c"_s), QString());
        QCOMPARE(toSvg(chartOf(u"1"_s), u"c"_s), QString());
    }
};

QTEST_APPLESS_MAIN(TestFigures)
#include "tst_figures.moc"

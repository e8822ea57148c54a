// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/html_report.h"

#include "interchange/figure_charts.h"
#include "interchange/internal/html_text.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::interchange {

using accounting::AccountTypes;
using internal::htmlText;
using numira::Money;

namespace {

/// Colours that stay distinct for colour-blind people and in grey.
const char *const style = R"(
:root { --ink: #1b2733; --soft: #5a6875; --rule: #d9dfe5; --paper: #ffffff; --band: #f5f7f9;
  --one: #0b5a8f; --two: #d98410; --three: #3b8f6a; --bad: #b3261e; }
* { box-sizing: border-box; }
body { margin: 0 auto; max-width: 60rem; padding: 2.5rem 2rem; color: var(--ink);
  background: var(--paper); font: 15px/1.5 system-ui, "Segoe UI", "DejaVu Sans", sans-serif; }
header { border-bottom: 3px solid var(--one); margin-bottom: 2rem; padding-bottom: .8rem; }
h1 { font-size: 1.9rem; margin: 0; } header p { color: var(--soft); margin: .3rem 0 0; }
h2 { font-size: 1.3rem; margin: 2.4rem 0 .8rem; } h3 { font-size: 1rem; margin: 1.4rem 0 .4rem; }
.cards { display: flex; flex-wrap: wrap; gap: 1rem; }
.card { flex: 1 1 11rem; border: 1px solid var(--rule); border-radius: 8px; padding: .8rem 1rem; }
.card span { color: var(--soft); display: block; font-size: .85rem; }
.card strong { font-size: 1.35rem; font-variant-numeric: tabular-nums; }
figure { margin: 1rem 0 1.6rem; } figcaption { font-weight: 600; margin-bottom: .4rem; }
.scroll { overflow-x: auto; }
table { border-collapse: collapse; width: 100%; font-size: .9rem; }
th, td { padding: .32rem .6rem; text-align: left; border-bottom: 1px solid var(--rule); }
thead th { border-bottom: 2px solid var(--soft); font-weight: 600; white-space: nowrap; }
tbody th { font-weight: 400; } tr.sum th { font-weight: 600; }
.dense table { font-size: .8rem; } .dense th, .dense td { padding: .3rem .35rem; }
tbody tr:nth-child(even) { background: var(--band); }
tr.sum td, tr.sum th { border-top: 2px solid var(--soft); font-weight: 600; }
td.n, th.n { text-align: right; font-variant-numeric: tabular-nums; white-space: nowrap; }
td.over { color: var(--bad); font-weight: 600; } td.minus { color: var(--bad); }
.note { color: var(--soft); font-size: .85rem; }
svg { display: block; width: 100%; height: auto; } svg text { font-size: 11px; fill: var(--soft); }
svg text.name { fill: var(--ink); font-size: 12px; } svg .tick { text-anchor: end; }
svg .label { text-anchor: middle; } .grid { stroke: var(--rule); } .zero { stroke: var(--soft); }
.series0 { fill: var(--one); } .series1 { fill: var(--two); } .series2 { fill: var(--three); }
.line0 { stroke: var(--one); } .line1 { stroke: var(--two); } .line2 { stroke: var(--three); }
.line0, .line1, .line2 { fill: none; stroke-width: 2.5; stroke-linejoin: round; }
.level { stroke: var(--bad); stroke-dasharray: 6 4; } .mark { fill: none; stroke: var(--bad);
  stroke-width: 2.5; } .area0 { fill: var(--one); opacity: .1; } .area1, .area2 { fill: none; }
.share { width: 22%; } .share svg { height: .8rem; min-width: 3rem; }
details summary { cursor: pointer; color: var(--soft); font-size: .85rem; }
@media (max-width: 640px) { body { padding: 1.2rem .9rem; } h1 { font-size: 1.5rem; }
  th, td { padding: .3rem .35rem; } tbody th { min-width: 6.5rem; }
  .drawing svg { overflow: visible; } .drawing svg text { font-size: 19px; }
  .drawing svg text.name { font-size: 17px; }
  thead th { white-space: normal; } }
@media (prefers-color-scheme: dark) { :root { --ink: #e6ebf0; --soft: #9fb0bf; --rule: #33414d;
  --paper: #14191e; --band: #1a2127; --one: #63b3e4; --two: #f0ad4e; --three: #7fc8a4;
  --bad: #ff8a80; } }
@media print { :root { --ink: #000; --soft: #444; --rule: #bbb; --paper: #fff; --band: #fff;
  --one: #0b5a8f; --two: #d98410; --three: #3b8f6a; --bad: #900; }
  @page { margin: 16mm; } body { max-width: none; padding: 0; font-size: 10pt; }
  h2 { break-after: avoid; } figure, .card, tr { break-inside: avoid; }
  thead { display: table-header-group; } .scroll { overflow: visible; }
  * { -webkit-print-color-adjust: exact; print-color-adjust: exact; } }
)";

QString amount(const Money &money)
{
    return htmlText(foundation::presentationText(money));
}

QString numberCell(const Money &money, const QString &otherClass = {})
{
    const QString sign = money.isNegative() ? QStringLiteral(" minus") : QString();
    return QStringLiteral("<td class=\"n%1%2\">%3</td>").arg(otherClass, sign, amount(money));
}

/// A table's head: the first column, then columns of numbers.
QString tableHead(const QString &first, const QStringList &numbers)
{
    QString html =
        QStringLiteral("<div class=\"scroll\"><table><thead><tr><th scope=\"col\">%1</th>")
            .arg(htmlText(first));
    for (const QString &title : numbers)
        html += QStringLiteral("<th scope=\"col\" class=\"n\">%1</th>").arg(htmlText(title));
    return html + QStringLiteral("</tr></thead><tbody>\n");
}

const QString tableEnd = QStringLiteral("</tbody></table></div>\n");

QString headCell(const QString &text)
{
    return QStringLiteral("<th scope=\"row\">%1</th>").arg(htmlText(text));
}

QString card(const QString &label, const QString &text)
{
    return QStringLiteral("<div class=\"card\"><span>%1</span><strong>%2</strong></div>\n")
        .arg(htmlText(label), text);
}

bool hasMoved(const std::vector<Money> &spans)
{
    return !std::ranges::all_of(spans, &Money::isZero);
}

QString summary(const Figures *figures, const Groups &groups)
{
    QString html = QStringLiteral("<div class=\"cards\">\n");
    if (figures) {
        for (const auto &[currency, sums] : figures->currencies) {
            if (hasMoved(sums.netWorth))
                html +=
                    card(QObject::tr("Net worth, %1").arg(foundation::presentationText(currency)),
                         amount(sums.netWorth.back()));
        }
    }
    for (const auto &[currency, flow] : groups.currencies) {
        const QString code = foundation::presentationText(currency);
        html += card(QObject::tr("Income, %1").arg(code), amount(flow.totalIncome)) +
                card(QObject::tr("Expenses, %1").arg(code), amount(flow.totalExpenses));
        if (const auto rate = FlowFigures::savingsRate(flow.totalIncome, flow.totalExpenses))
            html += card(QObject::tr("Savings rate, %1").arg(code),
                         htmlText(foundation::presentationText(*rate)));
    }
    return html + QStringLiteral("</div>\n");
}

QString notesOf(const QStringList &notes)
{
    QString html;
    for (const QString &note : notes)
        html += QStringLiteral("<p class=\"note\">%1</p>\n").arg(htmlText(note));
    return html;
}

/// Without a budget there is only what came in and was spent.
std::vector<Chart> chartsOf(const Groups &groups)
{
    std::vector<Chart> charts;
    for (const auto &[currency, flow] : groups.currencies) {
        if (groups.period.size() > 1 && !flow.isEmpty())
            charts.push_back(flowChart(groups.period, currency, flow));
    }
    return charts;
}

/// The heading of a column of spans.
QString spanTitle(const Period &period)
{
    return period.length() == SpanLength::Month ? QObject::tr("Month") : QObject::tr("Span");
}

QString figureWithTable(const Chart &chart, const QString &first, const QString &drawing)
{
    QStringList names;
    for (const ChartSeries &series : chart.series)
        names += series.name;
    // A row for each day would hide what follows.
    const QString opening = chart.kind == ChartKind::Steps ? QStringLiteral("<details>")
                                                           : QStringLiteral("<details open>");
    QString html =
        QStringLiteral("<figure><figcaption>%1</figcaption>\n<div class=\"drawing\">\n%2"
                       "</div>%3<summary>%4</summary>\n%5")
            .arg(htmlText(chart.title), drawing, opening,
                 htmlText(QObject::tr("The figures as a table")), tableHead(first, names));
    for (qsizetype month = 0; month < chart.labels.size(); ++month) {
        html += QStringLiteral("<tr>") + headCell(chart.labels[month]);
        for (const ChartSeries &series : chart.series)
            html += numberCell(series.values[static_cast<std::size_t>(month)]);
        html += QStringLiteral("</tr>\n");
    }
    return html + tableEnd + QStringLiteral("</details></figure>\n");
}

/// The accounts of one kind with an amount of each, and the sum in each currency.
QString accountTable(const Figures &figures, AccountTypes type, const QString &title,
                     Money BalanceFigure::*column)
{
    std::map<numira::Currency, Money> sums;
    QString rows;
    for (const BalanceFigure &figure : figures.balances) {
        const Money &money = figure.*column;
        if (figure.type != type || money.isZero())
            continue;
        sums.try_emplace(money.code(), money.code()).first->second += money;
        // The root says the same as the heading.
        rows += QStringLiteral("<tr>") + headCell(figure.plainPath.section(u':', 1)) +
                numberCell(money) + QStringLiteral("</tr>\n");
    }
    if (rows.isEmpty())
        return {};
    for (const auto &[currency, sum] : sums)
        rows += QStringLiteral("<tr class=\"sum\">") +
                headCell(QObject::tr("Total, %1").arg(foundation::presentationText(currency))) +
                numberCell(sum) + QStringLiteral("</tr>\n");
    return QStringLiteral("<h3>%1</h3>\n").arg(htmlText(accounting::presentationText(type))) +
           tableHead(QObject::tr("Account"), {title}) + rows + tableEnd;
}

QString heading(const QString &text)
{
    return QStringLiteral("<h2>%1</h2>\n").arg(htmlText(text));
}

QString dayText(QDate day)
{
    return foundation::presentationText(day);
}

QString accountTables(const Figures &figures)
{
    QString html = heading(QObject::tr("By account, from %1 to %2")
                               .arg(dayText(figures.period.from()), dayText(figures.period.to())));
    for (const AccountTypes type : {AccountTypes::Expense, AccountTypes::Income})
        html += accountTable(figures, type, QObject::tr("Amount"), &BalanceFigure::change);
    html += heading(QObject::tr("Balances on %1").arg(dayText(figures.period.to())));
    QString balances;
    for (const AccountTypes type : {AccountTypes::Asset, AccountTypes::Liability})
        balances += accountTable(figures, type, QObject::tr("Balance"), &BalanceFigure::balance);
    return html + (balances.isEmpty() ? QStringLiteral("<p class=\"note\">%1</p>\n")
                                            .arg(htmlText(QObject::tr("All accounts are empty.")))
                                      : balances);
}

/// A bar as long as the part of the largest amount; the figure stands beside it.
QString shareCell(const Money &money, const Money &largest, bool isIncome)
{
    const double part = largest.isPositive() && money.isPositive()
                            ? money.amount().toDouble() / largest.amount().toDouble()
                            : 0;
    return QStringLiteral("<td class=\"share\"><svg viewBox=\"0 0 100 8\" aria-hidden=\"true\" "
                          "preserveAspectRatio=\"none\"><rect class=\"series%1\" width=\"%2\" "
                          "height=\"8\"/></svg></td>")
        .arg(QString::number(isIncome ? 0 : 1), QString::number(part * 100, 'f', 1));
}

/// The tables show only the spans that fit a page; charts show all.
constexpr std::size_t shownMax = 6;

std::size_t firstShown(const Period &period)
{
    return period.size() > shownMax ? period.size() - shownMax : 0;
}

/// The groups of one kind and currency, from `at` on.
QString groupTable(const Groups &groups, std::size_t at, std::size_t end)
{
    const GroupFigure &largest = groups.figures[at];
    const bool hasSpans = groups.period.size() > 1;
    const std::size_t first = firstShown(groups.period);
    // What sums up comes first: a narrow screen shows no more at a time.
    QStringList titles{QObject::tr("Total")};
    if (hasSpans)
        titles += QStringList{QObject::tr("Average")} +
                  groups.period.labels().mid(static_cast<qsizetype>(first));
    QString html =
        QStringLiteral("<h3>%1</h3>\n<div class=\"dense\">")
            .arg(htmlText(QObject::tr("%1, %2", "such as: Expense, USD")
                              .arg(accounting::presentationText(largest.type),
                                   foundation::presentationText(largest.total.code())))) +
        tableHead(QObject::tr("Name"), QStringList{QString()} + titles);
    for (; at < end; ++at) {
        const GroupFigure &figure = groups.figures[at];
        html += QStringLiteral("<tr>") + headCell(nameOf(groups, figure)) +
                shareCell(figure.total, largest.total, figure.type == AccountTypes::Income);
        html += numberCell(figure.total);
        if (hasSpans)
            html += numberCell(figure.average);
        for (std::size_t span = first; hasSpans && span < groups.period.size(); ++span)
            html += numberCell(figure.amounts[span]);
        html += QStringLiteral("</tr>\n");
    }
    return html + tableEnd + QStringLiteral("</div>\n");
}

QString groupTables(const Groups &groups)
{
    QString html;
    for (std::size_t at = 0; at < groups.figures.size();) {
        const GroupFigure &one = groups.figures[at];
        std::size_t end = at;
        while (end < groups.figures.size() && groups.figures[end].type == one.type &&
               groups.figures[end].total.code() == one.total.code())
            ++end;
        html += groupTable(groups, at, end);
        at = end;
    }
    return html.isEmpty() ? QStringLiteral("<p class=\"note\">%1</p>\n")
                                .arg(htmlText(QObject::tr("Nothing was spent or earned.")))
                          : html;
}

/// More than planned is good for a wage and bad for a bill.
QString budgetCell(const ItemFigure &item, const Money &actual)
{
    const bool isSpent = item.kind == budgeting::BudgetItemTypes::Bill ||
                         item.kind == budgeting::BudgetItemTypes::Nontrack;
    const bool isOver =
        isSpent && actual.code() == item.planned.code() && actual.amount() > item.planned.amount();
    return isOver ? QStringLiteral("<td class=\"n over\">%1&nbsp;▲</td>").arg(amount(actual))
                  : numberCell(actual);
}

QString budgetTable(const Figures &figures)
{
    const bool isMonthly = figures.period.length() == SpanLength::Month;
    const std::size_t first = firstShown(figures.period);
    QStringList titles{isMonthly ? QObject::tr("Planned per month")
                                 : QObject::tr("Planned per span")};
    titles += QObject::tr("Average");
    titles += figures.period.labels().mid(static_cast<qsizetype>(first));
    QString html = QStringLiteral("<div class=\"dense\">") + tableHead(QObject::tr("Item"), titles);
    for (const ItemFigure &item : figures.items) {
        html += QStringLiteral("<tr>") +
                headCell(QStringLiteral("%1 (%2)").arg(item.name,
                                                       budgeting::presentationText(item.kind))) +
                numberCell(item.planned) + numberCell(item.average);
        for (std::size_t span = first; span < figures.period.size(); ++span)
            html += budgetCell(item, item.actual[span]);
        html += QStringLiteral("</tr>\n");
    }
    return html + tableEnd +
           QStringLiteral("</div><p class=\"note\">%1</p>\n")
               .arg(htmlText(
                   isMonthly
                       ? QObject::tr("The plan is today's, restated per month. ▲ marks months "
                                     "with higher spending.")
                       : QObject::tr("The plan is today's, restated per span. ▲ marks spans "
                                     "with higher spending.")));
}

} // namespace

QByteArray toHtml(const Figures *figures, const Groups &groups, const PageTexts &texts,
                  const std::optional<Chart> &ahead)
{
    const Period &period = groups.period;
    QString html =
        QStringLiteral("<!DOCTYPE html>\n<html lang=\"%1\"><head><meta charset=\"utf-8\">\n"
                       "<meta http-equiv=\"Content-Security-Policy\" "
                       "content=\"default-src 'none'; style-src 'unsafe-inline'\">\n"
                       "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
                       "<title>%2</title><style>%3</style></head><body>\n"
                       "<header><h1>%2</h1><p>%4</p>%5</header><main>\n")
            .arg(
                QObject::tr("en", "the language of the reports, as HTML names it"),
                htmlText(texts.title), QString::fromUtf8(style),
                htmlText(
                    QObject::tr("From %1 to %2").arg(dayText(period.from()), dayText(period.to()))),
                texts.filter.isEmpty()
                    ? QString()
                    : QStringLiteral("<p>%1</p>")
                          .arg(htmlText(QObject::tr("Only what fits: %1").arg(texts.filter)))) +
        notesOf(texts.notes) + summary(figures, groups);
    int id = 0;
    const auto draw = [&](const Chart &chart, const QString &first) {
        return figureWithTable(chart, first,
                               texts.draw(chart, QStringLiteral("chart%1").arg(++id)));
    };
    if (ahead)
        html += heading(QObject::tr("What is to come")) +
                QStringLiteral("<p>%1</p>\n").arg(htmlText(ahead->description)) +
                draw(*ahead, QObject::tr("Date"));
    for (const Chart &chart : figures ? chartsOf(*figures) : chartsOf(groups))
        html += draw(chart, spanTitle(period));
    html += heading(texts.grouping) + groupTables(groups);
    if (figures) {
        if (!figures->items.empty())
            html += heading(QObject::tr("Budget against actual")) + budgetTable(*figures);
        html += accountTables(*figures);
    }
    html += QStringLiteral("</main></body></html>\n");
    return html.toUtf8();
}

} // namespace kiv::interchange

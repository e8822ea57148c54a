// SPDX-License-Identifier: GPL-3.0-or-later
// report
#include "commands/commands.h"

#include "output/chart_text.h"
#include "output/json.h"
#include "program/program.h"

#include "workbench/reports/budget_report.h"

#include "foundation/presentation.h"
#include "interchange/figure_charts.h"

namespace kiv::app {

namespace {

using interchange::Figures;
using interchange::FlowFigures;
using interchange::GroupFigure;
using interchange::Groups;
using interchange::Period;
using interchange::SpanLength;
using numira::Money;
using workbench::BudgetReport;

QJsonArray listOf(const std::vector<Money> &amounts)
{
    QJsonArray list;
    for (const Money &amount : amounts)
        list.append(toJson(amount));
    return list;
}

QJsonArray itemsJson(const Figures &figures)
{
    QJsonArray items;
    for (const interchange::ItemFigure &item : figures.items) {
        items.append(QJsonObject{{QStringLiteral("kind"), kindWord(item.kind)},
                                 {QStringLiteral("name"), item.name},
                                 {QStringLiteral("planned"), toJson(item.planned)},
                                 {QStringLiteral("last"), toJson(item.actual.back())},
                                 {QStringLiteral("average"), toJson(item.average)},
                                 {QStringLiteral("actual"), listOf(item.actual)}});
    }
    return items;
}

QJsonArray balancesJson(const Figures &figures)
{
    QJsonArray balances;
    for (const interchange::BalanceFigure &figure : figures.balances) {
        balances.append(QJsonObject{{QStringLiteral("path"), figure.path},
                                    {QStringLiteral("type"), accounting::toQString(figure.type)},
                                    {QStringLiteral("balance"), toJson(figure.balance)},
                                    {QStringLiteral("change"), toJson(figure.change)}});
    }
    return balances;
}

QJsonArray currenciesJson(const Figures &figures)
{
    const auto &[period, balances, items, currencies] = figures;
    QJsonArray list;
    for (const auto &[currency, sums] : currencies) {
        list.append(QJsonObject{{QStringLiteral("currency"), foundation::toQString(currency)},
                                {QStringLiteral("netWorth"), listOf(sums.netWorth)},
                                {QStringLiteral("income"), listOf(sums.income)},
                                {QStringLiteral("expenses"), listOf(sums.expenses)},
                                {QStringLiteral("planned"), toJson(sums.planned)},
                                {QStringLiteral("outgoing"), listOf(sums.outgoing)}});
    }
    return list;
}

QString spanKey(const Period &period)
{
    return period.length() == SpanLength::Month ? QStringLiteral("months")
                                                : QStringLiteral("spans");
}

QString spanTitle(const Period &period)
{
    return period.length() == SpanLength::Month ? QObject::tr("Month") : QObject::tr("Span");
}

QJsonObject periodJson(const Period &period)
{
    return {{QStringLiteral("from"), toJson(period.from())},
            {QStringLiteral("to"), toJson(period.to())},
            {spanKey(period), QJsonArray::fromStringList(period.labels())}};
}

QJsonObject groupJson(const GroupFigure &figure)
{
    return {{QStringLiteral("kind"), accounting::toQString(figure.type)},
            {QStringLiteral("name"), figure.name},
            {QStringLiteral("amounts"), listOf(figure.amounts)},
            {QStringLiteral("total"), toJson(figure.total)},
            {QStringLiteral("average"), toJson(figure.average)}};
}

/// Income and expenses of a span, what is left of them and which part that is.
QJsonObject flowJson(const Money &income, const Money &expenses)
{
    const auto rate = FlowFigures::savingsRate(income, expenses);
    return {{QStringLiteral("income"), toJson(income)},
            {QStringLiteral("expenses"), toJson(expenses)},
            {QStringLiteral("saved"), toJson(income - expenses)},
            {QStringLiteral("savingsRate"), rate ? QJsonValue(rate->rate()) : QJsonValue()}};
}

QJsonObject groupsJson(const Groups &groups)
{
    QJsonArray figures;
    for (const GroupFigure &figure : groups.figures)
        figures.append(groupJson(figure));
    QJsonArray currencies;
    for (const auto &[currency, flow] : groups.currencies) {
        QJsonArray spans;
        for (std::size_t span = 0; span < flow.income.size(); ++span)
            spans.append(flowJson(flow.income[span], flow.expenses[span]));
        currencies.append(
            QJsonObject{{QStringLiteral("currency"), foundation::toQString(currency)},
                        {QStringLiteral("spans"), spans},
                        {QStringLiteral("total"), flowJson(flow.totalIncome, flow.totalExpenses)}});
    }
    QJsonObject json = periodJson(groups.period);
    json[QLatin1String("groups")] = figures;
    json[QLatin1String("currencies")] = currencies;
    return json;
}

QString savingsRateText(const QJsonValue &rate)
{
    return rate.isNull() ? QString()
                         : foundation::presentationText(foundation::Percentage(rate.toDouble(), 1));
}

/// One table for each kind and currency, with as many of the last spans as fit the width.
void addGroupTables(Report &report, const Groups &groups, int width)
{
    constexpr int nameWidth = 24;
    constexpr int amountWidth = 12;
    const std::size_t spans = groups.period.size();
    const auto room = static_cast<std::size_t>(std::max(1, (width - nameWidth) / amountWidth - 2));
    const std::size_t first = spans > room ? spans - room : 0;
    const QStringList labels = groups.period.labels();
    std::vector<Column> columns{{QObject::tr("Name"), QStringLiteral("name")}};
    for (std::size_t span = first; spans > 1 && span < spans; ++span)
        columns.push_back({labels[static_cast<qsizetype>(span)], QString::number(span)});
    columns.push_back({QObject::tr("Total"), QStringLiteral("total")});
    if (spans > 1)
        columns.push_back({QObject::tr("Average"), QStringLiteral("average")});
    QJsonArray rows;
    for (std::size_t at = 0; at < groups.figures.size(); ++at) {
        const GroupFigure &figure = groups.figures[at];
        QJsonObject row = groupJson(figure);
        row[QLatin1String("name")] = nameOf(groups, figure);
        for (std::size_t span = first; span < spans; ++span)
            row[QString::number(span)] = toJson(figure.amounts[span]);
        rows.append(row);
        const bool isLast = at + 1 == groups.figures.size() ||
                            groups.figures[at + 1].type != figure.type ||
                            groups.figures[at + 1].total.code() != figure.total.code();
        if (!isLast)
            continue;
        report
            .heading(QObject::tr("%1, %2", "such as: Expense, USD")
                         .arg(accounting::presentationText(figure.type),
                              foundation::presentationText(figure.total.code())))
            .table(columns, rows, QString());
        rows = {};
    }
    if (groups.figures.empty())
        report.line(QObject::tr("Nothing was spent or earned."));
    else if (first > 0)
        report.line(QObject::tr("The last %1 of %2 spans are shown; --csv and --json have all.")
                        .arg(QString::number(room), QString::number(spans)));
}

void addFlowTables(Report &report, const Groups &groups)
{
    const QStringList labels = groups.period.labels();
    for (const auto &[currency, flow] : groups.currencies) {
        QJsonArray rows;
        const auto add = [&rows](const QString &label, const Money &income, const Money &expenses) {
            QJsonObject row = flowJson(income, expenses);
            row[QLatin1String("span")] = label;
            rows.append(row);
        };
        for (std::size_t span = 0; span < flow.income.size(); ++span)
            add(labels[static_cast<qsizetype>(span)], flow.income[span], flow.expenses[span]);
        if (flow.income.size() > 1)
            add(QObject::tr("Total"), flow.totalIncome, flow.totalExpenses);
        report.heading(foundation::presentationText(currency))
            .table({{spanTitle(groups.period), QStringLiteral("span")},
                    {QObject::tr("Income", "what came in"), QStringLiteral("income")},
                    {QObject::tr("Expenses"), QStringLiteral("expenses")},
                    {QObject::tr("Saved"), QStringLiteral("saved")},
                    {QObject::tr("Savings rate"), QStringLiteral("savingsRate"), savingsRateText}},
                   rows, QString());
    }
}

void addRates(QJsonObject &json, const BudgetReport &books)
{
    if (!books.in())
        return;
    QJsonArray rates;
    for (const workbench::UsedRate &rate : books.rates())
        rates.append(QJsonObject{
            {QStringLiteral("base"), foundation::toQString(rate.base)},
            {QStringLiteral("currency"), foundation::toQString(rate.currency)},
            {QStringLiteral("rate"),
             QString::fromStdString(rate.rate.str(12, std::ios::fmtflags()))},
            {QStringLiteral("day"), toJson(rate.origin.day)},
            {QStringLiteral("source"), QLatin1String(conversion::wordOf(rate.origin.source))}});
    json[QLatin1String("in")] = foundation::toQString(*books.in());
    json[QLatin1String("rates")] = rates;
}

void tellRates(Report &report, const BudgetReport &books)
{
    for (const QString &text : books.rateTexts())
        report.line(text);
}

struct ShowReport {
    std::vector<QString> words;
    std::optional<workbench::SpanChoice> span;
    std::optional<workbench::Grouping> by;
    std::optional<QDate> from;
    std::optional<QDate> to;
    std::optional<numira::Currency> in;
    QString title = workbench::reportTitle();
    bool isHtml = false;
    bool isCsv = false;
    bool hasCharts = false;

    void declare(Arguments &arguments)
    {
        arguments
            .several("WORDS", words,
                     QObject::tr("Count only the transactions that 'kiv find WORDS' finds"))
            .optional(
                "--by", by,
                QObject::tr("Add up by category, payee, tag or account (with WORDS, --csv and "
                            "--html by category)"))
            .optional("--period", span,
                      QObject::tr("Spans: week, two-weeks, payday, month, quarter or year "
                                  "(default: month, with --by a single span)"))
            .optional("--from", from,
                      QObject::tr("First day, or a day in the first span (default: twelve spans)"))
            .optional("--to", to, QObject::tr("Last day (default: today)"))
            .optional("--in", in,
                      QObject::tr("Convert all amounts into this currency, at the present rates"))
            .flag("--html", isHtml, QObject::tr("Print an HTML page with charts"))
            .flag("--csv", isCsv, QObject::tr("Print a table as CSV"))
            .flag("--chart", hasCharts, QObject::tr("Draw charts on the terminal"))
            .optional("--title", title, QObject::tr("Title of the HTML page"))
            .dated(QObject::tr("Last day, like --to"))
            .exclusive("--html", "--chart")
            .exclusive("--html", "--json")
            .exclusive("--chart", "--json")
            .exclusive("--csv", "--html")
            .exclusive("--csv", "--chart")
            .exclusive("--csv", "--json")
            .exclusive("--chart", "--by")
            .exclusive("--chart", "WORDS")
            .exclusive("--to", "--date")
            .only("--title", "--html");
    }

    Report run(Call &call) const
    {
        const bool isGrouped = by || isCsv || !words.empty();
        const BudgetReport books(call.requests, question(call, isGrouped));
        if (isHtml || isCsv)
            call.tellReadable();
        const workbench::Grouping grouping = by.value_or(workbench::Grouping::Category);
        if (isHtml)
            return Report().raw(
                books.page(grouping, title, [&] { return comingChart(books, call.document); }));
        if (isCsv)
            return Report().raw(interchange::toCsv(books.groups(grouping)));
        return isGrouped ? grouped(books, grouping, call) : overview(books, call, hasCharts);
    }

private:
    [[nodiscard]] workbench::ReportQuestion question(const Call &call, bool isGrouped) const
    {
        // The page compares spans; a table of groups is wide enough without.
        const SpanLength otherwise = isGrouped && !isHtml ? SpanLength::Whole : SpanLength::Month;
        return {span ? span->length : otherwise,
                from,
                to.value_or(call.date()),
                QStringList(words.begin(), words.end()).join(u' '),
                call.date(),
                in};
    }

    static Report grouped(const BudgetReport &books, workbench::Grouping grouping, Call &call)
    {
        const Groups groups = books.groups(grouping);
        QJsonObject json = groupsJson(groups);
        json[QLatin1String("by")] = wordOf(grouping);
        if (!books.filter().isEmpty())
            json[QLatin1String("filter")] = books.filter();
        addRates(json, books);
        Report report(json);
        addGroupTables(report, groups, call.program.terminal().width().value_or(80));
        addFlowTables(report, groups);
        tellRates(report, books);
        return report;
    }

    static Report overview(const BudgetReport &books, Call &call, bool hasCharts)
    {
        const Figures figures = books.figures();
        QJsonObject json = data(figures);
        addRates(json, books);
        Report report(json);
        if (hasCharts)
            addCharts(report, figures, call);
        else
            addTables(report, figures);
        tellRates(report, books);
        return report;
    }

    static QJsonObject data(const Figures &figures)
    {
        QJsonObject json = periodJson(figures.period);
        json[QLatin1String("currencies")] = currenciesJson(figures);
        json[QLatin1String("items")] = itemsJson(figures);
        json[QLatin1String("balances")] = balancesJson(figures);
        return json;
    }

    static void addCharts(Report &report, const Figures &figures, Call &call)
    {
        const int columns = call.program.terminal().width().value_or(80);
        for (const interchange::Chart &chart : interchange::chartsOf(figures)) {
            report.heading(chart.title);
            for (const QString &line : chartText(chart, columns, call.document.displayAs()))
                report.line(line);
            report.line(QString());
        }
    }

    static void addTables(Report &report, const Figures &figures)
    {
        const QStringList labels = figures.period.labels();
        for (const auto &[currency, sums] : figures.currencies) {
            QJsonArray rows;
            for (std::size_t span = 0; span < figures.period.size(); ++span) {
                rows.append(
                    QJsonObject{{QStringLiteral("span"), labels[static_cast<qsizetype>(span)]},
                                {QStringLiteral("income"), toJson(sums.income[span])},
                                {QStringLiteral("expenses"), toJson(sums.expenses[span])},
                                {QStringLiteral("planned"), toJson(sums.planned)},
                                {QStringLiteral("outgoing"), toJson(sums.outgoing[span])},
                                {QStringLiteral("netWorth"), toJson(sums.netWorth[span])}});
            }
            report.heading(foundation::presentationText(currency))
                .table({{spanTitle(figures.period), QStringLiteral("span")},
                        {QObject::tr("Income", "what came in"), QStringLiteral("income")},
                        {QObject::tr("Expenses"), QStringLiteral("expenses")},
                        {QObject::tr("Budget"), QStringLiteral("planned")},
                        {QObject::tr("Actual"), QStringLiteral("outgoing")},
                        {QObject::tr("Net worth"), QStringLiteral("netWorth")}},
                       rows, QString());
        }
        report.heading(QObject::tr("Budget against actual"))
            .table({{QObject::tr("Kind"), QStringLiteral("kind"), wordText},
                    {QObject::tr("Item"), QStringLiteral("name")},
                    {figures.period.length() == SpanLength::Month ? QObject::tr("Planned per month")
                                                                  : QObject::tr("Planned per span"),
                     QStringLiteral("planned")},
                    {QObject::tr("In %1").arg(labels.back()), QStringLiteral("last")},
                    {QObject::tr("Average"), QStringLiteral("average")}},
                   itemsJson(figures), QObject::tr("There are no budget items."));
    }
};

} // namespace

void addReportCommands(CommandGroup &root)
{
    root.add("report", QObject::tr("Show income, expenses and net worth, or where the money went"),
             CommandKind::Query, ShowReport{});
}

} // namespace kiv::app

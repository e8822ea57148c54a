// SPDX-License-Identifier: GPL-3.0-or-later
// report
#include "commands/commands.h"

#include "output/chart_text.h"
#include "output/json.h"
#include "program/program.h"

#include "workbench/outlook/outlook_chart.h"

#include "foundation/clock.h"
#include "foundation/presentation.h"
#include "interchange/html_report.h"

namespace kiv::app {

namespace {

using interchange::Figures;
using numira::Money;

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
                                    {QStringLiteral("balance"), toJson(figure.balance)}});
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

struct ShowReport {
    std::optional<QDate> from;
    std::optional<QDate> to;
    QString title = QObject::tr("Household report");
    bool isHtml = false;
    bool hasCharts = false;

    void declare(Arguments &arguments)
    {
        arguments
            .optional(
                "--from", from,
                QObject::tr("Day in the first month (default: eleven months before the last day)"))
            .optional("--to", to, QObject::tr("Last day (default: today)"))
            .flag("--html", isHtml, QObject::tr("Print an HTML page with charts"))
            .flag("--chart", hasCharts, QObject::tr("Draw charts on the terminal"))
            .optional("--title", title, QObject::tr("Title of the HTML page"))
            .dated(QObject::tr("Last day, like --to"))
            .exclusive("--html", "--chart")
            .exclusive("--html", "--json")
            .exclusive("--chart", "--json")
            .exclusive("--to", "--date")
            .only("--title", "--html");
    }

    Report run(Call &call) const
    {
        const QDate last = to.value_or(call.date());
        const interchange::Period period(from.value_or(last.addMonths(-11)), last);
        const AccountIndex index = call.requests.accounts();
        Figures figures =
            interchange::figuresOf(period, index.accounts(), call.requests.transactions(),
                                   BudgetView(call.requests).budget());
        Report report(data(figures));
        if (isHtml) {
            for (interchange::BalanceFigure &figure : figures.balances)
                figure.path = workbench::inPlainWords(figure.path);
            call.tellReadable();
            return Report().raw(interchange::toHtml(figures, title, aheadOf(call, last)));
        }
        if (hasCharts)
            addCharts(report, figures, call);
        else
            addTables(report, figures);
        return report;
    }

private:
    /// What is to come, unless the report ends before today.
    static std::optional<interchange::Chart> aheadOf(Call &call, QDate last)
    {
        workbench::OutlookQuestion question;
        question.first = foundation::today();
        if (last < question.first)
            return std::nullopt;
        const auto ahead = workbench::lookAhead(call.document.present(), question,
                                                call.requests.preferredCurrency());
        if (!ahead.together)
            return std::nullopt;
        return workbench::outlookChart(ahead, *ahead.together, QObject::tr("All together"), {},
                                       call.requests.accounts(), call.document.displayAs());
    }

    static QJsonObject data(const Figures &figures)
    {
        return {{QStringLiteral("from"), toJson(figures.period.from())},
                {QStringLiteral("to"), toJson(figures.period.to())},
                {QStringLiteral("months"), QJsonArray::fromStringList(figures.period.labels())},
                {QStringLiteral("currencies"), currenciesJson(figures)},
                {QStringLiteral("items"), itemsJson(figures)},
                {QStringLiteral("balances"), balancesJson(figures)}};
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
            for (std::size_t month = 0; month < figures.period.months(); ++month) {
                rows.append(
                    QJsonObject{{QStringLiteral("month"), labels[static_cast<qsizetype>(month)]},
                                {QStringLiteral("income"), toJson(sums.income[month])},
                                {QStringLiteral("expenses"), toJson(sums.expenses[month])},
                                {QStringLiteral("planned"), toJson(sums.planned)},
                                {QStringLiteral("outgoing"), toJson(sums.outgoing[month])},
                                {QStringLiteral("netWorth"), toJson(sums.netWorth[month])}});
            }
            report.heading(foundation::presentationText(currency))
                .table({{QObject::tr("Month"), QStringLiteral("month")},
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
                    {QObject::tr("Planned per month"), QStringLiteral("planned")},
                    {QObject::tr("In %1").arg(labels.back()), QStringLiteral("last")}},
                   itemsJson(figures), QObject::tr("There are no budget items."));
    }
};

} // namespace

void addReportCommands(CommandGroup &root)
{
    root.add("report", QObject::tr("Show income, expenses and net worth by month"),
             CommandKind::Query, ShowReport{});
}

} // namespace kiv::app

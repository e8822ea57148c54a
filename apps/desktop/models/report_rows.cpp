// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/report_rows.h"

#include "workbench/entry/description.h"

#include "foundation/presentation.h"

#include <ranges>

namespace kiv::desktop {

using numira::Money;
using workbench::ReportEntry;
using workbench::ReportLine;

namespace {

Cell without()
{
    return {QStringLiteral("–"), QObject::tr("none"), true};
}

Cell cellOf(const std::optional<Money> &amount, navigation::CurrencyDisplayOptions displayAs)
{
    return amount ? amountCell(*amount, displayAs) : without();
}

Cell cellOf(const std::optional<foundation::Percentage> &part)
{
    return part ? Cell{foundation::presentationText(*part), {}, true} : without();
}

} // namespace

QStringList lineColumns(bool isGrouped)
{
    QStringList columns{QObject::tr("Name"), QObject::tr("Kind")};
    if (!isGrouped)
        columns += QObject::tr("Planned");
    columns += {QObject::tr("Total"), QObject::tr("Average")};
    if (isGrouped)
        columns += QObject::tr("Part");
    return columns;
}

std::vector<Row> lineRows(const std::vector<ReportLine> &lines, bool isGrouped,
                          navigation::CurrencyDisplayOptions displayAs)
{
    std::vector<Row> rows;
    for (const ReportLine &line : lines) {
        Row row{line.key, {{line.name}, {line.kind}}};
        if (!isGrouped)
            row.cells.push_back(cellOf(line.planned, displayAs));
        row.cells.push_back(cellOf(line.total, displayAs));
        row.cells.push_back(cellOf(line.average, displayAs));
        if (isGrouped)
            row.cells.push_back(cellOf(line.part));
        row.isBold = line.isSum;
        rows.push_back(std::move(row));
    }
    return rows;
}

QStringList valueColumns(const ReportLine &line)
{
    QStringList columns{line.peers.isEmpty() ? QObject::tr("Span") : QObject::tr("Name")};
    for (const interchange::ChartSeries &series : line.chart.series)
        columns += series.name;
    if (line.flow)
        columns += {QObject::tr("Saved"), QObject::tr("Savings rate")};
    return columns;
}

std::vector<Row> valueRows(const ReportLine &line, navigation::CurrencyDisplayOptions displayAs)
{
    std::vector<Row> rows;
    for (qsizetype label = 0; label < line.chart.labels.size(); ++label) {
        const auto at = static_cast<std::size_t>(label);
        Row row{QString::number(label), {{line.chart.labels[label]}}};
        for (const interchange::ChartSeries &series : line.chart.series)
            row.cells.push_back(amountCell(series.values[at], displayAs));
        if (line.flow) {
            const Money &income = line.flow->income[at];
            const Money &expenses = line.flow->expenses[at];
            row.cells.push_back(amountCell(income - expenses, displayAs));
            row.cells.push_back(cellOf(interchange::FlowFigures::savingsRate(income, expenses)));
        }
        rows.push_back(std::move(row));
    }
    return rows;
}

QStringList entryColumns()
{
    return {QObject::tr("Date"), QObject::tr("What"), QObject::tr("Account"),
            QObject::tr("Other account"), QObject::tr("Amount")};
}

std::vector<Row> entryRows(const std::vector<ReportEntry> &entries,
                           const workbench::AccountIndex &index,
                           navigation::CurrencyDisplayOptions displayAs)
{
    std::vector<Row> rows;
    for (const ReportEntry &entry : entries | std::views::take(entriesMax)) {
        const accounting::Transaction &one = entry.transaction;
        const bool isDebited = one.debiting().number() == entry.account;
        const QString what = workbench::Description::of(one.description()).shown();
        rows.push_back({QString::number(rows.size()),
                        {dayCell(one.occurredOn()),
                         what.isEmpty() ? without() : Cell{what},
                         {index.plainName(entry.account)},
                         {index.plainName((isDebited ? one.crediting() : one.debiting()).number())},
                         amountCell(entry.amount, displayAs)}});
    }
    return rows;
}

} // namespace kiv::desktop

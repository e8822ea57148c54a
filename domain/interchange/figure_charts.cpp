// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/figure_charts.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::interchange {

using foundation::presentationText;
using numira::Currency;
using numira::Money;

namespace {

bool isMonthly(const Period &period)
{
    return period.length() == SpanLength::Month;
}

} // namespace

Chart flowChart(const Period &period, const Currency &currency, const FlowFigures &flow)
{
    return {ChartKind::Bars,
            QObject::tr("Income and expenses, %1").arg(presentationText(currency)),
            isMonthly(period) ? QObject::tr("Money that came in and money spent in each month.")
                              : QObject::tr("Money that came in and money spent in each span."),
            period.labels(),
            {{QObject::tr("Income", "what came in"), flow.income},
             {QObject::tr("Expenses"), flow.expenses}}};
}

std::optional<Chart> netWorthChart(const Period &period, const Currency &currency,
                                   const CurrencyFigures &sums)
{
    if (std::ranges::all_of(sums.netWorth, &Money::isZero))
        return std::nullopt;
    const QString told =
        isMonthly(period)
            ? QObject::tr("All assets less all debts at the end of each month; the last is %1.")
            : QObject::tr("All assets less all debts at the end of each span; the last is %1.");
    return Chart{ChartKind::Line,
                 QObject::tr("Net worth over time, %1").arg(presentationText(currency)),
                 told.arg(presentationText(sums.netWorth.back())),
                 period.labels(),
                 {{QObject::tr("Net worth"), sums.netWorth}}};
}

std::optional<Chart> budgetChart(const Period &period, const Currency &currency,
                                 const CurrencyFigures &sums)
{
    if (!sums.hasItems)
        return std::nullopt;
    return Chart{ChartKind::Bars,
                 QObject::tr("Budget against actual, %1").arg(presentationText(currency)),
                 isMonthly(period)
                     ? QObject::tr("Planned and actual spending per month on bills, debts, goals "
                                   "and non-tracked items.")
                     : QObject::tr("Planned and actual spending per span on bills, debts, goals "
                                   "and non-tracked items."),
                 period.labels(),
                 {{QObject::tr("Planned"), std::vector(sums.outgoing.size(), sums.planned)},
                  {QObject::tr("Actual"), sums.outgoing}}};
}

std::vector<Chart> chartsOf(const Figures &figures)
{
    std::vector<Chart> charts;
    const auto add = [&charts](std::optional<Chart> chart) {
        if (chart)
            charts.push_back(std::move(*chart));
    };
    for (const auto &[currency, sums] : figures.currencies) {
        add(netWorthChart(figures.period, currency, sums));
        if (const FlowFigures flow = flowOf(sums); !flow.isEmpty())
            add(flowChart(figures.period, currency, flow));
        add(budgetChart(figures.period, currency, sums));
    }
    return charts;
}

} // namespace kiv::interchange

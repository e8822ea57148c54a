// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/outlook/outlook_chart.h"

#include "workbench/entry/money_text.h"
#include "workbench/outlook/outlook_text.h"

#include "foundation/presentation.h"

namespace kiv::workbench {

using foundation::presentationText;

interchange::Chart outlookChart(const LookingAhead &ahead, const outlook::Curve &curve,
                                const QString &title, const std::optional<numira::Money> &floor,
                                const AccountIndex &index,
                                navigation::CurrencyDisplayOptions displayAs)
{
    interchange::Chart chart{interchange::ChartKind::Steps,
                             title,
                             lowestText(ahead, curve, index, displayAs),
                             {},
                             {{title, curve.ends}}};
    for (std::size_t place = 0; place < curve.ends.size(); ++place)
        chart.labels += presentationText(ahead.outlook.day(place));
    if (floor && floor->code() == curve.start.code())
        chart.level = {*floor, QObject::tr("At least %1").arg(amountText(*floor, displayAs))};
    const std::size_t lowest = curve.lowest();
    chart.mark = {0, lowest,
                  QObject::tr("%1: %2").arg(chart.labels[static_cast<qsizetype>(lowest)],
                                            amountText(curve.ends[lowest], displayAs))};
    return chart;
}

interchange::Chart outlookBars(const interchange::Chart &chart, qsizetype barsMax)
{
    interchange::Chart bars{
        interchange::ChartKind::Bars, chart.title, chart.description, {}, chart.series};
    const std::vector<numira::Money> &days = chart.series.front().values;
    std::vector<numira::Money> &least = bars.series.front().values;
    least.clear();
    const qsizetype count = chart.labels.size();
    const qsizetype each = (count + barsMax - 1) / barsMax;
    for (qsizetype day = 0; day < count; day += each) {
        bars.labels += chart.labels[day];
        least.push_back(
            *std::min_element(days.begin() + day, days.begin() + std::min(day + each, count)));
    }
    return bars;
}

} // namespace kiv::workbench

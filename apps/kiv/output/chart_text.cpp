// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/chart_text.h"

#include "output/json.h"
#include "output/report.h"

#include <algorithm>
#include <cmath>

namespace kiv::app {

using interchange::Chart;
using interchange::ChartSeries;

namespace {

/// Bars have different fillings, so that they differ without colours.
constexpr char16_t fillings[]{u'█', u'▒', u'░'};

/// Places values in a row of `columns` columns.
class Scale {
public:
    Scale(const Chart &chart, int columns) : m_columns(columns)
    {
        for (const ChartSeries &series : chart.series) {
            for (const numira::Money &value : series.values) {
                m_low = std::min(m_low, value.amount().toDouble());
                m_high = std::max(m_high, value.amount().toDouble());
            }
        }
    }

    [[nodiscard]] QString bar(double value, char16_t filling) const
    {
        const int zero = column(0);
        const int at = column(value);
        QString row(m_columns, u' ');
        for (int cell = std::min(zero, at); cell < std::max(zero, at); ++cell)
            row[cell] = filling;
        // Every value but zero is visible, however small.
        if (at == zero && value != 0)
            row[value > 0 || zero == 0 ? std::min(zero, m_columns - 1) : zero - 1] = u'▏';
        return row;
    }

private:
    [[nodiscard]] int column(double value) const
    {
        const double span = m_high - m_low;
        return span > 0 ? static_cast<int>(std::lround((value - m_low) / span * m_columns)) : 0;
    }

    int m_columns;
    double m_low = 0;
    double m_high = 0;
};

} // namespace

QStringList chartText(const Chart &chart, int columns, navigation::CurrencyDisplayOptions displayAs)
{
    std::vector<QStringList> amounts;
    int amountWidth = 0;
    int labelWidth = 0;
    for (const ChartSeries &series : chart.series) {
        QStringList &texts = amounts.emplace_back();
        for (const numira::Money &value : series.values) {
            texts += amountText(toJson(value), displayAs);
            amountWidth = std::max(amountWidth, displayWidth(texts.back()));
        }
    }
    for (const QString &label : chart.labels)
        labelWidth = std::max(labelWidth, displayWidth(label));

    const Scale scale(chart, std::max(10, columns - labelWidth - amountWidth - 3));
    QStringList lines;
    if (chart.series.size() > 1) {
        QStringList legend;
        for (std::size_t row = 0; row < chart.series.size(); ++row)
            legend += QString(2, QChar(fillings[row])) + u' ' + chart.series[row].name;
        lines += QString(labelWidth + 1, u' ') + legend.join(QStringLiteral("   "));
    }
    for (qsizetype at = 0; at < chart.labels.size(); ++at) {
        for (std::size_t row = 0; row < chart.series.size(); ++row) {
            const QString label = row == 0 ? chart.labels[at] : QString();
            const double value =
                chart.series[row].values[static_cast<std::size_t>(at)].amount().toDouble();
            lines += label + QString(labelWidth - displayWidth(label) + 1, u' ') +
                     scale.bar(value, fillings[row]) +
                     QString(amountWidth - displayWidth(amounts[row][at]) + 1, u' ') +
                     amounts[row][at];
        }
    }
    return lines;
}

} // namespace kiv::app

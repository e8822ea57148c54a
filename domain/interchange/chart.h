// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"

#include "numira/money.h"

#include <QtCore/QStringList>

#include <vector>

namespace kiv::interchange {

/// One row of values, one for each label of its chart.
struct ChartSeries {
    QString name;                      ///< for the legend
    std::vector<numira::Money> values; ///< all in one currency
};

/// How values are drawn.
enum class ChartKind {
    Bars, ///< side by side over each label
    Line, ///< from label to label
};

/// Amounts of one currency over labels such as months.
struct Chart {
    ChartKind kind = ChartKind::Bars; ///< how it is drawn
    QString title;                    ///< a few words
    /// What the chart shows, in a sentence for those who cannot see it.
    QString description;
    QStringList labels;              ///< such as months
    std::vector<ChartSeries> series; ///< up to three
};

/// Round numbers that enclose all values and include zero, in rising order; at least two.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::vector<numira::Decimal> axisTicks(const Chart &chart);

/// The chart as an SVG element for an HTML page, with a title and a description that screen
/// readers tell. `id` must be unique on the page. All names in it are escaped.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString toSvg(const Chart &chart, const QString &id);

} // namespace kiv::interchange

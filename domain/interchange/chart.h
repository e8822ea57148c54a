// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"

#include "numira/money.h"

#include <QtCore/QStringList>

#include <optional>
#include <utility>
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
    Steps ///< from edge to edge of its label: a value holds until the next one
};

/// A level that the values are compared with.
struct ChartLevel {
    numira::Money value; ///< in the currency of the series
    QString text;        ///< what it is, in a few words
};

/// A value that stands out.
struct ChartMark {
    std::size_t series = 0; ///< its place in the chart
    std::size_t label = 0;  ///< its place in the series
    QString text;           ///< stands beside it
};

/// Amounts of one currency over labels such as months.
struct Chart {
    ChartKind kind = ChartKind::Bars; ///< how it is drawn
    QString title;                    ///< a few words
    /// What the chart shows, in a sentence for those who cannot see it.
    QString description;
    QStringList labels;                   ///< such as months
    std::vector<ChartSeries> series;      ///< up to three
    std::optional<ChartLevel> level = {}; ///< nothing if there is none
    std::optional<ChartMark> mark = {};   ///< nothing if no value stands out
};

/// Where the values of a chart lie in a rectangle whose first row is the top.
class KIV_INTERCHANGE_EXPORT ChartPlane {
public:
    /// The rectangle.
    struct Box {
        double left = 0;   ///< its first column
        double top = 0;    ///< its first row
        double width = 0;  ///< without the texts at the side
        double height = 0; ///< without the texts below
    };

    /// The chart has a label and a series, and is kept by the caller. From right to left if
    /// it is mirrored.
    ChartPlane(const Chart &chart, const Box &box, bool isMirrored = false);

    /// The rectangle that was given.
    [[nodiscard]] const Box &box() const noexcept { return m_box; }
    /// The round numbers at the side; see axisTicks().
    [[nodiscard]] const std::vector<numira::Decimal> &ticks() const noexcept { return m_ticks; }
    /// The row of a value.
    [[nodiscard]] double y(const numira::Decimal &value) const;
    /// How wide one label is.
    [[nodiscard]] double slot() const;
    /// The middle of a label, or between labels: 0.5 is the edge behind the first one.
    [[nodiscard]] double x(double label) const;
    /// The label at this column, or the nearest one.
    [[nodiscard]] std::size_t labelAt(double x) const;
    /// How wide a bar is, and where it begins beside the middle of its label.
    [[nodiscard]] std::pair<double, double> bar(std::size_t series, double widest) const;
    /// The points of a line, from corner to corner if the chart goes in steps.
    [[nodiscard]] std::vector<std::pair<double, double>> line(const ChartSeries &series) const;

private:
    const Chart &m_chart;
    Box m_box;
    bool m_isMirrored;
    std::vector<numira::Decimal> m_ticks;
    double m_low;
    double m_span;
};

/// Round numbers that enclose all values and the level and include zero, in rising order; at
/// least two.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::vector<numira::Decimal> axisTicks(const Chart &chart);

/// The chart as an SVG element for an HTML page, with a title and a description that screen
/// readers tell. `id` must be unique on the page. All names in it are escaped.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString toSvg(const Chart &chart, const QString &id);

} // namespace kiv::interchange

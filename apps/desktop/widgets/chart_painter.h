// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/chart.h"

#include <QtGui/QPainter>
#include <QtGui/QPalette>

#include <functional>

namespace kiv::desktop {

/// Paints the parts of a chart, one over the other.
class ChartPainter {
public:
    /// All that is handed in outlives the painter. The texts that stand in the drawing stay
    /// within `area` where it has room, in several lines if need be, and give way to those before
    /// them.
    ChartPainter(QPainter &painter, const interchange::Chart &chart,
                 const interchange::ChartPlane &plane, const QPalette &palette, QRectF area);

    /// The lines of the round numbers, and as many of their texts as have room.
    void grid(const std::function<QString(const numira::Decimal &)> &textOf);
    /// As many labels as can stand side by side.
    void labels();
    /// The series, each with a line or a filling of its own.
    void values();
    /// The names of the series, if there are several.
    void legend();
    void levelAndMark();
    /// What is looked at: a line over the label, and a text.
    void point(std::size_t label, const QString &text);

private:
    [[nodiscard]] QPointF pointOf(std::size_t series, std::size_t label) const;
    [[nodiscard]] QPen penOf(std::size_t series) const;
    void bars(std::size_t series);
    /// A text with a background of its own, whose upper edge is in this row if the area and the
    /// texts before it allow it.
    void textAt(QPointF top, const QString &text);

    QPainter &m_painter;
    const interchange::Chart &m_chart;
    const interchange::ChartPlane &m_plane;
    QPalette m_palette;
    QRectF m_area;
    double m_line;         ///< the height of a line of text
    QList<QRectF> m_texts; ///< where textAt() has put one
};

} // namespace kiv::desktop

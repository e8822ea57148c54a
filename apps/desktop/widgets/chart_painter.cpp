// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/chart_painter.h"

#include "widgets/colours.h"

#include <array>
#include <cmath>

namespace kiv::desktop {

using interchange::ChartKind;

namespace {

/// How a series looks; each differs from the others without its colour, too.
struct Look {
    Colour colour;
    Qt::PenStyle line;
    Qt::BrushStyle filling;
};
constexpr std::array<Look, 3> looks{{{Colour::Heading, Qt::SolidLine, Qt::SolidPattern},
                                     {Colour::Warning, Qt::DashLine, Qt::Dense4Pattern},
                                     {Colour::Good, Qt::DashDotLine, Qt::BDiagPattern}}};
constexpr int shade = 28;  ///< how dense the area below a line is, of 255
constexpr int fine = 90;   ///< the same of the lines of round numbers
constexpr double dot = .3; ///< the radius of a dot, in lines of text

const Look &lookOf(std::size_t series)
{
    return looks.at(series % looks.size());
}

} // namespace

ChartPainter::ChartPainter(QPainter &painter, const interchange::Chart &chart,
                           const interchange::ChartPlane &plane, const QPalette &palette,
                           QRectF area)
    : m_painter(painter),
      m_chart(chart),
      m_plane(plane),
      m_palette(palette),
      m_area(area),
      m_line(painter.fontMetrics().height())
{
}

QPointF ChartPainter::pointOf(std::size_t series, std::size_t label) const
{
    return {m_plane.x(static_cast<double>(label)),
            m_plane.y(m_chart.series[series].values[label].amount())};
}

QPen ChartPainter::penOf(std::size_t series) const
{
    QPen pen(colour(lookOf(series).colour, m_palette), std::max(2.0, m_line / 8),
             lookOf(series).line);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen;
}

void ChartPainter::grid(const std::function<QString(const numira::Decimal &)> &textOf)
{
    const auto &ticks = m_plane.ticks();
    const double step = std::abs(m_plane.y(ticks[0]) - m_plane.y(ticks[1]));
    const auto each = static_cast<std::size_t>(std::ceil(1.2 * m_line / std::max(step, 1.0)));
    const bool isFromRight = m_painter.layoutDirection() == Qt::RightToLeft;
    const auto zero = std::ranges::find(ticks, 0, &numira::Decimal::sign) - ticks.begin();
    for (std::size_t at = 0; at < ticks.size(); ++at) {
        const double y = m_plane.y(ticks[at]);
        QColor ink = colour(Colour::Faint, m_palette);
        if (ticks[at].sign() != 0)
            ink.setAlpha(fine);
        m_painter.setPen(QPen(ink, ticks[at].sign() == 0 ? 1.5 : 1));
        m_painter.drawLine(QPointF(m_area.left(), y), QPointF(m_area.right(), y));
        // Zero always has its text.
        if (std::abs(static_cast<std::ptrdiff_t>(at) - zero) % static_cast<std::ptrdiff_t>(each))
            continue;
        m_painter.setPen(m_palette.color(QPalette::Text));
        const QString text = textOf(ticks[at]);
        const double width = m_painter.fontMetrics().horizontalAdvance(text);
        const double gap = m_line / 2;
        const double x = isFromRight ? m_area.right() + gap : m_area.left() - gap - width;
        m_painter.drawText(QRectF(x, y - m_line / 2, width + 1, m_line), Qt::AlignCenter, text);
    }
}

void ChartPainter::labels()
{
    double widest = 0;
    for (const QString &label : m_chart.labels)
        widest = std::max<double>(widest, m_painter.fontMetrics().horizontalAdvance(label));
    const auto each = std::max<qsizetype>(
        1, static_cast<qsizetype>(std::ceil((widest + m_line) / m_plane.slot())));
    m_painter.setPen(m_palette.color(QPalette::Text));
    const QRectF all = m_painter.viewport();
    for (qsizetype at = 0; at < m_chart.labels.size(); at += each) {
        QRectF box(0, m_area.bottom() + m_line / 2, widest + 1, m_line);
        box.moveLeft(m_plane.x(static_cast<double>(at)) - box.width() / 2);
        if (all.contains(box))
            m_painter.drawText(box, Qt::AlignCenter, m_chart.labels[at]);
    }
}

void ChartPainter::values()
{
    for (std::size_t row = 0; row < m_chart.series.size(); ++row) {
        if (m_chart.kind == ChartKind::Bars) {
            bars(row);
            continue;
        }
        QPolygonF line;
        for (const auto &[x, y] : m_plane.line(m_chart.series[row]))
            line += QPointF(x, y);
        if (row == 0) {
            const double zero = m_plane.y(numira::Decimal());
            QColor area = colour(lookOf(row).colour, m_palette);
            area.setAlpha(shade);
            m_painter.setPen(Qt::NoPen);
            m_painter.setBrush(area);
            m_painter.drawPolygon(QPolygonF(line) << QPointF(line.back().x(), zero)
                                                  << QPointF(line.front().x(), zero));
        }
        m_painter.setBrush(Qt::NoBrush);
        m_painter.setPen(penOf(row));
        m_painter.drawPolyline(line);
    }
}

void ChartPainter::bars(std::size_t series)
{
    const auto [width, shift] = m_plane.bar(series, 3 * m_line);
    const QColor ink = colour(lookOf(series).colour, m_palette);
    m_painter.setPen(ink);
    m_painter.setBrush(QBrush(ink, lookOf(series).filling));
    const double zero = m_plane.y(numira::Decimal());
    for (std::size_t at = 0; at < m_chart.series[series].values.size(); ++at) {
        const QPointF top = pointOf(series, at) + QPointF(shift, 0);
        m_painter.drawRect(QRectF(top, QPointF(top.x() + width - 1, zero)).normalized());
    }
}

void ChartPainter::legend()
{
    if (m_chart.series.size() < 2)
        return;
    const bool isFromRight = m_painter.layoutDirection() == Qt::RightToLeft;
    double way = 0;
    for (std::size_t row = 0; row < m_chart.series.size(); ++row) {
        const QString &name = m_chart.series[row].name;
        const double width = m_painter.fontMetrics().horizontalAdvance(name) + 1;
        const auto place = [&](double from, double size) {
            const double x =
                isFromRight ? m_area.right() - way - from - size : m_area.left() + way + from;
            return QRectF(x, m_area.top() - 1.75 * m_line, size, m_line);
        };
        const QRectF sign = place(0, 2 * m_line);
        const QColor ink = colour(lookOf(row).colour, m_palette);
        if (m_chart.kind == ChartKind::Bars) {
            m_painter.setPen(ink);
            m_painter.setBrush(QBrush(ink, lookOf(row).filling));
            m_painter.drawRect(sign.adjusted(0, 2, 0, -2));
        } else {
            m_painter.setPen(penOf(row));
            m_painter.drawLine(QPointF(sign.left(), sign.center().y()),
                               QPointF(sign.right(), sign.center().y()));
        }
        m_painter.setPen(m_palette.color(QPalette::Text));
        m_painter.drawText(place(2.5 * m_line, width), Qt::AlignCenter, name);
        way += 4 * m_line + width;
    }
}

void ChartPainter::levelAndMark()
{
    const QColor ink = colour(Colour::Wrong, m_palette);
    if (m_chart.level) {
        const double y = m_plane.y(m_chart.level->value.amount());
        m_painter.setPen(QPen(ink, std::max(1.5, m_line / 12), Qt::DotLine));
        m_painter.drawLine(QPointF(m_area.left(), y), QPointF(m_area.right(), y));
        textAt({m_plane.x(0), y + m_line / 4}, m_chart.level->text);
    }
    if (m_chart.mark) {
        const QPointF at = pointOf(m_chart.mark->series, m_chart.mark->label);
        m_painter.setPen(QPen(ink, std::max(2.0, m_line / 8)));
        m_painter.setBrush(m_palette.base());
        m_painter.drawEllipse(at, dot * m_line, dot * m_line);
        // Below the line, most often.
        textAt(at + QPointF(0, m_line / 2), m_chart.mark->text);
    }
}

void ChartPainter::point(std::size_t label, const QString &text)
{
    m_painter.setPen(QPen(m_palette.color(QPalette::Text), 1));
    const double x = m_plane.x(static_cast<double>(label));
    m_painter.drawLine(QPointF(x, m_area.top()), QPointF(x, m_area.bottom()));
    m_painter.setBrush(m_palette.color(QPalette::Text));
    for (std::size_t row = 0; row < m_chart.series.size(); ++row)
        m_painter.drawEllipse(pointOf(row, label), dot * m_line, dot * m_line);
    textAt({x, m_area.top()}, text);
}

void ChartPainter::textAt(QPointF top, const QString &text)
{
    constexpr int flags = Qt::AlignCenter | Qt::TextWordWrap;
    const QSizeF most(m_area.width() - m_line, m_area.height());
    const QSizeF size =
        m_painter.boundingRect(QRectF({}, most), flags, text).size() + QSizeF(m_line, 0.3 * m_line);
    QRectF box(QPointF(top.x() - size.width() / 2, top.y()), size);
    if (box.bottom() > m_area.bottom())
        box.moveBottom(m_area.bottom() - m_line);
    box.moveLeft(std::clamp(box.left(), m_area.left(),
                            std::max(m_area.left(), m_area.right() - box.width())));
    for (const QRectF &other : m_texts) {
        if (!other.intersects(box))
            continue;
        box.moveBottom(other.top());
        if (box.top() < m_area.top()) // there is no room above it
            box.moveTop(other.bottom());
    }
    m_texts += box;
    m_painter.setPen(colour(Colour::Faint, m_palette));
    m_painter.setBrush(m_palette.base());
    m_painter.drawRoundedRect(box, m_line / 4, m_line / 4);
    m_painter.setPen(m_palette.color(QPalette::Text));
    m_painter.drawText(box, flags, text);
}

} // namespace kiv::desktop

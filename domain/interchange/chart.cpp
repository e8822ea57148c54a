// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/chart.h"

#include "interchange/internal/html_text.h"

#include "foundation/presentation.h"

#include <cmath>

namespace kiv::interchange {

namespace {

using internal::htmlText;

constexpr double width = 760;
constexpr double height = 300;
constexpr double left = 96;
constexpr double right = 12;
constexpr double top = 34;
constexpr double bottom = 30;

/// Where values and labels lie in the drawing.
class Plane {
public:
    explicit Plane(const Chart &chart)
        : m_chart(chart),
          m_ticks(axisTicks(chart)),
          m_low(m_ticks.front().toDouble()),
          m_span(m_ticks.back().toDouble() - m_low)
    {
    }

    [[nodiscard]] const std::vector<numira::Decimal> &ticks() const { return m_ticks; }
    [[nodiscard]] double y(double value) const
    {
        return height - bottom - (value - m_low) / m_span * (height - top - bottom);
    }
    /// How much room one label has.
    [[nodiscard]] double slot() const
    {
        return (width - left - right) / static_cast<double>(m_chart.labels.size());
    }
    /// The middle of a label.
    [[nodiscard]] double x(std::size_t label) const
    {
        return left + slot() * (static_cast<double>(label) + 0.5);
    }

private:
    const Chart &m_chart;
    std::vector<numira::Decimal> m_ticks;
    double m_low;
    double m_span;
};

QString coordinate(double value)
{
    return QString::number(value, 'f', 1);
}

QString axes(const Chart &chart, const Plane &plane)
{
    QString svg;
    const numira::Currency currency = chart.series.front().values.front().code();
    for (const numira::Decimal &tick : plane.ticks()) {
        const QString y = coordinate(plane.y(tick.toDouble()));
        svg += QStringLiteral("<line class=\"%1\" x1=\"%2\" y1=\"%3\" x2=\"%4\" y2=\"%3\"/>"
                              "<text class=\"tick\" x=\"%5\" y=\"%6\">%7</text>\n")
                   .arg(tick.sign() == 0 ? QStringLiteral("zero") : QStringLiteral("grid"),
                        coordinate(left), y, coordinate(width - right), coordinate(left - 8),
                        coordinate(plane.y(tick.toDouble()) + 4),
                        htmlText(foundation::presentationText(numira::Money(currency, tick))));
    }
    // As many labels as can stand side by side.
    const auto each = static_cast<std::size_t>(std::ceil(56 / plane.slot()));
    for (std::size_t at = 0; at < static_cast<std::size_t>(chart.labels.size()); at += each)
        svg += QStringLiteral("<text class=\"label\" x=\"%1\" y=\"%2\">%3</text>\n")
                   .arg(coordinate(plane.x(at)), coordinate(height - 10),
                        htmlText(chart.labels[static_cast<qsizetype>(at)]));
    return svg;
}

QString legend(const Chart &chart)
{
    QString svg;
    double x = left;
    for (std::size_t at = 0; at < chart.series.size(); ++at) {
        const QString &name = chart.series[at].name;
        svg += QStringLiteral("<rect class=\"series%1\" x=\"%2\" y=\"8\" width=\"12\" "
                              "height=\"12\"/><text class=\"name\" x=\"%3\" y=\"18\">%4</text>\n")
                   .arg(QString::number(at), coordinate(x), coordinate(x + 18), htmlText(name));
        x += 40 + 8 * static_cast<double>(name.size());
    }
    return svg;
}

QString valueTitle(const Chart &chart, const ChartSeries &series, std::size_t at)
{
    return QStringLiteral("<title>%1, %2: %3</title>")
        .arg(htmlText(chart.labels[static_cast<qsizetype>(at)]), htmlText(series.name),
             htmlText(foundation::presentationText(series.values[at])));
}

QString bars(const Chart &chart, const Plane &plane)
{
    QString svg;
    const double barWidth =
        std::min(36.0, plane.slot() * 0.76 / static_cast<double>(chart.series.size()));
    for (std::size_t row = 0; row < chart.series.size(); ++row) {
        const ChartSeries &series = chart.series[row];
        const double shift =
            (static_cast<double>(row) - static_cast<double>(chart.series.size()) / 2) * barWidth;
        for (std::size_t at = 0; at < series.values.size(); ++at) {
            const double value = plane.y(series.values[at].amount().toDouble());
            const double zero = plane.y(0);
            svg += QStringLiteral("<rect class=\"series%1\" x=\"%2\" y=\"%3\" width=\"%4\" "
                                  "height=\"%5\">%6</rect>\n")
                       .arg(QString::number(row), coordinate(plane.x(at) + shift),
                            coordinate(std::min(value, zero)), coordinate(barWidth - 1),
                            coordinate(std::abs(value - zero)), valueTitle(chart, series, at));
        }
    }
    return svg;
}

QString line(const Chart &chart, const Plane &plane)
{
    QString svg;
    for (std::size_t row = 0; row < chart.series.size(); ++row) {
        const ChartSeries &series = chart.series[row];
        QStringList points;
        QString dots;
        for (std::size_t at = 0; at < series.values.size(); ++at) {
            const QString x = coordinate(plane.x(at));
            const QString y = coordinate(plane.y(series.values[at].amount().toDouble()));
            points += x + u',' + y;
            dots += QStringLiteral("<circle class=\"series%1\" cx=\"%2\" cy=\"%3\" r=\"%4\">%5"
                                   "</circle>\n")
                        .arg(QString::number(row), x, y, plane.slot() < 12 ? u"1.5" : u"3.5",
                             valueTitle(chart, series, at));
        }
        const double zero = plane.y(0);
        svg += QStringLiteral("<polygon class=\"area%1\" points=\"%2,%4 %3 %5,%4\"/>\n"
                              "<polyline class=\"line%1\" points=\"%3\"/>\n")
                   .arg(QString::number(row), coordinate(plane.x(0)), points.join(u' '),
                        coordinate(zero), coordinate(plane.x(series.values.size() - 1))) +
               dots;
    }
    return svg;
}

} // namespace

std::vector<numira::Decimal> axisTicks(const Chart &chart)
{
    double low = 0;
    double high = 0;
    for (const ChartSeries &series : chart.series) {
        for (const numira::Money &value : series.values) {
            low = std::min(low, value.amount().toDouble());
            high = std::max(high, value.amount().toDouble());
        }
    }
    // A step of 1, 2 or 5 times a power of ten, about five of them.
    const double rough = std::max(high - low, 0.05) / 5;
    const double power = std::pow(10, std::floor(std::log10(rough)));
    double step = power;
    for (const double factor : {2.0, 5.0, 10.0}) {
        if (step < rough)
            step = factor * power;
    }
    std::vector<numira::Decimal> ticks;
    const auto first = static_cast<std::int64_t>(std::floor(low / step));
    const auto last = std::max(static_cast<std::int64_t>(std::ceil(high / step)), first + 1);
    for (std::int64_t at = first; at <= last; ++at)
        ticks.push_back(numira::Decimal::fromDouble(step).scaled(at, 1));
    return ticks;
}

QString toSvg(const Chart &chart, const QString &id)
{
    if (chart.labels.isEmpty() || chart.series.empty())
        return {};
    const Plane plane(chart);
    return QStringLiteral("<svg viewBox=\"0 0 %1 %2\" role=\"img\" aria-labelledby=\"%3-t %3-d\">\n"
                          "<title id=\"%3-t\">%4</title>\n<desc id=\"%3-d\">%5</desc>\n")
               .arg(QString::number(width), QString::number(height), id, htmlText(chart.title),
                    htmlText(chart.description)) +
           axes(chart, plane) +
           (chart.kind == ChartKind::Bars ? bars(chart, plane) : line(chart, plane)) +
           legend(chart) + QStringLiteral("</svg>\n");
}

} // namespace kiv::interchange

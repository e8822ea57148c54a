// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/chart.h"

#include "interchange/internal/html_text.h"

#include "foundation/presentation.h"

#include <algorithm>
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

QString coordinate(double value)
{
    return QString::number(value, 'f', 1);
}

QString axes(const Chart &chart, const ChartPlane &plane)
{
    QString svg;
    const numira::Currency currency = chart.series.front().values.front().code();
    for (const numira::Decimal &tick : plane.ticks()) {
        const QString y = coordinate(plane.y(tick));
        svg += QStringLiteral("<line class=\"%1\" x1=\"%2\" y1=\"%3\" x2=\"%4\" y2=\"%3\"/>"
                              "<text class=\"tick\" x=\"%5\" y=\"%6\">%7</text>\n")
                   .arg(tick.sign() == 0 ? QStringLiteral("zero") : QStringLiteral("grid"),
                        coordinate(left), y, coordinate(width - right), coordinate(left - 8),
                        coordinate(plane.y(tick) + 4),
                        htmlText(foundation::presentationText(numira::Money(currency, tick))));
    }
    // As many labels as can stand side by side, also in the large letters of a narrow page.
    const auto longest = std::ranges::max(chart.labels, {}, &QString::size).size();
    const auto each =
        static_cast<std::size_t>(std::ceil(11 * static_cast<double>(longest) / plane.slot()));
    for (std::size_t at = 0; at < static_cast<std::size_t>(chart.labels.size()); at += each)
        svg += QStringLiteral("<text class=\"label\" x=\"%1\" y=\"%2\">%3</text>\n")
                   .arg(coordinate(plane.x(static_cast<double>(at))), coordinate(height - 10),
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

QString bars(const Chart &chart, const ChartPlane &plane)
{
    QString svg;
    const double zero = plane.y(numira::Decimal());
    for (std::size_t row = 0; row < chart.series.size(); ++row) {
        const ChartSeries &series = chart.series[row];
        const auto [barWidth, shift] = plane.bar(row, 36);
        for (std::size_t at = 0; at < series.values.size(); ++at) {
            const double value = plane.y(series.values[at].amount());
            svg +=
                QStringLiteral("<rect class=\"series%1\" x=\"%2\" y=\"%3\" width=\"%4\" "
                               "height=\"%5\">%6</rect>\n")
                    .arg(QString::number(row), coordinate(plane.x(static_cast<double>(at)) + shift),
                         coordinate(std::min(value, zero)), coordinate(barWidth - 1),
                         coordinate(std::abs(value - zero)), valueTitle(chart, series, at));
        }
    }
    return svg;
}

QString line(const Chart &chart, const ChartPlane &plane)
{
    QString svg;
    for (std::size_t row = 0; row < chart.series.size(); ++row) {
        const ChartSeries &series = chart.series[row];
        QStringList points;
        for (const auto &[x, y] : plane.line(series))
            points += coordinate(x) + u',' + coordinate(y);
        QString dots;
        for (std::size_t at = 0; at < series.values.size(); ++at) {
            const QString x = coordinate(plane.x(static_cast<double>(at)));
            const QString y = coordinate(plane.y(series.values[at].amount()));
            dots += QStringLiteral("<circle class=\"series%1\" cx=\"%2\" cy=\"%3\" r=\"%4\">%5"
                                   "</circle>\n")
                        .arg(QString::number(row), x, y, plane.slot() < 12 ? u"1.5" : u"3.5",
                             valueTitle(chart, series, at));
        }
        svg += QStringLiteral("<polygon class=\"area%1\" points=\"%2,%4 %3 %5,%4\"/>\n"
                              "<polyline class=\"line%1\" points=\"%3\"/>\n")
                   .arg(QString::number(row), points.front().section(u',', 0, 0), points.join(u' '),
                        coordinate(plane.y(numira::Decimal())), points.back().section(u',', 0, 0)) +
               dots;
    }
    return svg;
}

QString levelAndMark(const Chart &chart, const ChartPlane &plane)
{
    QString svg;
    if (chart.level) {
        const double y = plane.y(chart.level->value.amount());
        svg += QStringLiteral("<line class=\"level\" x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%2\"/>"
                              "<text class=\"name\" x=\"%4\" y=\"%5\">%6</text>\n")
                   .arg(coordinate(left), coordinate(y), coordinate(width - right),
                        coordinate(left + 4), coordinate(y - 4), htmlText(chart.level->text));
    }
    if (chart.mark) {
        const double x = plane.x(static_cast<double>(chart.mark->label));
        const double y =
            plane.y(chart.series[chart.mark->series].values[chart.mark->label].amount());
        // At its side with more room.
        const bool isLate = x > width / 2;
        svg += QStringLiteral("<circle class=\"mark\" cx=\"%1\" cy=\"%2\" r=\"5\"/><text "
                              "class=\"name\" x=\"%3\" y=\"%4\" text-anchor=\"%5\">%6</text>\n")
                   .arg(coordinate(x), coordinate(y), coordinate(x + (isLate ? -9 : 9)),
                        coordinate(y + 4), isLate ? QStringLiteral("end") : QStringLiteral("start"),
                        htmlText(chart.mark->text));
    }
    return svg;
}

} // namespace

ChartPlane::ChartPlane(const Chart &chart, const Box &box, bool isMirrored)
    : m_chart(chart),
      m_box(box),
      m_isMirrored(isMirrored),
      m_ticks(axisTicks(chart)),
      m_low(m_ticks.front().toDouble()),
      m_span(m_ticks.back().toDouble() - m_low)
{
}

double ChartPlane::y(const numira::Decimal &value) const
{
    return m_box.top + m_box.height - (value.toDouble() - m_low) / m_span * m_box.height;
}

double ChartPlane::slot() const
{
    return m_box.width / static_cast<double>(m_chart.labels.size());
}

double ChartPlane::x(double label) const
{
    const double way = slot() * (label + 0.5);
    return m_box.left + (m_isMirrored ? m_box.width - way : way);
}

std::size_t ChartPlane::labelAt(double x) const
{
    const double way = m_isMirrored ? m_box.left + m_box.width - x : x - m_box.left;
    const auto last = static_cast<double>(m_chart.labels.size() - 1);
    return static_cast<std::size_t>(std::clamp(std::floor(way / slot()), 0.0, last));
}

std::pair<double, double> ChartPlane::bar(std::size_t series, double widest) const
{
    const auto count = static_cast<double>(m_chart.series.size());
    const double width = std::min(widest, slot() * 0.76 / count);
    const double place =
        m_isMirrored ? count - 1 - static_cast<double>(series) : static_cast<double>(series);
    return {width, (place - count / 2) * width};
}

std::vector<std::pair<double, double>> ChartPlane::line(const ChartSeries &series) const
{
    const double half = m_chart.kind == ChartKind::Steps ? 0.5 : 0;
    std::vector<std::pair<double, double>> points;
    for (std::size_t at = 0; at < series.values.size(); ++at) {
        const double height = y(series.values[at].amount());
        points.emplace_back(x(static_cast<double>(at) - half), height);
        if (half > 0)
            points.emplace_back(x(static_cast<double>(at) + half), height);
    }
    return points;
}

std::vector<numira::Decimal> axisTicks(const Chart &chart)
{
    double low = 0;
    double high = 0;
    const auto enclose = [&low, &high](const numira::Money &value) {
        low = std::min(low, value.amount().toDouble());
        high = std::max(high, value.amount().toDouble());
    };
    for (const ChartSeries &series : chart.series)
        std::ranges::for_each(series.values, enclose);
    if (chart.level)
        enclose(chart.level->value);
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
    const ChartPlane plane(chart, {left, top, width - left - right, height - top - bottom});
    return QStringLiteral("<svg viewBox=\"0 0 %1 %2\" role=\"img\" aria-labelledby=\"%3-t %3-d\">\n"
                          "<title id=\"%3-t\">%4</title>\n<desc id=\"%3-d\">%5</desc>\n")
               .arg(QString::number(width), QString::number(height), id, htmlText(chart.title),
                    htmlText(chart.description)) +
           axes(chart, plane) +
           (chart.kind == ChartKind::Bars ? bars(chart, plane) : line(chart, plane)) +
           levelAndMark(chart, plane) + legend(chart) + QStringLiteral("</svg>\n");
}

} // namespace kiv::interchange

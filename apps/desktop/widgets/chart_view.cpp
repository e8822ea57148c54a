// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/chart_view.h"

#include "widgets/chart_painter.h"

#include "workbench/entry/money_text.h"

#include <QtCore/QMetaMethod>
#include <QtGui/QAccessible>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAccessibleWidget>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>

namespace kiv::desktop {
namespace {

/// Screen readers call it a chart.
QAccessibleInterface *chartInterface(const QString &, QObject *object)
{
    auto *chart = qobject_cast<ChartView *>(object);
    return chart ? new QAccessibleWidget(chart, QAccessible::Chart) : nullptr;
}

} // namespace

ChartView::ChartView(QWidget *parent) : QWidget(parent)
{
    static const bool isKnown = (QAccessible::installFactory(chartInterface), true);
    Q_UNUSED(isKnown)
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

bool ChartView::isEmpty() const
{
    return m_chart.labels.isEmpty() || m_chart.series.empty();
}

void ChartView::setChart(interchange::Chart chart, navigation::CurrencyDisplayOptions displayAs)
{
    if (m_chart.labels != chart.labels)
        m_point.reset();
    m_chart = std::move(chart);
    m_displayAs = displayAs;
    setAccessibleDescription(m_chart.description);
    setToolTip(m_chart.description);
    nameIt();
    update();
}

void ChartView::nameIt()
{
    // A new name is what screen readers tell of a widget that has the focus.
    setAccessibleName(m_point ? tr("%1, %2").arg(m_chart.title, valuesText(*m_point))
                              : m_chart.title);
}

QString ChartView::valuesText(std::size_t label) const
{
    QStringList texts;
    for (const interchange::ChartSeries &series : m_chart.series) {
        const QString amount = workbench::amountText(series.values[label], m_displayAs);
        texts += m_chart.series.size() > 1 ? tr("%1 %2").arg(series.name, amount) : amount;
    }
    return tr("%1: %2").arg(m_chart.labels[static_cast<qsizetype>(label)],
                            texts.join(QStringLiteral(", ")));
}

void ChartView::lookAt(std::size_t label)
{
    if (isEmpty())
        return;
    setPoint(std::min(label, static_cast<std::size_t>(m_chart.labels.size()) - 1));
    emit told(valuesText(*m_point));
}

void ChartView::setPoint(std::optional<std::size_t> label)
{
    m_point = label;
    nameIt();
    update();
}

QString ChartView::tickText(const numira::Decimal &tick) const
{
    const QString text = workbench::amountText(
        numira::Money(m_chart.series.front().values.front().code(), tick), m_displayAs);
    // Among words from right to left, the minus stays in front of its number.
    return isRightToLeft() ? QChar(0x200e) + text : text;
}

interchange::ChartPlane ChartView::plane() const
{
    const double line = fontMetrics().height();
    double side = 0;
    for (const numira::Decimal &tick : interchange::axisTicks(m_chart))
        side = std::max<double>(side, fontMetrics().horizontalAdvance(tickText(tick)));
    side += line;
    const double top = (m_chart.series.size() > 1 ? 2.25 : 1) * line;
    const interchange::ChartPlane::Box box{isRightToLeft() ? line : side, top,
                                           std::max(1.0, width() - side - line),
                                           std::max(1.0, height() - top - 2 * line)};
    return {m_chart, box, isRightToLeft()};
}

QSize ChartView::sizeHint() const
{
    return {fontMetrics().averageCharWidth() * 60, fontMetrics().height() * 14};
}

QSize ChartView::minimumSizeHint() const
{
    return {fontMetrics().averageCharWidth() * 30, fontMetrics().height() * 10};
}

void ChartView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().base());
    painter.setLayoutDirection(layoutDirection());
    painter.setRenderHint(QPainter::Antialiasing);
    if (!isEmpty()) {
        const interchange::ChartPlane shown = plane();
        const interchange::ChartPlane::Box &box = shown.box();
        ChartPainter chart(painter, m_chart, shown, palette(),
                           {box.left, box.top, box.width, box.height});
        chart.grid([this](const numira::Decimal &tick) { return tickText(tick); });
        chart.labels();
        chart.values();
        chart.legend();
        chart.levelAndMark();
        if (m_point)
            chart.point(*m_point, valuesText(*m_point));
    }
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.backgroundColor = palette().color(QPalette::Base);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void ChartView::keyPressEvent(QKeyEvent *event)
{
    if (isEmpty()) {
        QWidget::keyPressEvent(event);
        return;
    }
    const auto last = static_cast<std::size_t>(m_chart.labels.size()) - 1;
    const int forward = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
    const int back = isRightToLeft() ? Qt::Key_Right : Qt::Key_Left;
    if (event->key() == Qt::Key_Home)
        lookAt(0);
    else if (event->key() == Qt::Key_End)
        lookAt(last);
    else if (event->key() == forward)
        lookAt(m_point ? *m_point + 1 : 0);
    else if (event->key() == back)
        lookAt(m_point ? std::max<std::size_t>(*m_point, 1) - 1 : last);
    else if (m_point && isSignalConnected(QMetaMethod::fromSignal(&ChartView::opened)) &&
             (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
        emit opened();
    else
        QWidget::keyPressEvent(event);
}

void ChartView::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
    if (m_point)
        emit opened();
}

void ChartView::mousePressEvent(QMouseEvent *event)
{
    if (!isEmpty())
        lookAt(plane().labelAt(event->position().x()));
}

void ChartView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        updateGeometry();
}

} // namespace kiv::desktop

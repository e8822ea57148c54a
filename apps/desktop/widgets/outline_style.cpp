// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/outline_style.h"

#include "widgets/colours.h"

#include <QtGui/QPainter>
#include <QtWidgets/QStyleOption>

#include <algorithm>
#include <array>

namespace kiv::desktop {
namespace {

constexpr int thin = 1;
constexpr int thick = 3;

void outline(QPainter &painter, const QStyleOption &option, const QRect &rect, int width)
{
    painter.save();
    QPen pen(option.palette.color(QPalette::WindowText), width);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.setRenderHint(QPainter::Antialiasing, false);
    const int inset = width / 2;
    painter.drawRect(rect.adjusted(inset, inset, -inset - 1, -inset - 1));
    painter.restore();
}

} // namespace

OutlineStyle::OutlineStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void OutlineStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option,
                                 QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    constexpr std::array edged{PE_FrameLineEdit, PE_PanelButtonCommand, PE_IndicatorCheckBox,
                               PE_Frame, PE_FrameMenu};
    if (std::ranges::find(edged, element) != edged.end() && isHighContrast(option->palette))
        outline(*painter, *option, option->rect, option->state & State_HasFocus ? thick : thin);
}

void OutlineStyle::drawControl(ControlElement element, const QStyleOption *option,
                               QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_TabBarTabShape && isHighContrast(option->palette))
        outline(*painter, *option, option->rect, option->state & State_Selected ? thick : thin);
}

void OutlineStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                      QPainter *painter, const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_ScrollBar && isHighContrast(option->palette))
        outline(*painter, *option,
                proxy()->subControlRect(control, option, SC_ScrollBarSlider, widget), thin);
}

} // namespace kiv::desktop

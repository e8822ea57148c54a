// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtWidgets/QProxyStyle>

namespace kiv::desktop {

/// How widgets are drawn: as Fusion draws them. On a palette of high contrast their edges have
/// the colour of the text, since shades of the background would not be seen; the edge of what
/// has the focus is thicker.
class OutlineStyle : public QProxyStyle {
    Q_OBJECT

public:
    OutlineStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                            QPainter *painter, const QWidget *widget) const override;
};

} // namespace kiv::desktop

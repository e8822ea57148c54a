// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/flow_layout.h"

#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace kiv::desktop {

FlowLayout::FlowLayout(QWidget *parent) : QLayout(parent)
{
    setContentsMargins({});
}

FlowLayout::~FlowLayout()
{
    qDeleteAll(m_items);
}

void FlowLayout::addItem(QLayoutItem *item)
{
    m_items += item;
}

int FlowLayout::count() const
{
    return static_cast<int>(m_items.size());
}

QLayoutItem *FlowLayout::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem *FlowLayout::takeAt(int index)
{
    return index >= 0 && index < count() ? m_items.takeAt(index) : nullptr;
}

Qt::Orientations FlowLayout::expandingDirections() const
{
    return {};
}

bool FlowLayout::hasHeightForWidth() const
{
    return true;
}

int FlowLayout::heightForWidth(int width) const
{
    return flow({0, 0, width, 0}, false);
}

QSize FlowLayout::sizeHint() const
{
    QSize all(0, 0); // a default one is (-1, -1)
    for (const QLayoutItem *item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize one = item->sizeHint();
        all.rwidth() += one.width() + (all.width() > 0 ? spacing() : 0);
        all.setHeight(std::max(all.height(), one.height()));
    }
    return all;
}

QSize FlowLayout::minimumSize() const
{
    QSize widest;
    for (const QLayoutItem *item : m_items) {
        if (!item->isEmpty())
            widest = widest.expandedTo(item->minimumSize());
    }
    return widest;
}

void FlowLayout::setGeometry(const QRect &rect)
{
    QLayout::setGeometry(rect);
    flow(rect, true);
}

int FlowLayout::flow(const QRect &rect, bool isToMove) const
{
    const Qt::LayoutDirection direction =
        parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
    int x = 0;
    int y = 0;
    int height = 0; // of the row
    for (QLayoutItem *item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint().boundedTo({rect.width(), item->sizeHint().height()});
        if (x > 0 && x + size.width() > rect.width()) {
            x = 0;
            y += height + spacing();
            height = 0;
        }
        if (isToMove)
            item->setGeometry(
                QStyle::visualRect(direction, rect, {rect.topLeft() + QPoint(x, y), size}));
        x += size.width() + spacing();
        height = std::max(height, size.height());
    }
    return y + height;
}

} // namespace kiv::desktop

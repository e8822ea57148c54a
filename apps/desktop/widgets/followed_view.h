// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QMetaObject>
#include <QtGui/QAccessible>
#include <QtWidgets/QAbstractItemView>

namespace kiv::desktop {

/// Tells screen readers the current cell of a view, if the view has the focus.
inline void tellCurrentCell(QAbstractItemView &view)
{
    const QModelIndex current = view.currentIndex();
    QAccessibleInterface *const spoken = QAccessible::queryAccessibleInterface(&view);
    if (!view.hasFocus() || !current.isValid() || !spoken || !spoken->tableInterface())
        return;
    if (auto *cell = spoken->tableInterface()->cellAt(current.row(), current.column())) {
        QAccessibleEvent event(cell, QAccessible::Focus);
        QAccessible::updateAccessibility(&event);
    }
}

/// A view whose current cell is followed: it stays in sight when the size changes, and screen
/// readers are told of it when the view gets the focus, and not while the focus is elsewhere.
/// Qt 6.4 has it the other way round.
template <typename View>
class FollowedView : public View {
public:
    using View::View;

protected:
    void focusInEvent(QFocusEvent *event) override
    {
        View::focusInEvent(event);
        // Later: the view itself is told after this event.
        if (QAccessible::isActive())
            QMetaObject::invokeMethod(
                this, [this] { tellCurrentCell(*this); }, Qt::QueuedConnection);
    }
    void resizeEvent(QResizeEvent *event) override
    {
        View::resizeEvent(event);
        this->scrollTo(this->currentIndex());
    }
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override
    {
        // What the views add to the base is to tell screen readers.
        if (this->hasFocus())
            View::currentChanged(current, previous);
        else
            // NOLINTNEXTLINE(bugprone-parent-virtual-call)
            QAbstractItemView::currentChanged(current, previous);
    }
};

} // namespace kiv::desktop

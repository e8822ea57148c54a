// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/geometry.h"

#include <QtWidgets/QtWidgets>

namespace kiv::test {
namespace {

QString described(const QWidget &widget)
{
    QString text =
        QString::fromLatin1(widget.metaObject()->className()) + u' ' + widget.objectName();
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        text += u' ' + label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        text += u' ' + button->text();
    return text;
}

/// Whether its text would be cut when it is narrower than its hint.
bool isRigid(const QWidget &widget)
{
    const auto *label = qobject_cast<const QLabel *>(&widget);
    if (label)
        return !label->wordWrap() && label->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored;
    return qobject_cast<const QAbstractButton *>(&widget) ||
           qobject_cast<const QLineEdit *>(&widget) || qobject_cast<const QComboBox *>(&widget);
}

/// The part of a page that is seen without scrolling, or the window.
const QWidget &viewportOf(const QWidget &widget)
{
    const QWidget *at = &widget;
    while (!at->isWindow() && !qobject_cast<const QScrollArea *>(at->parentWidget()))
        at = at->parentWidget();
    return *at;
}

} // namespace

QStringList misfits(QWidget &root)
{
    QStringList faults;
    for (const QWidget *widget : root.findChildren<QWidget *>()) {
        if (!widget->isVisible())
            continue;
        const QSize needed = widget->minimumSizeHint();
        if (isRigid(*widget) &&
            (widget->width() < needed.width() || widget->height() < needed.height()))
            faults += described(*widget) + QStringLiteral(": %1x%2 of %3x%4")
                                               .arg(widget->width())
                                               .arg(widget->height())
                                               .arg(needed.width())
                                               .arg(needed.height());
        if (qobject_cast<const QAbstractButton *>(widget)) {
            const QWidget &seen = viewportOf(*widget);
            const int left = widget->mapTo(&seen, QPoint(0, 0)).x();
            if (left < 0 || left + widget->width() > seen.width())
                faults += described(*widget) + QStringLiteral(": beyond the side");
        }
        if (const auto *list = qobject_cast<const QListWidget *>(widget);
            list && list->horizontalScrollBar()->isVisible())
            faults += described(*widget) + QStringLiteral(": its lines are cut off");
        // Only what a layout has put there; parts of a table or a combo box overlap rightly.
        const QWidget *parent = widget->parentWidget();
        if (!parent->layout() || parent->layout()->indexOf(widget) < 0)
            continue;
        for (const QObject *child : parent->children()) {
            const auto *other = qobject_cast<const QWidget *>(child);
            if (other && other > widget && other->isVisible() &&
                parent->layout()->indexOf(other) >= 0 &&
                other->geometry().intersects(widget->geometry()))
                faults += described(*widget) + QStringLiteral(" lies over ") + described(*other);
        }
    }
    return faults;
}

} // namespace kiv::test

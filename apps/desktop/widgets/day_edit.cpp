// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/day_edit.h"

#include "workbench/entry/day_text.h"
#include "workbench/errors.h"

#include "foundation/clock.h"
#include "foundation/local_dates.h"

#include <QtGui/QAccessible>
#include <QtGui/QKeyEvent>

namespace kiv::desktop {

DayEdit::DayEdit(QWidget *parent) : QLineEdit(parent) {}

void DayEdit::setDay(QDate day)
{
    setText(foundation::localText(day));
}

QDate DayEdit::day() const
{
    return workbench::dayOf(text(), foundation::today());
}

std::optional<QDate> DayEdit::wholeDay() const
{
    const QDate day = foundation::dateFromLocalText(text());
    return day.isValid() ? std::optional(day) : std::nullopt;
}

void DayEdit::focusOutEvent(QFocusEvent *event)
{
    m_sign.clear();
    try {
        setDay(day());
    } catch (const foundation::Error &) {
        // It is refused when it is used.
    }
    QLineEdit::focusOutEvent(event);
}

void DayEdit::keyPressEvent(QKeyEvent *event)
{
    const QString sign = std::exchange(m_sign, {});
    if (!sign.isEmpty() && !event->text().isEmpty() && event->text().at(0).isDigit())
        setText(sign); // "+7" is being typed
    const std::optional<QDate> whole = wholeDay();
    const bool isPlain = (event->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
    QDate day;
    if (whole && isPlain) {
        switch (event->key()) {
        case Qt::Key_Plus:
        case Qt::Key_Up:
            day = whole->addDays(1);
            break;
        case Qt::Key_Minus:
        case Qt::Key_Down:
            day = whole->addDays(-1);
            break;
        case Qt::Key_T:
            day = foundation::today();
            break;
        default:
            break;
        }
    }
    if (!day.isValid()) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    if (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Minus)
        m_sign = event->text();
    setDay(day);
    selectAll();
    event->accept();
}

} // namespace kiv::desktop

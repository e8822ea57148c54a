// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/field_message.h"

#include "widgets/colours.h"

#include <QtGui/QAccessible>
#include <QtWidgets/QAbstractItemView>

namespace kiv::desktop {

FieldMessage::FieldMessage(QWidget *parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    hide();
}

void FieldMessage::complain(QWidget *field, const QString &sentence)
{
    withdraw();
    m_field = field;
    m_sentence = sentence;
    if (!qobject_cast<QAbstractItemView *>(field)) { // all of its rows would look wrong
        QPalette marked = field->palette();
        marked.setColor(QPalette::Text, colour(Colour::Wrong, marked));
        field->setPalette(marked);
    }
    field->setAccessibleDescription(sentence);
    field->setFocus(Qt::OtherFocusReason);
    QPalette own = palette();
    own.setColor(QPalette::WindowText, colour(Colour::Wrong, own));
    setPalette(own);
    // The sign says without colour that something is wrong.
    setText(u'\u26a0' + QStringLiteral(" ") + sentence);
    show();
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void FieldMessage::withdraw()
{
    if (m_field) {
        m_field->setPalette({});
        m_field->setAccessibleDescription({});
    }
    m_field = nullptr;
    m_sentence.clear();
    clear();
    hide();
}

} // namespace kiv::desktop

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/field_message.h"

#include "widgets/colours.h"

#include <QtWidgets/QAbstractItemView>

namespace kiv::desktop {

FieldMessage::FieldMessage(QWidget *parent) : SpokenLabel(parent)
{
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
    const bool hadFocus = field->hasFocus();
    field->setFocus(Qt::OtherFocusReason);
    QPalette own = palette();
    own.setColor(QPalette::WindowText, colour(Colour::Wrong, own));
    setPalette(own);
    // The sign says without colour that something is wrong.
    const QString text = u'\u26a0' + QStringLiteral(" ") + sentence;
    show();
    // Who comes to a field hears its description; who is there already does not.
    if (hadFocus)
        speak(text);
    else
        setText(text);
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include "widgets/completion_keys.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCompleter>

namespace kiv::desktop {
namespace {

bool isOfAction(const QKeyEvent &key)
{
    return key.modifiers().testAnyFlags(Qt::AltModifier | Qt::ControlModifier) ||
           (key.key() >= Qt::Key_F1 && key.key() <= Qt::Key_F35);
}

} // namespace

CompletionKeys::CompletionKeys(QCompleter &completer, QWidget &field, OnlyMatch onlyMatch)
    : QObject(&field), m_completer(completer), m_field(field), m_onlyMatch(onlyMatch)
{
    completer.popup()->installEventFilter(this);
    // A desktop asks the field whether it wants the keys of an action, not the list.
    field.installEventFilter(this);
}

bool CompletionKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride &&
        isOfAction(*static_cast<const QKeyEvent *>(event)))
        m_completer.popup()->hide();
    if (event->type() != QEvent::KeyPress || watched == &m_field)
        return QObject::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isTab = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
    const bool isEnter = key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter;
    QModelIndex marked = m_completer.popup()->currentIndex();
    if (!isTab && (!isEnter || marked.isValid()))
        return QObject::eventFilter(watched, event);
    if (isTab && !marked.isValid() && m_onlyMatch == OnlyMatch::IsTaken &&
        m_completer.completionModel()->rowCount() == 1)
        marked = m_completer.completionModel()->index(0, m_completer.completionColumn());
    const QString name = marked.isValid() ? marked.data().toString() : QString();
    m_completer.popup()->hide();
    if (!name.isEmpty())
        emit taken(name);
    QKeyEvent own(QEvent::KeyPress, key->key(), key->modifiers(), key->text());
    QCoreApplication::sendEvent(&m_field, &own);
    return true;
}

} // namespace kiv::desktop

// SPDX-License-Identifier: GPL-3.0-or-later
#include "application/application.h"

#include "widgets/outline_style.h"

#include "workbench/document/program_identity.h"
#include "workbench/entry/user_locale.h"
#include "workbench/requests/requests.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>

namespace kiv::desktop {
namespace {

/// Whether a field would keep the keys of undo or redo although it has nothing to take
/// back. The window's own undo is meant then.
bool isIdleUndo(QObject *receiver, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const auto *field = qobject_cast<const QLineEdit *>(receiver);
    const auto *keys = static_cast<const QKeyEvent *>(event);
    return field && ((keys->matches(QKeySequence::Undo) && !field->isUndoAvailable()) ||
                     (keys->matches(QKeySequence::Redo) && !field->isRedoAvailable()));
}

/// With another font, Qt 6.4 keeps the smallest size of a box; with another style it does not.
void measureAnew(QObject *receiver)
{
    if (auto *box = qobject_cast<QComboBox *>(receiver)) {
        QEvent style(QEvent::StyleChange);
        QCoreApplication::sendEvent(box, &style);
        box->updateGeometry();
    }
}

} // namespace

Application::Application(int &argc, char **argv) : QApplication(argc, argv)
{
    workbench::identifyProgram();
    workbench::speakAsUser(*this);
    setDesktopFileName(QStringLiteral("kiv-desktop"));
    setApplicationDisplayName(QStringLiteral("kiv"));
    // The platforms' own styles ignore parts of a palette.
    setStyle(new OutlineStyle);
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    try {
        if (isIdleUndo(receiver, event)) {
            event->ignore();
            return true;
        }
        const bool isDone = QApplication::notify(receiver, event);
        if (event->type() == QEvent::FontChange)
            measureAnew(receiver);
        return isDone;
    } catch (const std::exception &error) {
        const QString text = workbench::userText(error);
        if (m_report)
            m_report(text);
        else
            qCritical().noquote() << text;
        return false;
    }
}

} // namespace kiv::desktop

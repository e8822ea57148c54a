// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/unlocking.h"

#include "workbench/errors.h"

#include <QtCore/QFileInfo>
#include <QtCore/QScopeGuard>
#include <QtGui/QGuiApplication>

namespace kiv::desktop {

using storage::StorageFailure;

bool Unlocking::opens(const QString &file, const QString &passphrase)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const auto again = qScopeGuard([] { QGuiApplication::restoreOverrideCursor(); });
    try {
        m_desk.document().keys().unlock(file, storage::Passphrase(passphrase));
        return true;
    } catch (const storage::StorageError &error) {
        if (error.failure() == StorageFailure::PassphraseWrong ||
            error.failure() == StorageFailure::PassphraseRefused)
            return false;
        throw;
    }
}

bool Unlocking::unlock(const QString &file)
{
    const std::optional<QString> kept = m_desk.keptPassphrase(file);
    if (kept && opens(file, *kept))
        return true;
    const QString name = QFileInfo(file).completeBaseName();
    QString question = QObject::tr("The passphrase of “%1”:").arg(name);
    while (true) {
        const auto typed = m_desk.questions().passphrase(m_window, question);
        if (!typed)
            return false;
        if (opens(file, typed->text)) {
            if (typed->isToKeep)
                m_desk.keepPassphrase(file, typed->text);
            return true;
        }
        question = QObject::tr("This is not the passphrase of “%1”. The passphrase:").arg(name);
    }
}

} // namespace kiv::desktop

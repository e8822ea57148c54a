// SPDX-License-Identifier: GPL-3.0-or-later
#include "application/desktop_keyring.h"

#include "workbench/errors.h"

#include <QtCore/QEventLoop>
#include <QtCore/QFileInfo>
#include <QtCore/QObject>

#include <qt6keychain/keychain.h>

namespace kiv::desktop {
namespace {

const QString service = QStringLiteral("kiv");

/// The name under which the passphrase of a file is kept: where it really is.
QString keyOf(const QString &file)
{
    const QString path = QFileInfo(file).canonicalFilePath();
    return path.isEmpty() ? QFileInfo(file).absoluteFilePath() : path;
}

/// Waits for the keyring, which may ask the user to open it.
void finish(QKeychain::Job &job, const QString &file)
{
    job.setAutoDelete(false);
    job.setInsecureFallback(false);
    job.setKey(keyOf(file));
    QEventLoop waiting;
    QObject::connect(&job, &QKeychain::Job::finished, &waiting, &QEventLoop::quit);
    job.start();
    waiting.exec();
}

} // namespace

std::optional<QString> DesktopKeyring::kept(const QString &file)
{
    QKeychain::ReadPasswordJob job(service);
    finish(job, file);
    return job.error() == QKeychain::NoError ? std::optional(job.textData()) : std::nullopt;
}

void DesktopKeyring::keep(const QString &file, const QString &passphrase)
{
    QKeychain::WritePasswordJob job(service);
    job.setTextData(passphrase);
    finish(job, file);
    if (job.error() != QKeychain::NoError)
        throw workbench::Refusal(
            QObject::tr("The desktop’s keyring does not keep the passphrase: %1")
                .arg(job.errorString()));
}

void DesktopKeyring::forget(const QString &file)
{
    QKeychain::DeletePasswordJob job(service);
    finish(job, file);
}

} // namespace kiv::desktop

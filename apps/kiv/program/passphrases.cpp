// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/passphrases.h"

#include "messages/errors.h"
#include "messages/message_log.h"
#include "output/dialogue.h"

#include "workbench/document/encryption_text.h"

#include "storage/storage_error.h"

#include <QtCore/QFile>

#include <sys/stat.h>

namespace kiv::app {

using storage::Passphrase;

namespace {

/// The passphrase in the file; "-" is standard input.
Passphrase inFile(const QString &name)
{
    const QString path = name == u"-" ? QStringLiteral("/dev/stdin") : name;
    struct stat status = {};
    if (::stat(QFile::encodeName(path).constData(), &status) == 0 && S_ISREG(status.st_mode) &&
        (status.st_mode & (S_IRGRP | S_IROTH)) != 0)
        warn(QObject::tr("Others can read the passphrase in '%1'.").arg(name));
    return Passphrase::inFile(path);
}

} // namespace

Passphrases::Passphrases(const Options &options)
    : m_file(options.passphraseFile.isEmpty() ? qEnvironmentVariable("KIV_PASSPHRASE_FILE")
                                              : options.passphraseFile)
{
}

void Passphrases::unlock(storage::KeyRing &keys, const QString &path) const
{
    if (!m_file.isEmpty()) {
        try {
            return keys.unlock(path, inFile(m_file));
        } catch (const storage::StorageError &error) {
            // A former version may have another one, which the user knows.
            if (error.failure() != storage::StorageFailure::PassphraseWrong ||
                !Dialogue::isPossible())
                throw;
            complain(told(error));
        }
    }
    if (!Dialogue::isPossible())
        throw noPassphrase(path, QStringLiteral("--passphrase-file"));
    Dialogue().untilSecret(
        QObject::tr("Passphrase of '%1'").arg(path),
        [&](const QByteArray &typed) { keys.unlock(path, Passphrase::ofBytes(typed)); });
}

Passphrase Passphrases::chosen(const QString &file, bool isInPlace) const
{
    const QString named = file.isEmpty() && !isInPlace ? m_file : file;
    std::optional<Passphrase> passphrase;
    if (!named.isEmpty()) {
        passphrase = inFile(named);
    } else if (Dialogue::isPossible()) {
        Dialogue dialogue;
        dialogue.untilSecret(QObject::tr("New passphrase"), [&](const QByteArray &typed) {
            passphrase = Passphrase::ofBytes(typed);
            // Nobody knows which of two that differ was mistyped, so both are asked for again.
            std::optional<Passphrase> again;
            dialogue.untilSecret(
                QObject::tr("The new passphrase again"),
                [&](const QByteArray &repeated) { again = Passphrase::ofBytes(repeated); });
            if (again->bytes() != passphrase->bytes())
                throw otherPassphrase();
        });
    } else {
        throw missing(isInPlace ? QStringLiteral("--new-passphrase-file")
                                : QStringLiteral("--passphrase-file"));
    }
    if (const QString weakness = workbench::weaknessOf(*passphrase); !weakness.isEmpty())
        warn(weakness);
    return *passphrase;
}

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
// encrypt, decrypt
#include "commands/commands.h"

#include "messages/message_log.h"
#include "output/json.h"
#include "program/passphrases.h"

#include "workbench/document/encryption_text.h"

namespace kiv::app {
namespace {

/// What was done to the file; the budget in it is the same.
Report done(const Call &call, const QString &sentence, const QStringList &left)
{
    if (const QString others = workbench::leftVersions(left); !others.isEmpty())
        warn(others);
    Report report(QJsonObject{{QStringLiteral("file"), call.document.file()},
                              {QStringLiteral("encrypted"), call.document.isEncrypted()},
                              {QStringLiteral("left"), QJsonArray::fromStringList(left)}});
    report.line(sentence);
    report.setUnchanged();
    return report;
}

struct Encrypt {
    QString newFile;

    void declare(Arguments &arguments)
    {
        arguments.optional("--new-passphrase-file", newFile,
                           QObject::tr("File with the new passphrase (default: asked at the "
                                       "terminal)"));
    }
    Report run(Call &call) const
    {
        const bool isInPlace = call.document.isEncrypted();
        const storage::Passphrase passphrase = Passphrases(call.options).chosen(newFile, isInPlace);
        const QStringList left =
            call.options.isDryRun ? QStringList() : call.document.encrypt(passphrase);
        const QString sentence =
            isInPlace ? QObject::tr("The budget '%1' and its former versions have the new "
                                    "passphrase.")
                      : QObject::tr("The budget '%1' and its former versions are encrypted.");
        Report report = done(call, sentence.arg(call.document.file()), left);
        for (const QString &advice : workbench::afterEncrypting(!isInPlace))
            report.line(advice);
        return report;
    }
};

struct Decrypt {
    void declare(Arguments &) {}
    Report run(Call &call) const
    {
        const QStringList left = call.options.isDryRun ? QStringList() : call.document.decrypt();
        return done(call,
                    QObject::tr("The budget '%1' and its former versions are not encrypted any "
                                "more: everybody who has the files can read them.")
                        .arg(call.document.file()),
                    left);
    }
};

} // namespace

void addEncryptionCommands(CommandGroup &root)
{
    root.add("encrypt",
             QObject::tr("Encrypt the budget and its former versions, or change the passphrase"),
             CommandKind::Change, Encrypt{});
    root.add("decrypt", QObject::tr("Take the encryption away again"), CommandKind::Change,
             Decrypt{});
}

} // namespace kiv::app

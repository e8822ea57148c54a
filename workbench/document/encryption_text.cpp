// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/document/encryption_text.h"

#include <QtCore/QObject>

namespace kiv::workbench {
namespace {

/// Who can try a million passphrases needs days for those of so many random letters, and a
/// lifetime for longer ones.
constexpr qsizetype lengthGood = 12;

} // namespace

QString weaknessOf(const storage::Passphrase &passphrase)
{
    if (passphrase.length() >= lengthGood)
        return {};
    return QObject::tr("A short passphrase can be guessed: four or five words that do not belong "
                       "together are better.");
}

QStringList afterEncrypting(bool wasReadable)
{
    QStringList sentences{
        QObject::tr("Without the passphrase nobody can read the budget, you neither: keep it "
                    "where you find it again.")};
    if (wasReadable)
        sentences += QObject::tr("What was saved before can still be found on the disk, and in "
                                 "copies elsewhere.");
    else
        sentences += QObject::tr("Whoever has an old copy and the old passphrase can read what is "
                                 "saved later, too; taking the encryption away and encrypting "
                                 "again makes a new key.");
    return sentences;
}

QString leftVersions(const QStringList &paths)
{
    if (paths.isEmpty())
        return {};
    return QObject::tr("These former versions stay as they are, since they are damaged, have "
                       "another passphrase, or cannot be written: %1.")
        .arg(paths.join(QStringLiteral(", ")));
}

QString outputIsReadable()
{
    return QObject::tr("The budget is encrypted, but what is written here is not: everybody who "
                       "has it can read it.");
}

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/version_encryption.h"

#include "storage/internal/atomic_file_writer.h"
#include "storage/internal/faults.h"
#include "storage/internal/schema.h"
#include "storage/internal/seal.h"
#include "storage/internal/version_folder.h"

#include "storage/kept_versions.h"
#include "storage/key_ring.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <unistd.h>

namespace kiv::storage::internal {
namespace {

/// Removes what programs that ended meanwhile were writing, which may be in the clear: in the
/// file's place, and in the folder of former versions. The lock says that nobody writes now.
void removeLeftovers(const FileTarget &target)
{
    const QByteArray saving = ".saving";
    ::unlink((target.folder() + '/' + target.hiddenSibling(saving)).constData());
    for (unsigned number = 1; number <= backupsMax; ++number)
        ::unlink((target.folder() + "/." + backupName(target, number) + saving).constData());
    const QDir versions(QFile::decodeName(target.folder() + '/' + target.sibling(".versions")));
    constexpr auto kinds = QDir::Files | QDir::Hidden | QDir::NoSymLinks;
    for (const QString &name : versions.entryList({QStringLiteral(".*")}, kinds)) {
        if (name.endsWith(u".saving") || name == QLatin1String(passingName))
            ::unlink(QFile::encodeName(versions.filePath(name)).constData());
    }
}

/// What a version is to become; nothing when it is that already. `isLeft` tells whether it
/// cannot become anything.
std::optional<QByteArray> recoded(const QByteArray &bytes,
                                  const std::optional<Encryption> &encryption, const KeyRing &keys,
                                  bool &isLeft)
{
    if (!bytes.startsWith(encryptedMagic))
        return encryption ? std::optional(encryptedSafely(bytes, *encryption)) : std::nullopt;
    try {
        const EncryptedFile file(bytes);
        if (encryption && file.wrap() == encryption->wrap)
            return std::nullopt;
        if (encryption && file.isUnder(*encryption->key))
            return file.under(encryption->wrap);
        if (const auto known = keys.encryptionOf(file)) {
            const QByteArray plain = file.content(*known->key);
            return encryption ? encryptedSafely(plain, *encryption) : plain;
        }
    } catch (const ContentFault &) {
        // It is damaged.
    }
    isLeft = true;
    return std::nullopt;
}

/// Whether the file begins as one with this encryption does, which few of its bytes tell.
bool hasAlready(const QString &path, const std::optional<Encryption> &encryption)
{
    QFile file(path);
    if (!encryption || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return false;
    return EncryptedFile::wrapIn(file.read(encryptedHeaderSize)) == encryption->wrap;
}

} // namespace

QByteArray encryptedSafely(QByteArrayView file, const Encryption &encryption)
{
    const std::optional<SealedParts> parts = sealedParts(file);
    QByteArray bytes = encrypted(file, parts ? parts->label : QByteArrayView(), encryption);
    if (bytes.size() > fileSizeMax)
        throw moreThanAFileMayHold();
    if (EncryptedFile(bytes).content(*encryption.key) != file)
        throw checksumWrong();
    return bytes;
}

bool isEncrypted(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) &&
           file.read(encryptedMagic.size()) == encryptedMagic;
}

QStringList encryptAlike(const FileTarget &target, const std::optional<Encryption> &encryption,
                         const KeyRing *keys)
{
    QStringList left;
    removeLeftovers(target);
    std::vector<KeptVersion> versions;
    try {
        versions = keptVersions(target.shownPath(), keys);
    } catch (const StorageError &error) {
        return {error.filePathName()};
    }
    for (const KeptVersion &version : versions) {
        if (version.isFile || hasAlready(version.path, encryption))
            continue;
        bool isLeft = false;
        try {
            const FileTarget kept(version.path);
            const std::optional<FileContent> content = readFile(kept, fileSizeMax);
            if (!content)
                continue;
            if (const auto bytes = recoded(content->bytes, encryption, *keys, isLeft))
                AtomicFileWriter(kept, content->stamp).write(*bytes);
        } catch (const StorageError &) {
            isLeft = true; // the others are encrypted all the same
        } catch (const ContentFault &) {
            isLeft = true;
        }
        if (isLeft)
            left.append(version.path);
    }
    return left;
}

} // namespace kiv::storage::internal

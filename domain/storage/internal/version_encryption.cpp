// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/version_encryption.h"

#include "storage/internal/atomic_file_writer.h"
#include "storage/internal/faults.h"
#include "storage/internal/schema.h"
#include "storage/internal/seal.h"

#include "storage/kept_versions.h"
#include "storage/key_ring.h"

#include <QtCore/QFile>

#include <unistd.h>

namespace kiv::storage::internal {
namespace {

/// Removes what a program that ended meanwhile was writing in the file's place, which may be
/// in the clear. The lock says that nobody writes it now.
void removeLeftover(const FileTarget &target)
{
    ::unlink((target.folder() + '/' + target.hiddenSibling(".saving")).constData());
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

QStringList encryptAlike(const FileTarget &target, const std::optional<Encryption> &encryption,
                         const KeyRing *keys)
{
    QStringList left;
    if (!keys)
        return left;
    removeLeftover(target);
    for (const KeptVersion &version : keptVersions(target.shownPath(), keys)) {
        if (version.isFile)
            continue;
        const FileTarget kept(version.path);
        removeLeftover(kept);
        if (hasAlready(version.path, encryption))
            continue;
        const std::optional<FileContent> content = readFile(kept, fileSizeMax);
        if (!content)
            continue;
        bool isLeft = false;
        if (const auto bytes = recoded(content->bytes, encryption, *keys, isLeft))
            AtomicFileWriter(kept, content->stamp).write(*bytes);
        if (isLeft)
            left.append(version.path);
    }
    return left;
}

} // namespace kiv::storage::internal

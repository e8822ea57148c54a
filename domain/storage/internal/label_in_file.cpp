// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/label_in_file.h"

#include "storage/internal/encrypted_file.h"
#include "storage/internal/faults.h"
#include "storage/internal/label.h"
#include "storage/internal/seal.h"

#include "storage/key_ring.h"

#include <algorithm>

#include <sys/stat.h>

namespace kiv::storage::internal {
namespace {

/// No label is longer in practice, so that one read is enough.
constexpr qsizetype usualSize = 4096;

/// So many bytes of a file from `offset`; none when they are not there.
QByteArray partOf(const FileDescriptor &file, qint64 offset, qsizetype size)
{
    QByteArray part(size, Qt::Uninitialized);
    ssize_t got = -1;
    do
        got = ::pread(file.get(), part.data(), static_cast<size_t>(size), offset);
    while (got < 0 && errno == EINTR);
    return got == size ? part : QByteArray();
}

/// The label of a file in the clear, which stands at its end.
std::optional<QByteArray> labelAtEnd(const FileDescriptor &file, qint64 fileSize)
{
    const auto endOf = [&](qsizetype size) {
        size = std::min<qint64>(size, fileSize);
        return partOf(file, fileSize - size, size);
    };
    QByteArray end = endOf(usualSize);
    const std::optional<qsizetype> begin = labelBegin(end);
    if (!begin || *begin > std::min<qint64>(fileSize, labelSizeMax + sealSize))
        return std::nullopt;
    if (*begin > end.size())
        end = endOf(*begin);
    return end.last(std::min(*begin, end.size())).chopped(sealSize);
}

/// The label of an encrypted file, which stands behind its header.
std::optional<QByteArray> lockedLabelIn(const FileDescriptor &file, qint64 fileSize,
                                        const KeyRing *keys, bool &isLocked)
{
    QByteArray begin = partOf(file, 0, std::min<qint64>(usualSize, fileSize));
    const std::optional<qsizetype> end = EncryptedFile::labelEnd(begin);
    if (!end)
        return std::nullopt;
    if (*end > begin.size())
        begin = partOf(file, 0, *end);
    const EncryptedFile encrypted(begin);
    const auto encryption = keys ? keys->encryptionOf(encrypted) : std::nullopt;
    isLocked = !encryption;
    return encryption ? std::optional(encrypted.label(*encryption->key)) : std::nullopt;
}

} // namespace

LabelInFile labelIn(const FileDescriptor &file, const KeyRing *keys)
{
    LabelInFile found;
    struct stat status = {};
    if (::fstat(file.get(), &status) != 0)
        return found;
    try {
        std::optional<QByteArray> label = labelAtEnd(file, status.st_size);
        if (!label)
            label = lockedLabelIn(file, status.st_size, keys, found.isLocked);
        if (label)
            found.mark = fromLabel(*label);
    } catch (const ContentFault &) {
        // What is damaged tells nothing.
    }
    return found;
}

} // namespace kiv::storage::internal

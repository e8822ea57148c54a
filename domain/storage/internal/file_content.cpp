// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/file_content.h"

#include "storage/internal/faults.h"
#include "storage/internal/file_descriptor.h"

#include <QtCore/QHashFunctions>

#include <fcntl.h>

namespace kiv::storage::internal {

FileStamp::FileStamp(const struct stat &status) noexcept
    : device(status.st_dev),
      inode(status.st_ino),
      size(status.st_size),
      seconds(status.st_mtim.tv_sec),
      nanoseconds(status.st_mtim.tv_nsec)
{
}

Fingerprint::Fingerprint(QByteArrayView bytes) noexcept
    : size(bytes.size()), hash(qHashBits(bytes.data(), static_cast<std::size_t>(bytes.size())))
{
}

std::optional<FileContent> readFile(const FileTarget &target, qsizetype sizeMax)
{
    const QByteArray path = target.path();
    struct stat status = {};
    const auto refuseOtherThanFile = [&] {
        if (!S_ISREG(status.st_mode))
            throw notAFile(target.shownPath());
    };
    if (::lstat(path.constData(), &status) != 0) {
        if (errno == ENOENT)
            return std::nullopt;
        throw cannotRead(target.shownPath(), errno);
    }
    // Opening a device may do something to it.
    refuseOtherThanFile();
    const FileDescriptor file(
        ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file || ::fstat(file.get(), &status) != 0)
        throw cannotRead(target.shownPath(), errno);
    refuseOtherThanFile();
    if (status.st_size > sizeMax)
        throw tooLarge(target.shownPath());

    FileContent content{QByteArray(status.st_size, Qt::Uninitialized), FileStamp(status)};
    for (qsizetype done = 0; done < content.bytes.size();) {
        const ssize_t got = ::read(file.get(), content.bytes.data() + done,
                                   static_cast<size_t>(content.bytes.size() - done));
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            throw cannotRead(target.shownPath(), errno);
        if (got == 0)
            content.bytes.truncate(done);
        done += got;
    }
    return content;
}

} // namespace kiv::storage::internal

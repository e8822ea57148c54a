// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/atomic_file_writer.h"

#include "storage/internal/faults.h"
#include "storage/internal/file_attributes.h"
#include "storage/internal/file_size_signal.h"

#include "foundation/streams.h"

#include <QtCore/QDebug>
#include <QtCore/QFile>
#include <QtCore/QObject>

#include <algorithm>
#include <cstring>

#include <fcntl.h>

namespace kiv::storage::internal {
namespace {

/// The path under which the system shows an open file to its process.
QByteArray pathOf(const FileDescriptor &file)
{
    return "/proc/self/fd/" + QByteArray::number(file.get());
}

} // namespace

AtomicFileWriter::AtomicFileWriter(const FileTarget &target, std::optional<FileStamp> replaced)
    : m_target(target), m_replaced(replaced), m_temporaryName(target.hiddenSibling(".saving"))
{
}

AtomicFileWriter::~AtomicFileWriter()
{
    if (m_hasTemporaryName)
        ::unlinkat(m_folder.get(), m_temporaryName.constData(), 0);
}

void AtomicFileWriter::write(QByteArrayView bytes, VersionKeeper *keeper)
{
    openFolder();
    // A stopped writer has left its new version, finished or not.
    ::unlinkat(m_folder.get(), m_temporaryName.constData(), 0);
    createTemporary();
    writeAll(bytes);
    if (m_replaced)
        takeOverAttributes();
    check(::fsync(m_temporary.get()) == 0);
    verify(bytes);
    nameTemporary();
    check(m_temporary.close());
    // Before the name leads to the new version: whenever the process is stopped, the old
    // one is the file or is kept.
    if (m_replaced && keeper)
        keeper->keep();
    // After it, since what was kept is what the name led to.
    checkUnchanged();
    check(::renameat(m_folder.get(), m_temporaryName.constData(), m_folder.get(),
                     m_target.name().constData()) == 0);
    m_hasTemporaryName = false;
    syncFolder(keeper);
}

void AtomicFileWriter::openFolder()
{
    m_folder =
        FileDescriptor(::open(m_target.folder().constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    check(static_cast<bool>(m_folder));
    // Replacing a file needs no right to write to it. It is checked all the same, since
    // a read-only file must not be replaced.
    if (m_replaced) {
        check(::faccessat(m_folder.get(), m_target.name().constData(), W_OK, AT_EACCESS) == 0);
        checkSticky();
    }
}

/// In a folder with the sticky bit, only the owner of a file or of the folder can remove
/// a name. Checked first, before anything is written.
void AtomicFileWriter::checkSticky() const
{
    struct stat folder = {};
    struct stat file = {};
    check(::fstat(m_folder.get(), &folder) == 0 &&
          ::fstatat(m_folder.get(), m_target.name().constData(), &file, AT_SYMLINK_NOFOLLOW) == 0);
    const uid_t user = ::geteuid();
    if ((folder.st_mode & S_ISVTX) && user != 0 && user != folder.st_uid && user != file.st_uid)
        throw cannotWrite(m_target.shownPath(), EPERM);
}

void AtomicFileWriter::createTemporary()
{
    // A file without a name gets one through the process's own list of files.
    if (::access("/proc/self/fd", X_OK) == 0) {
        m_temporary =
            FileDescriptor(::openat(m_folder.get(), ".", O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
        // Kernels and file systems without this feature open the folder.
        if (m_temporary || !(isUnsupported(errno) || errno == EISDIR || errno == ENOENT)) {
            check(static_cast<bool>(m_temporary));
            return;
        }
    }
    m_temporary =
        FileDescriptor(::openat(m_folder.get(), m_temporaryName.constData(),
                                O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    check(static_cast<bool>(m_temporary), m_temporaryName);
    m_hasTemporaryName = true;
}

void AtomicFileWriter::writeAll(QByteArrayView bytes)
{
    const NoFileSizeSignal noSignal;
    while (!bytes.isEmpty()) {
        const ssize_t written =
            ::write(m_temporary.get(), bytes.data(), static_cast<size_t>(bytes.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written == 0)
            errno = ENOSPC; // a device that writes nothing and reports no error
        check(written > 0);
        bytes = bytes.sliced(written);
    }
}

void AtomicFileWriter::takeOverAttributes()
{
    const FileDescriptor old(::openat(m_folder.get(), m_target.name().constData(),
                                      O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    check(static_cast<bool>(old) && copyFileAttributes(old, m_temporary));
}

/// Reads the file back from the device, if the system does not use its cache.
void AtomicFileWriter::verify(QByteArrayView bytes)
{
    ::posix_fadvise(m_temporary.get(), 0, 0, POSIX_FADV_DONTNEED);
    constexpr qsizetype blockSize = qsizetype{256} * 1024;
    QByteArray block(std::min(blockSize, bytes.size() + 1), Qt::Uninitialized);
    qsizetype done = 0;
    for (;;) {
        const ssize_t got =
            ::pread(m_temporary.get(), block.data(), static_cast<size_t>(block.size()), done);
        if (got < 0 && errno == EINTR)
            continue;
        check(got >= 0);
        if (got == 0)
            break;
        if (got > bytes.size() - done ||
            std::memcmp(block.constData(), bytes.data() + done, static_cast<size_t>(got)) != 0)
            throw notAsWritten(m_target.shownPath());
        done += got;
    }
    if (done != bytes.size())
        throw notAsWritten(m_target.shownPath());
}

void AtomicFileWriter::nameTemporary()
{
    if (m_hasTemporaryName)
        return;
    check(::linkat(AT_FDCWD, pathOf(m_temporary).constData(), m_folder.get(),
                   m_temporaryName.constData(), AT_SYMLINK_FOLLOW) == 0,
          m_temporaryName);
    m_hasTemporaryName = true;
}

void AtomicFileWriter::checkUnchanged()
{
    if (stampOf(m_target.name()) != m_replaced)
        throw changedOnDisk(m_target.shownPath());
}

void AtomicFileWriter::syncFolder(VersionKeeper *keeper)
{
    if (::fsync(m_folder.get()) == 0 || isUnsupported(errno))
        return;
    const int cause = errno;
    // The new version could be lost in a power cut, so the old one is put back.
    if (!m_replaced)
        ::unlinkat(m_folder.get(), m_target.name().constData(), 0);
    else if (keeper)
        keeper->putBack();
    throw cannotWrite(m_target.shownPath(), cause);
}

void AtomicFileWriter::check(bool wentWell, const QByteArray &made) const
{
    if (!wentWell && errno == EEXIST && !made.isEmpty())
        throw inTheWay(m_target.shownPath(), QFile::decodeName(m_target.folder() + '/' + made));
    if (!wentWell)
        throw cannotWrite(m_target.shownPath(), errno);
}

std::optional<FileStamp> AtomicFileWriter::stampOf(const QByteArray &name) const
{
    struct stat status = {};
    if (::fstatat(m_folder.get(), name.constData(), &status, AT_SYMLINK_NOFOLLOW) == 0)
        return FileStamp(status);
    check(errno == ENOENT);
    return std::nullopt;
}

} // namespace kiv::storage::internal

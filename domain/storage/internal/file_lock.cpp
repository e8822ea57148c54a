// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/file_lock.h"

#include "storage/internal/errors.h"

#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QSysInfo>

#include <array>
#include <tuple>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

namespace kiv::storage::internal {
namespace {

/// How often the lock file may vanish between opening and locking it, because
/// its holder ends just then, before this gives up.
constexpr int triesMax = 100;

/// A file system without locks keeps nobody out, which is no reason to keep the
/// user out.
bool isWithoutLocks(int error) noexcept
{
    return error == ENOLCK || error == ENOSYS || error == EOPNOTSUPP || error == EINVAL;
}

/// What the holder of the lock wrote, as "process 4711, kiv on host".
QString holder(const FileDescriptor &file)
{
    std::array<char, 1024> text{};
    const ssize_t length = ::pread(file.get(), text.data(), text.size(), 0);
    const QList<QByteArray> lines =
        QByteArray(text.data(), std::max<ssize_t>(length, 0)).split('\n');
    if (lines.size() < 3)
        return {};
    return QObject::tr("process %1, %2 on %3")
        .arg(QString::fromUtf8(lines[0]), QString::fromUtf8(lines[1]), QString::fromUtf8(lines[2]));
}

void writeHolder(const FileDescriptor &file)
{
    const QByteArray text = QByteArray::number(::getpid()) + '\n' +
                            ::program_invocation_short_name + '\n' +
                            QSysInfo::machineHostName().toUtf8() + '\n';
    // It only helps those who read it; the lock holds without.
    if (::ftruncate(file.get(), 0) == 0)
        (void)!::pwrite(file.get(), text.constData(), static_cast<size_t>(text.size()), 0);
}

/// Opens the lock file of that path. Somebody else's may be only readable,
/// which is enough for locking it.
FileDescriptor openLockFile(const FileTarget &target, const QByteArray &path)
{
    constexpr int flags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    FileDescriptor file(::open(path.constData(), O_RDWR | O_CREAT | flags, 0666));
    if (!file && errno == EACCES) {
        file = FileDescriptor(::open(path.constData(), O_RDONLY | flags));
        if (!file)
            errno = EACCES;
    }
    if (!file)
        throw cannotWrite(target.shownPath(), errno);
    return file;
}

/// Whether the path still leads to the open file: its former holder may have
/// removed it since it was opened.
bool isStillThere(const FileDescriptor &file, const QByteArray &path)
{
    struct stat opened = {};
    struct stat found = {};
    return ::fstat(file.get(), &opened) == 0 && ::lstat(path.constData(), &found) == 0 &&
           std::tie(opened.st_dev, opened.st_ino) == std::tie(found.st_dev, found.st_ino);
}

} // namespace

FileLock::FileLock(const FileTarget &target)
    : m_path(target.folder() + '/' + target.sibling(".lock"))
{
    for (int tries = 0; tries < triesMax; ++tries) {
        m_file = openLockFile(target, m_path);
        if (::flock(m_file.get(), LOCK_EX | LOCK_NB) != 0) {
            if (errno == EWOULDBLOCK)
                throw locked(target.shownPath(), holder(m_file));
            if (!isWithoutLocks(errno))
                throw cannotWrite(target.shownPath(), errno);
        }
        if (isStillThere(m_file, m_path)) {
            writeHolder(m_file);
            return;
        }
    }
    throw locked(target.shownPath(), {});
}

FileLock::~FileLock()
{
    // Removed before it is unlocked, so that nobody's lock is removed but this.
    if (isStillThere(m_file, m_path))
        ::unlink(m_path.constData());
}

} // namespace kiv::storage::internal

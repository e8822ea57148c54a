// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/file_lock.h"

#include "storage/internal/faults.h"
#include "storage/internal/file_size_signal.h"

#include <QtCore/QFile>
#include <QtCore/QList>
#include <QtCore/QObject>
#include <QtCore/QScopeGuard>
#include <QtCore/QSysInfo>
#include <QtCore/QThread>

#include <algorithm>
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
/// Milliseconds until a lock that another holds is tried again.
constexpr unsigned long pause = 10;

/// On a file system without locks, files are used without a lock.
bool isWithoutLocks(int error) noexcept
{
    return error == ENOLCK || error == ENOSYS || error == EOPNOTSUPP || error == EINVAL;
}

/// The lines of the lock file, as QLockFile writes them: the number of a process and
/// two to four lines. Empty for other content.
QList<QByteArray> linesIn(const FileDescriptor &file)
{
    std::array<char, 1024> text{};
    const ssize_t length = ::pread(file.get(), text.data(), text.size(), 0);
    QList<QByteArray> lines = QByteArray(text.data(), std::max<ssize_t>(length, 0)).split('\n');
    const auto isDigit = [](char sign) { return sign >= '0' && sign <= '9'; };
    if (length == std::ssize(text) || lines.size() < 4 || lines.size() > 6 ||
        !lines.last().isEmpty() || lines.first().isEmpty() ||
        !std::ranges::all_of(lines.first(), isDigit))
        return {};
    return lines;
}

/// What the holder of the lock wrote, as "process 4711, kiv on host".
QString holder(const FileDescriptor &file)
{
    const QList<QByteArray> lines = linesIn(file);
    if (lines.isEmpty())
        return {};
    return QObject::tr("process %1, %2 on %3")
        .arg(QString::fromUtf8(lines[0]), QString::fromUtf8(lines[1]), QString::fromUtf8(lines[2]));
}

void writeHolder(const FileDescriptor &file)
{
    const NoFileSizeSignal noSignal;
    const QByteArray program = QByteArray(::program_invocation_short_name).replace('\n', ' ');
    const QByteArray text = QByteArray::number(::getpid()) + '\n' + program + '\n' +
                            QSysInfo::machineHostName().toUtf8() + '\n';
    // Only information for readers; the lock holds without it.
    if (::ftruncate(file.get(), 0) == 0 &&
        ::pwrite(file.get(), text.constData(), static_cast<size_t>(text.size()), 0) != text.size())
        (void)!::ftruncate(file.get(), 0);
}

bool isSameFile(const FileStamp &stamp, const struct stat &status) noexcept
{
    return std::tie(stamp.device, stamp.inode) == std::tie(status.st_dev, status.st_ino);
}

} // namespace

FileLock::FileLock(const FileTarget &target, std::chrono::milliseconds patience)
    : m_path(target.folder() + '/' + target.sibling(".lock")),
      m_end(std::chrono::steady_clock::now() + patience)
{
    auto nothingLeft = qScopeGuard([this] {
        if (m_isMade)
            ::unlink(m_path.constData());
    });
    for (int tries = 0; tries < triesMax; ++tries) {
        if (open(target) && lock(target)) {
            writeHolder(m_file);
            nothingLeft.dismiss();
            return;
        }
        m_isMade = false;
    }
    throw locked(target.shownPath(), {});
}

FileLock::~FileLock()
{
    // Removed before it is unlocked, so that no other lock is removed.
    remove();
}

void FileLock::remove() noexcept
{
    // A failed call is repeated once.
    struct stat found = {};
    if (::lstat(m_path.constData(), &found) != 0 && ::lstat(m_path.constData(), &found) != 0)
        return;
    if (isSameFile(m_stamp, found) && ::unlink(m_path.constData()) != 0)
        ::unlink(m_path.constData());
}

bool FileLock::open(const FileTarget &target)
{
    constexpr int flags = O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY;
    struct stat found = {};
    if (::lstat(m_path.constData(), &found) != 0) {
        if (errno != ENOENT)
            throw cannotWrite(target.shownPath(), errno);
        m_file =
            FileDescriptor(::open(m_path.constData(), O_RDWR | O_CREAT | O_EXCL | flags, 0666));
        m_isMade = static_cast<bool>(m_file);
        if (!m_file && errno != EEXIST)
            throw cannotWrite(target.shownPath(), errno);
        return m_isMade;
    }
    // Opening a device may do something to it.
    if (!S_ISREG(found.st_mode))
        throw notALock(target.shownPath(), QFile::decodeName(m_path));
    // Another user's file may be read-only, which is enough for locking it.
    m_file = FileDescriptor(::open(m_path.constData(), O_RDWR | flags));
    if (!m_file && errno == EACCES)
        m_file = FileDescriptor(::open(m_path.constData(), O_RDONLY | flags));
    if (!m_file && errno != ENOENT && errno != ELOOP)
        throw cannotWrite(target.shownPath(), errno);
    return static_cast<bool>(m_file);
}

bool FileLock::lock(const FileTarget &target)
{
    while (::flock(m_file.get(), LOCK_EX | LOCK_NB) != 0) {
        if (isWithoutLocks(errno))
            break;
        if (errno != EWOULDBLOCK)
            throw cannotWrite(target.shownPath(), errno);
        if (std::chrono::steady_clock::now() >= m_end) {
            m_isMade = false;
            throw locked(target.shownPath(), holder(m_file));
        }
        QThread::msleep(pause);
    }
    struct stat opened = {};
    struct stat found = {};
    if (::fstat(m_file.get(), &opened) != 0)
        throw cannotWrite(target.shownPath(), errno);
    m_stamp = FileStamp(opened);
    // Its former holder may have removed it since it was opened.
    if (::lstat(m_path.constData(), &found) != 0 && errno != ENOENT)
        throw cannotWrite(target.shownPath(), errno);
    if (!isSameFile(m_stamp, found))
        return false;
    if (!S_ISREG(opened.st_mode) || opened.st_nlink != 1 ||
        (opened.st_size > 0 && linesIn(m_file).isEmpty()))
        throw notALock(target.shownPath(), QFile::decodeName(m_path));
    return true;
}

} // namespace kiv::storage::internal

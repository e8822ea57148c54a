// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/version_folder.h"

#include "storage/internal/atomic_file_writer.h"
#include "storage/internal/faults.h"
#include "storage/internal/file_attributes.h"
#include "storage/internal/label_in_file.h"

#include <QtCore/QFile>
#include <QtCore/QObject>

#include <algorithm>
#include <array>
#include <memory>
#include <tuple>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/statvfs.h>

namespace kiv::storage::internal {
namespace {

constexpr QByteArrayView extension = ".budget";
/// The part of a file system that the former versions may fill.
constexpr qint64 partOfFileSystem = 50;

const QString &timeFormat()
{
    static const QString format = QStringLiteral("yyyy-MM-dd'T'HH-mm-ss.zzz'Z'");
    return format;
}

QByteArray nameOf(const VersionMark &mark)
{
    return mark.savedAt.toUTC().toString(timeFormat()).toLatin1() + '-' +
           QByteArray::number(mark.number) + extension.toByteArray();
}

/// The number and the time in the name of a version; nothing for another name.
std::optional<VersionMark> markInName(const QByteArray &name)
{
    VersionMark mark;
    const qsizetype dash = name.lastIndexOf('-');
    mark.savedAt = QDateTime::fromString(QString::fromLatin1(name.left(dash)), timeFormat());
    mark.savedAt.setTimeSpec(Qt::UTC);
    mark.number =
        name.mid(dash + 1).chopped(std::min(extension.size(), name.size() - dash - 1)).toLongLong();
    // There is one way to write it.
    if (!mark.savedAt.isValid() || mark.number < 1 || mark.number > VersionMark::numberMax ||
        nameOf(mark) != name)
        return std::nullopt;
    return mark;
}

/// Whether there can be no second name: the file system has none or is another one, or
/// the file is somebody else's or has very many.
bool isWithoutLinks(int error) noexcept
{
    return error == EPERM || error == EMLINK || error == EXDEV || isUnsupported(error);
}

} // namespace

VersionFolder::VersionFolder(const FileTarget &target, const KeyRing *keys)
    : m_target(target), m_keys(keys), m_path(target.folder() + '/' + target.sibling(".versions"))
{
    openFolder();
}

VersionFolder::~VersionFolder()
{
    if (m_isNew)
        drop();
    else if (m_isMade)
        ::rmdir(m_path.constData());
}

void VersionFolder::drop() noexcept
{
    ::unlinkat(m_folder.get(), m_keptName.constData(), 0);
    if (m_isMade)
        ::rmdir(m_path.constData());
}

void VersionFolder::openFolder()
{
    m_folder =
        FileDescriptor(::open(m_path.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!m_folder && errno == ENOENT)
        return;
    struct stat status = {};
    check(m_folder && ::fstat(m_folder.get(), &status) == 0);
    if (isStrange(status))
        throw strangeVersions(QFile::decodeName(m_path));
}

bool VersionFolder::isStrange(const struct stat &status) const
{
    const uid_t user = ::geteuid();
    if (user == 0 || status.st_uid == 0 || status.st_uid == user)
        return false;
    const QByteArray around = m_target.folder() + '/';
    return std::ranges::none_of(std::array{around, m_target.path()}, [&](const QByteArray &path) {
        struct stat owned = {};
        return ::stat(path.constData(), &owned) == 0 && owned.st_uid == status.st_uid;
    });
}

const std::vector<FormerVersion> &VersionFolder::versions()
{
    if (m_versions)
        return *m_versions;
    std::vector<FormerVersion> versions;
    if (m_folder) {
        // A descriptor of its own, which the list closes.
        const int list = ::openat(m_folder.get(), ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC);
        check(list >= 0);
        const std::unique_ptr<DIR, int (*)(DIR *)> entries(::fdopendir(list), ::closedir);
        if (!entries)
            ::close(list);
        check(entries != nullptr);
        errno = 0;
        while (const dirent *entry = ::readdir(entries.get())) {
            if (std::optional<FormerVersion> version = read(entry->d_name))
                versions.push_back(*std::move(version));
            errno = 0;
        }
        check(errno == 0);
        std::ranges::sort(versions, {}, [](const FormerVersion &version) {
            return std::tie(version.mark.number, version.name);
        });
    }
    return m_versions.emplace(std::move(versions));
}

std::optional<FormerVersion> VersionFolder::read(const QByteArray &name) const
{
    std::optional<VersionMark> mark = markInName(name);
    struct stat status = {};
    if (!mark || ::fstatat(m_folder.get(), name.constData(), &status, AT_SYMLINK_NOFOLLOW) != 0 ||
        !S_ISREG(status.st_mode))
        return std::nullopt;
    FormerVersion version{name, FileStamp(status), *mark};
    const FileDescriptor file = open(version);
    if (!file && errno == ENOENT)
        return std::nullopt;
    LabelInFile label = file ? labelIn(file, m_keys) : LabelInFile();
    version.isLocked = label.isLocked;
    if (label.mark) {
        version.hasLabel = true;
        version.mark = *std::move(label.mark);
        version.mark.number = mark->number;
    }
    return version;
}

FileDescriptor VersionFolder::open(const FormerVersion &version) const
{
    return FileDescriptor(::openat(m_folder.get(), version.name.constData(),
                                   O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
}

qint64 VersionFolder::highest()
{
    return versions().empty() ? 0 : versions().back().mark.number;
}

void VersionFolder::makeFolder()
{
    if (m_folder)
        return;
    m_isMade = ::mkdir(m_path.constData(), 0700) == 0;
    check(m_isMade || errno == EEXIST);
    openFolder();
    check(static_cast<bool>(m_folder));
    const FileDescriptor around(
        ::open(m_target.folder().isEmpty() ? "/" : m_target.folder().constData(),
               O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat file = {};
    check(around && ::lstat(m_target.path().constData(), &file) == 0);
    // Root saves for somebody else, who needs the folder then.
    if (m_isMade && file.st_uid != ::geteuid())
        (void)!::fchown(m_folder.get(), file.st_uid, static_cast<gid_t>(-1));
    check(::fsync(around.get()) == 0 || isUnsupported(errno));
}

void VersionFolder::keep(const VersionMark &mark, QByteArrayView bytes, bool isPassing)
{
    makeFolder();
    m_isPassing = isPassing;
    QByteArray name = nameOf(mark);
    if (!markInName(name)) { // a year that names cannot have
        VersionMark named;
        named.number = mark.number;
        named.savedAt = QDateTime::fromSecsSinceEpoch(0, Qt::UTC);
        name = nameOf(named);
    }
    const auto isSame = [&](const FormerVersion &version) {
        return version.name == name || (!mark.id.isEmpty() && version.mark.id == mark.id);
    };
    const auto found = std::ranges::find_if(versions(), isSame);
    struct stat status = {};
    check(::lstat(m_target.path().constData(), &status) == 0);
    const FileStamp stamp(status);
    if (found == versions().end()) {
        linkOrCopy(name, bytes);
        m_keptName = name;
        m_isNew = true;
        m_versions->push_back({name, stamp, mark, !mark.id.isEmpty()});
    } else {
        m_keptName = found->name;
        // It was undone to this version, or a save ended before its end. What is kept
        // is to be the file itself, with its owner and mode.
        if (found->stamp != stamp) {
            ::unlinkat(m_folder.get(), passingName, 0);
            linkOrCopy(passingName, bytes);
            check(::renameat(m_folder.get(), passingName, m_folder.get(), m_keptName.constData()) ==
                  0);
        }
    }
    if (!isPassing)
        check(::fsync(m_folder.get()) == 0 || isUnsupported(errno));
}

void VersionFolder::linkOrCopy(const QByteArray &name, QByteArrayView bytes)
{
    if (::linkat(AT_FDCWD, m_target.path().constData(), m_folder.get(), name.constData(), 0) == 0)
        return;
    check(isWithoutLinks(errno));
    copy(name, bytes);
}

void VersionFolder::copy(const QByteArray &name, QByteArrayView bytes)
{
    const FileTarget copied(QFile::decodeName(m_path + '/' + name));
    AtomicFileWriter(copied, std::nullopt).write(bytes);
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const FileDescriptor from(::open(m_target.path().constData(), flags));
    const FileDescriptor to(::open(copied.path().constData(), flags));
    if (!from || !to || !copyFileAttributes(from, to)) {
        const int cause = errno;
        ::unlink(copied.path().constData());
        errno = cause;
        check(false);
    }
}

bool VersionFolder::putBack() noexcept
{
    m_isNew = false;
    const bool isBack =
        !m_keptName.isEmpty() && ::renameat(m_folder.get(), m_keptName.constData(), AT_FDCWD,
                                            m_target.path().constData()) == 0;
    m_isMade = m_isMade && isBack; // then it is empty again
    return isBack;
}

void VersionFolder::settle() noexcept
{
    if (m_isNew && m_isPassing) {
        drop();
        std::erase_if(*m_versions,
                      [this](const FormerVersion &version) { return version.name == m_keptName; });
    }
    m_isNew = m_isMade = false;
}

void VersionFolder::thin(const QDateTime &now)
{
    if (!m_folder)
        return;
    std::vector<ThinnedVersion> thinned;
    for (const FormerVersion &version : versions())
        thinned.push_back({version.mark.number, version.mark.savedAt, version.mark.transactions,
                           version.stamp.size});
    ThinningLimits limits;
    struct statvfs system = {};
    if (::fstatvfs(m_folder.get(), &system) == 0 && system.f_blocks > 0)
        limits.bytes = static_cast<qint64>(system.f_blocks / partOfFileSystem * system.f_frsize);
    const std::set<qint64> going = toThin(std::move(thinned), now, limits);
    for (const FormerVersion &version : versions()) {
        // What was kept just now is what the next undo goes to.
        if (going.contains(version.mark.number) && version.name != m_keptName)
            check(::unlinkat(m_folder.get(), version.name.constData(), 0) == 0 || errno == ENOENT);
    }
}

void VersionFolder::check(bool wentWell) const
{
    if (!wentWell)
        throw cannotUseVersions(QFile::decodeName(m_path), errno);
}

} // namespace kiv::storage::internal

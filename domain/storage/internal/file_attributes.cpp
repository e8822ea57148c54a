// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/file_attributes.h"

#include <QtCore/QByteArray>
#include <QtCore/QList>

#include <sys/stat.h>
#include <sys/xattr.h>

namespace kiv::storage::internal {
namespace {

/// Calls `get(buffer, size)` twice, as extended attributes need: for the size, then
/// for the content.
template <typename Get>
bool fetch(QByteArray &buffer, Get get)
{
    for (;;) {
        const ssize_t size = get(nullptr, 0);
        if (size < 0)
            return false;
        buffer.resize(size);
        const ssize_t got = size == 0 ? 0 : get(buffer.data(), static_cast<size_t>(size));
        if (got >= 0) {
            buffer.truncate(got);
            return true;
        }
        if (errno != ERANGE) // it grew in between
            return false;
    }
}

constexpr const char *accessListName = "system.posix_acl_access";

/// Clears `keepsGroup` when the file stays with the group that it has.
bool copyOwnerAndMode(const struct stat &from, const FileDescriptor &to, bool &keepsGroup)
{
    struct stat now = {};
    if (::fstat(to.get(), &now) != 0)
        return false;
    mode_t mode = from.st_mode & 07777U;
    if (now.st_gid != from.st_gid && ::fchown(to.get(), static_cast<uid_t>(-1), from.st_gid) != 0) {
        if (errno != EPERM)
            return false;
        // The group's rights would go to another group.
        keepsGroup = false;
        mode = (mode & ~070U) | (mode & 007U) << 3U;
    }
    if (now.st_uid != from.st_uid && ::fchown(to.get(), from.st_uid, static_cast<gid_t>(-1)) != 0 &&
        errno != EPERM)
        return false;
    return ::fchmod(to.get(), mode) == 0;
}

bool copyAttribute(const QByteArray &name, const FileDescriptor &from, const FileDescriptor &to)
{
    QByteArray value;
    const bool isRead = fetch(value, [&](char *buffer, size_t size) {
        return ::fgetxattr(from.get(), name.constData(), buffer, size);
    });
    if (isRead && ::fsetxattr(to.get(), name.constData(), value.constData(),
                              static_cast<size_t>(value.size()), 0) == 0)
        return true;
    const bool isSystems = name.startsWith("security.") || name.startsWith("trusted.");
    return isSystems || (!isRead && errno == ENODATA); // gone meanwhile
}

} // namespace

bool copyFileAttributes(const FileDescriptor &from, const FileDescriptor &to)
{
    struct stat status = {};
    bool keepsGroup = true;
    if (::fstat(from.get(), &status) != 0 || !copyOwnerAndMode(status, to, keepsGroup))
        return false;
    // The folder may have given the new file a list that the old one lacks.
    ::fremovexattr(to.get(), accessListName);
    QByteArray names;
    if (!fetch(names,
               [&](char *buffer, size_t size) { return ::flistxattr(from.get(), buffer, size); }))
        return errno == EOPNOTSUPP || errno == ENOSYS;
    // An access control list sets the mode's group bits, so it comes after the
    // mode; it also speaks of the group.
    const QList<QByteArray> list = names.split('\0');
    return std::ranges::all_of(list, [&](const QByteArray &name) {
        return name.isEmpty() || (name == accessListName && !keepsGroup) ||
               copyAttribute(name, from, to);
    });
}

} // namespace kiv::storage::internal

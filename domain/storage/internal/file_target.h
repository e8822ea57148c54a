// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace kiv::storage::internal {

/// Where a file really is: behind all symbolic links, in a folder that exists.
/// The file itself need not exist; a link that leads nowhere leads to the file
/// that will be made there.
class FileTarget {
public:
    /// Throws StorageError when no file can have this name, or its folder does
    /// not exist or cannot be reached.
    explicit FileTarget(const QString &filePathName);

    /// As the user wrote it, for messages.
    [[nodiscard]] const QString &shownPath() const noexcept { return m_shownPath; }
    /// The folder's canonical path.
    [[nodiscard]] const QByteArray &folder() const noexcept { return m_folder; }
    /// The file's name in the folder.
    [[nodiscard]] const QByteArray &name() const noexcept { return m_name; }
    [[nodiscard]] QByteArray path() const { return m_folder + '/' + m_name; }

    /// The name of a file that belongs to this one and stands next to it:
    /// "home.budget" and ".lock" give "home.budget.lock". A name that would get
    /// too long for a file system is replaced by a hash of it.
    [[nodiscard]] QByteArray sibling(const QByteArray &suffix) const;
    /// The same, with a leading point.
    [[nodiscard]] QByteArray hiddenSibling(const QByteArray &suffix) const;

    [[nodiscard]] bool isSameFile(const FileTarget &other) const noexcept
    {
        return m_folder == other.m_folder && m_name == other.m_name;
    }

private:
    [[nodiscard]] QByteArray stem() const;

    QString m_shownPath;
    QByteArray m_folder;
    QByteArray m_name;
};

/// The backups that the first edition kept.
inline constexpr unsigned backupsMax = 5;
/// The name in its folder of a file's backup; number 1 is the newest.
[[nodiscard]] QByteArray backupName(const FileTarget &target, unsigned number);

} // namespace kiv::storage::internal

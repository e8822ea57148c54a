// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/file_content.h"
#include "storage/internal/file_descriptor.h"
#include "storage/internal/thinning.h"
#include "storage/version_mark.h"

#include <vector>

namespace kiv::storage {
class KeyRing;
}

namespace kiv::storage::internal {

/// How a version is called while it takes the place of a kept one.
inline constexpr const char *passingName = ".keeping";

/// A file in the folder of former versions, known from its name and its label.
struct FormerVersion {
    QByteArray name;
    FileStamp stamp;
    /// Its number is that of the name. Without a label it has no id, and the name's time.
    VersionMark mark;
    bool hasLabel = false;
    bool isLocked = false; ///< whether it is encrypted, and no key opens it
};

/// The folder of a budget file's former versions, which need not exist. It holds whole
/// budget files, named by the time of the save and the number of the version, such as
/// "2026-03-31T12-00-00.123Z-42.budget". Links and files with other names are no
/// versions and stay as they are.
///
/// Whoever writes to it holds the budget file's lock. All errors are StorageError
/// CannotWrite with the folder's path.
class VersionFolder {
public:
    /// Opens it, if there is one. Throws when something else has its name, when it
    /// belongs to a stranger, and when it cannot be opened. A stranger is neither the
    /// user nor root nor the owner of the budget file or of the folder around it; root
    /// knows no strangers. With `keys` the labels of encrypted versions are read.
    VersionFolder(const FileTarget &target, const KeyRing *keys);
    /// Takes back what was kept and not settled.
    ~VersionFolder();
    VersionFolder(const VersionFolder &) = delete;
    VersionFolder &operator=(const VersionFolder &) = delete;

    /// The versions by their numbers, read once. Throws when the folder cannot be read.
    /// What vanishes meanwhile is left out.
    [[nodiscard]] const std::vector<FormerVersion> &versions();
    /// The highest number in it; 0 without versions.
    [[nodiscard]] qint64 highest();
    [[nodiscard]] FileDescriptor open(const FormerVersion &version) const;
    [[nodiscard]] const QByteArray &path() const noexcept { return m_path; }

    /// Keeps the budget file, which is about to be replaced: under a second name, or as a
    /// copy of its bytes where there can be no links. Makes the folder when needed.
    /// A passing version is only there to be put back. Throws when it cannot be kept.
    void keep(const VersionMark &mark, QByteArrayView bytes, bool isPassing);
    /// Puts the version that was kept in the budget file's place again. False when that
    /// fails; then it stays kept.
    bool putBack() noexcept;
    /// The new version is in its place: what was kept stays kept, unless it is passing.
    void settle() noexcept;
    /// Removes versions as toThin() says. Throws when one cannot be removed.
    void thin(const QDateTime &now);

private:
    void openFolder();
    void makeFolder();
    [[nodiscard]] bool isStrange(const struct stat &status) const;
    [[nodiscard]] std::optional<FormerVersion> read(const QByteArray &name) const;
    void linkOrCopy(const QByteArray &name, QByteArrayView bytes);
    void copy(const QByteArray &name, QByteArrayView bytes);
    void drop() noexcept;
    void check(bool wentWell) const;

    const FileTarget &m_target;
    const KeyRing *m_keys;
    QByteArray m_path;
    FileDescriptor m_folder;
    std::optional<std::vector<FormerVersion>> m_versions;
    QByteArray m_keptName;    ///< of the file until now
    bool m_isNew = false;     ///< whether it was kept just now
    bool m_isMade = false;    ///< whether the folder was made just now
    bool m_isPassing = false; ///< whether it is kept for putting it back only
};

} // namespace kiv::storage::internal

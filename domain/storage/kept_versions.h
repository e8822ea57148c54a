// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/version_mark.h"

#include <vector>

namespace kiv::storage {

class KeyRing;

/// A version that can be gone back to, or the budget file itself.
struct KIV_STORAGE_EXPORT KeptVersion {
    /// How much a version tells about itself.
    enum class Telling : std::uint8_t {
        Everything = 1,
        /// A file of the first edition has an id only, which follows from its bytes. Its
        /// ancestors are the backups that the first edition kept.
        FirstEdition = 2,
        /// It is no whole budget file; it has the number and the time of its name.
        Nothing = 3,
        /// It is encrypted, and no key was given that opens it; the same is known of it.
        Locked = 4,
    };

    /// Its number, or "backup-1" to "backup-5" for the backups of the first edition, of
    /// which the first is the newest.
    QString name;
    /// Where it lies.
    QString path;
    /// What it tells about itself; 0 is the number of what was never given one.
    VersionMark mark;
    /// How much of that it tells.
    Telling telling = Telling::Nothing;
    /// In bytes.
    qint64 size = 0;
    /// Whether it is the budget file itself.
    bool isFile = false;
};

/// The budget file, if it is there, then its former versions, the highest number first,
/// then the backups of the first edition. Only the end of each is read, so a damaged one
/// may be among them. The version in the file may be kept as well, and then is there
/// twice, with one id. Needs no lock: what is removed meanwhile is left out. Encrypted ones
/// tell about themselves if `keys` open them.
///
/// Throws StorageError when the folder of the file does not exist, and when the folder of
/// the former versions cannot be used.
[[nodiscard]] KIV_STORAGE_EXPORT std::vector<KeptVersion>
keptVersions(const QString &filePathName, const KeyRing *keys = nullptr);

} // namespace kiv::storage

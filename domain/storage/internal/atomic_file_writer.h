// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/file_content.h"
#include "storage/internal/file_descriptor.h"

namespace kiv::storage::internal {

/// Puts a new version of a file in the place of the old one: at every moment,
/// also when the process or the machine stops, the name leads to the whole old
/// version or to the whole new one.
///
/// The new version is written to a file without a name (or with a name of its
/// own where the file system wants one), synced, read back, and given the old
/// one's owner, mode and extended attributes. Then it takes the name, and the
/// folder is synced. The old version stays as the first backup.
///
/// The caller holds the file's lock. The next writer removes what a stopped one
/// has left.
class AtomicFileWriter {
public:
    /// `replaced` is the version that is to be replaced, nothing when there
    /// should be none.
    AtomicFileWriter(const FileTarget &target, std::optional<FileStamp> replaced);
    /// Removes the temporary files.
    ~AtomicFileWriter();
    AtomicFileWriter(const AtomicFileWriter &) = delete;
    AtomicFileWriter &operator=(const AtomicFileWriter &) = delete;

    /// Writes the new version and keeps up to `backups` old ones, once. Throws
    /// StorageError; then the old version is in its place.
    void write(QByteArrayView bytes, unsigned backups);

private:
    void openFolder();
    void checkSticky() const;
    void clearLeftovers(unsigned backups);
    void createTemporary();
    void writeAll(QByteArrayView bytes);
    void takeOverAttributes();
    void verify(QByteArrayView bytes);
    void nameTemporary();
    void keepPrevious();
    void checkUnchanged();
    void syncFolder();
    void turnPreviousIntoBackup(unsigned backups);

    /// Throws CannotWrite for errno unless the call went well; `made` is the name
    /// that it was to make, if any.
    void check(bool wentWell, const QByteArray &made = {}) const;
    [[nodiscard]] std::optional<FileStamp> stampOf(const QByteArray &name) const;

    const FileTarget &m_target;
    std::optional<FileStamp> m_replaced;
    QByteArray m_temporaryName;
    QByteArray m_previousName;
    FileDescriptor m_folder;
    FileDescriptor m_temporary;
    bool m_hasTemporaryName = false;
    bool m_hasPreviousName = false;
};

} // namespace kiv::storage::internal

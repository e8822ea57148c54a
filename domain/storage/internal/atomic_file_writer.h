// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/file_content.h"
#include "storage/internal/file_descriptor.h"

namespace kiv::storage::internal {

/// Keeps the version of a file that is replaced.
class VersionKeeper {
public:
    virtual ~VersionKeeper() = default;
    VersionKeeper(const VersionKeeper &) = delete;
    VersionKeeper &operator=(const VersionKeeper &) = delete;

    /// Called before the file is replaced. Throws StorageError when it cannot be kept;
    /// then it is not replaced.
    virtual void keep() = 0;
    /// Called when it was replaced, but not for good: makes the version that was kept the
    /// file again, if it can.
    virtual void putBack() noexcept = 0;

protected:
    VersionKeeper() = default;
};

/// Puts a new version of a file in the place of the old one: at every moment,
/// also when the process or the machine stops, the name leads to the whole old
/// version or to the whole new one.
///
/// The new version is written to a file without a name (or with a name of its
/// own where the file system wants one), synced, read back, and given the old
/// one's owner, mode and extended attributes. The old version is kept, if somebody keeps
/// it. Then the new one takes the name, and the folder is synced.
///
/// The caller holds the file's lock. The next writer removes what a stopped one
/// has left.
class AtomicFileWriter {
public:
    /// `replaced` is the version that is to be replaced, nothing when there
    /// should be none.
    AtomicFileWriter(const FileTarget &target, std::optional<FileStamp> replaced);
    /// Removes the temporary file.
    ~AtomicFileWriter();
    AtomicFileWriter(const AtomicFileWriter &) = delete;
    AtomicFileWriter &operator=(const AtomicFileWriter &) = delete;

    /// Writes the new version, once. Throws StorageError; then the old version is in its
    /// place, unless the folder cannot be synced and nobody kept the old one.
    void write(QByteArrayView bytes, VersionKeeper *keeper = nullptr);

private:
    void openFolder();
    void checkSticky() const;
    void createTemporary();
    void writeAll(QByteArrayView bytes);
    void takeOverAttributes();
    void verify(QByteArrayView bytes);
    void nameTemporary();
    void checkUnchanged();
    void syncFolder(VersionKeeper *keeper);

    /// Throws CannotWrite for errno unless the call went well; `made` is the name
    /// that it was to make, if any.
    void check(bool wentWell, const QByteArray &made = {}) const;
    [[nodiscard]] std::optional<FileStamp> stampOf(const QByteArray &name) const;

    const FileTarget &m_target;
    std::optional<FileStamp> m_replaced;
    QByteArray m_temporaryName;
    FileDescriptor m_folder;
    FileDescriptor m_temporary;
    bool m_hasTemporaryName = false;
};

} // namespace kiv::storage::internal

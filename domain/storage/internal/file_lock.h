// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/file_content.h"
#include "storage/internal/file_descriptor.h"

#include <chrono>

namespace kiv::storage::internal {

/// Locks a file against every other FileLock, in this and in other processes. The
/// lock is the system's advisory lock on a file next to the locked one, so it ends
/// with its process, however that ends.
///
/// The lock file holds what QLockFile writes (process, program and host), so
/// programs which use that class respect it too. Since a lock file is overwritten
/// and removed, a file with other content is not taken for one.
class FileLock {
public:
    /// Throws StorageError: Locked when another has the lock, NotOurs when what has
    /// the lock file's name is none, CannotWrite when the lock file cannot be made.
    /// While another has it, this waits for that long.
    explicit FileLock(const FileTarget &target, std::chrono::milliseconds patience = {});
    ~FileLock();
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;

private:
    /// False when another took the name, or gave it back, just then.
    [[nodiscard]] bool open(const FileTarget &target);
    [[nodiscard]] bool lock(const FileTarget &target);
    /// Removes the lock file, if the path still leads to it.
    void remove() noexcept;

    QByteArray m_path;
    std::chrono::steady_clock::time_point m_end; ///< of the patience
    FileDescriptor m_file;
    FileStamp m_stamp;
    bool m_isMade = false; ///< by this lock
};

} // namespace kiv::storage::internal

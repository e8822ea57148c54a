// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/file_descriptor.h"
#include "storage/internal/file_target.h"

namespace kiv::storage::internal {

/// Keeps every other FileLock, in this and in other processes, from the same
/// file for as long as it lives. The lock is the system's advisory lock on a
/// file that stands next to the locked one, so that it ends with its process,
/// however that ends.
///
/// The lock file holds what QLockFile writes (process, program and host), so
/// that programs which use that class keep away as well.
class FileLock {
public:
    /// Throws StorageError: Locked when another has the lock, CannotWrite when
    /// the lock file cannot be made.
    explicit FileLock(const FileTarget &target);
    ~FileLock();
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;

private:
    QByteArray m_path;
    FileDescriptor m_file;
};

} // namespace kiv::storage::internal

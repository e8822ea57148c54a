// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/file_target.h"

#include <QtCore/QByteArray>

#include <optional>

#include <sys/stat.h>

namespace kiv::storage::internal {

/// What distinguishes one version of a file from another without reading it.
struct FileStamp {
    dev_t device = 0;
    ino_t inode = 0;
    off_t size = 0;
    time_t seconds = 0;
    long nanoseconds = 0;

    FileStamp() = default;
    explicit FileStamp(const struct stat &status) noexcept;
    friend bool operator==(const FileStamp &, const FileStamp &) noexcept = default;
};

/// A hash by which this process recognises a content.
struct Fingerprint {
    qsizetype size = 0;
    std::size_t hash = 0;

    Fingerprint() = default;
    explicit Fingerprint(QByteArrayView bytes) noexcept;
    friend bool operator==(const Fingerprint &, const Fingerprint &) noexcept = default;
};

struct FileContent {
    QByteArray bytes;
    FileStamp stamp;
};

/// Reads the file whole; nothing when there is none. Throws StorageError when
/// it is no regular file, larger than `sizeMax`, or cannot be read. Never
/// waits for a pipe and never opens a device.
[[nodiscard]] std::optional<FileContent> readFile(const FileTarget &target, qsizetype sizeMax);

} // namespace kiv::storage::internal

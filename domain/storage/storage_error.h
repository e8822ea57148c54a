// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/export.h"

#include "foundation/debug_stream.h"
#include "foundation/error.h"

#include <cstdint>
#include <iosfwd>

namespace kiv::storage {

/// Why a file could not be loaded or stored.
enum class StorageFailure : std::uint8_t {
    NoName = 1,             ///< no file was chosen, or its name is none that a file can have
    NotFound = 2,           ///< there is no such file, or no such folder to store it in
    NotAFile = 3,           ///< a folder, a device, a pipe or a socket
    CannotRead = 4,         ///< the system refuses to read it
    TooLarge = 5,           ///< larger than any such file may be
    NotOurs = 6,            ///< a file of another kind
    Newer = 7,              ///< written by a newer version
    Damaged = 8,            ///< of the right kind, but not as it was written
    Locked = 9,             ///< in use by another program
    ChangedOnDisk = 10,     ///< changed by another program since it was read
    CannotWrite = 11,       ///< the system refuses to write it, for instance for want of space
    CannotHold = 12,        ///< the data has something that such a file cannot hold
    PassphraseNeeded = 13,  ///< encrypted, and no passphrase was given that opens it
    PassphraseWrong = 14,   ///< encrypted with another passphrase
    PassphraseRefused = 15, ///< nothing can be encrypted with such a passphrase
    TooLittleMemory = 16,   ///< a key cannot be made from a passphrase
};

KIV_STORAGE_EXPORT std::ostream &operator<<(std::ostream &out, StorageFailure failure);
using foundation::operator<<;

/// A file that could not be loaded or stored. The message is one sentence that
/// names the file and the reason.
class KIV_STORAGE_EXPORT StorageError final : public foundation::Error {
public:
    /// With what the user is told, the file, and the error behind it, if any.
    StorageError(StorageFailure failure, QString filePathName, const QString &message,
                 const std::exception &cause = std::exception());
    StorageError(const StorageError &) noexcept;
    ~StorageError() override;

    /// What kind of failure it was.
    [[nodiscard]] StorageFailure failure() const noexcept { return m_failure; }
    /// The file that could not be read or written.
    [[nodiscard]] const QString &filePathName() const noexcept { return m_filePathName; }

private:
    StorageFailure m_failure;
    QString m_filePathName;
};

} // namespace kiv::storage

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/encrypted_file.h"
#include "storage/internal/file_target.h"

#include <QtCore/QStringList>

namespace kiv::storage {
class KeyRing;
}

namespace kiv::storage::internal {

/// The budget file encrypted, and opened once as a test: what could not be opened again must
/// not be saved. Throws ContentFault when it would be too large.
[[nodiscard]] QByteArray encryptedSafely(QByteArrayView file, const Encryption &encryption);

/// Gives all former versions of a budget file this encryption, or none, each in one step: a
/// process that is killed leaves it with either. The next call goes on where it was. What
/// has it already is not written again.
///
/// Answers with the paths of those that are damaged or under a key that is not in `keys`.
/// They stay as they are. Throws StorageError when one cannot be read or written.
[[nodiscard]] QStringList encryptAlike(const FileTarget &target,
                                       const std::optional<Encryption> &encryption,
                                       const KeyRing *keys);

} // namespace kiv::storage::internal

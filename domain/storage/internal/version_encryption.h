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
/// Answers with the paths of those that stay as they are: damaged, under a key that is not in
/// `keys`, too large, or not to be written; or with that of their folder, if it cannot be used.
[[nodiscard]] QStringList encryptAlike(const FileTarget &target,
                                       const std::optional<Encryption> &encryption,
                                       const KeyRing *keys);

/// Whether the file begins as an encrypted one.
[[nodiscard]] bool isEncrypted(const QString &path);

} // namespace kiv::storage::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/encrypted_file.h"

#include <QtCore/QString>

#include <optional>

namespace kiv::storage {
class KeyRing;
}

namespace kiv::storage::internal {

/// A budget file's bytes, as they are in the clear.
struct OpenedContent {
    QByteArray bytes;
    std::optional<Encryption> encryption; ///< nothing for a file that was in the clear
};

/// The bytes of a budget file of either kind, which begin as those of a budget; what follows
/// may be damaged. Without `keys` no encrypted file is opened. Throws StorageError for a file
/// of another kind, PassphraseNeeded, and Damaged for an encrypted one that is not as it was
/// written.
[[nodiscard]] OpenedContent opened(const QByteArray &bytes, const KeyRing *keys,
                                   const QString &path);
/// The same for an encrypted file. Throws ContentFault where the other one throws Damaged.
[[nodiscard]] OpenedContent decrypted(const QByteArray &bytes, const KeyRing *keys,
                                      const QString &path);

} // namespace kiv::storage::internal

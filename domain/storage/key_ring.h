// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/passphrase.h"

#include <optional>

namespace kiv::storage {

namespace internal {
class EncryptedFile;
struct Encryption;
} // namespace internal

/// The keys of encrypted budget files that a program was given passphrases for. A budget and
/// its former versions have one key, so each passphrase is needed once. Any thread may use it.
///
/// A program with a key on the ring leaves no core dump when it crashes.
class KIV_STORAGE_EXPORT KeyRing {
public:
    /// What it costs to make a key from a new passphrase.
    enum class Cost : std::uint8_t {
        Full = 1, ///< 64 MiB of memory and three passes of Argon2id
        Small = 2 ///< next to nothing, for budgets that hide nothing
    };

    /// An empty ring.
    explicit KeyRing(Cost cost = Cost::Full);
    ~KeyRing();
    KeyRing(const KeyRing &) = delete;
    KeyRing &operator=(const KeyRing &) = delete;

    /// Whether this is an encrypted budget file that no key here opens. False for what is no
    /// such file, or cannot be read.
    [[nodiscard]] bool isLocked(const QString &path) const;
    /// Throws StorageError PassphraseNeeded if it isLocked().
    void require(const QString &path) const;
    /// Takes the key of this file. Throws StorageError PassphraseWrong, Damaged,
    /// TooLittleMemory, and what reading throws; nothing for a file that is not encrypted.
    void unlock(const QString &path, const Passphrase &passphrase);

    /// The encryption of this file, if a key here opens it.
    [[nodiscard]] std::optional<internal::Encryption>
    encryptionOf(const internal::EncryptedFile &file) const;
    /// An encryption with this passphrase: of the same key as `present`, or of a new one.
    /// Throws StorageError TooLittleMemory.
    [[nodiscard]] internal::Encryption encryptionWith(const Passphrase &passphrase,
                                                      const internal::Encryption *present,
                                                      const QString &path);

private:
    struct Keys;

    void add(const internal::Encryption &encryption);

    Cost m_cost;
    std::unique_ptr<Keys> m_keys;
};

} // namespace kiv::storage

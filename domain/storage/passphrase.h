// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/export.h"

#include <QtCore/QString>

#include <memory>

namespace kiv::storage {

namespace internal {
class Secret;
}

/// The words with which a budget file is encrypted: 1 to 65,536 bytes.
///
/// Texts that look alike are one passphrase: they are compared in Unicode's composed form
/// (NFC), with each kind of space as a plain one, as RFC 8265 has it ("OpaqueString"). Bytes
/// that are no UTF-8 are taken as they are.
class KIV_STORAGE_EXPORT Passphrase {
public:
    /// What a user typed. Throws StorageError PassphraseRefused when it is empty or too long.
    explicit Passphrase(const QString &typed);
    /// The same as bytes.
    [[nodiscard]] static Passphrase ofBytes(QByteArrayView bytes);
    /// The content of a file or a pipe, without a line break at its end. Throws StorageError
    /// when it cannot be read, and as the others do.
    [[nodiscard]] static Passphrase inFile(const QString &path);

    /// As they go into the key. They lie in memory that is not swapped out where the system
    /// allows that, and is overwritten at the end.
    [[nodiscard]] QByteArrayView bytes() const noexcept;
    /// How many characters a user sees, at most; a measure of how hard it is to guess.
    [[nodiscard]] qsizetype length() const noexcept { return m_length; }

    /// The longest, in bytes.
    static constexpr qsizetype sizeMax = 65'536;

private:
    Passphrase() = default;
    void keep(QByteArrayView bytes);

    std::shared_ptr<const internal::Secret> m_bytes;
    qsizetype m_length = 0;
};

} // namespace kiv::storage

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>

#include <nettle/sha2.h>

namespace kiv::storage::internal {

/// The SHA-256 of bytes that are added one after the other. Nettle's, because it uses
/// the processor's SHA instructions.
class Sha256 {
public:
    static constexpr qsizetype size = SHA256_DIGEST_SIZE;

    Sha256() noexcept { sha256_init(&m_context); }
    void add(QByteArrayView bytes) noexcept
    {
        sha256_update(&m_context, static_cast<std::size_t>(bytes.size()),
                      reinterpret_cast<const std::uint8_t *>(bytes.data()));
    }
    /// The digest; nothing can be added after it.
    [[nodiscard]] QByteArray result()
    {
        QByteArray digest(size, Qt::Uninitialized);
        sha256_digest(&m_context, static_cast<std::size_t>(size),
                      reinterpret_cast<std::uint8_t *>(digest.data()));
        return digest;
    }

private:
    sha256_ctx m_context;
};

} // namespace kiv::storage::internal

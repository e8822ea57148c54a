// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/secret.h"

#include <array>
#include <cstdint>
#include <memory>

namespace kiv::storage {
class Passphrase;
}

namespace kiv::storage::internal {

/// What it costs to make a key from a passphrase, with Argon2id (RFC 9106): each try of
/// somebody who guesses costs as much.
struct KeyCost {
    std::uint32_t passes = 3;
    std::uint64_t memory = std::uint64_t{64} << 20; ///< in bytes
};

/// A file key, wrapped with a key from a passphrase. These are bytes of the file as they
/// stand; the same passphrase gives other ones each time.
struct Wrap {
    static constexpr qsizetype size = 100;
    std::array<char, size> bytes{};

    friend bool operator==(const Wrap &, const Wrap &) noexcept = default;
};

/// With what a file is encrypted. All versions of a budget have one key, so a new passphrase
/// is a new wrap only.
struct Encryption {
    Wrap wrap;
    std::shared_ptr<const Secret> key;
};

/// A new file key under a passphrase. Throws as wrapped().
[[nodiscard]] Encryption newEncryption(const Passphrase &passphrase, const KeyCost &cost);
/// The key under this passphrase. Throws TooLittleMemory.
[[nodiscard]] Encryption wrapped(std::shared_ptr<const Secret> key, const Passphrase &passphrase,
                                 const KeyCost &cost);

/// Want of memory for making a key from a passphrase.
class TooLittleMemory final : public std::bad_alloc {
public:
    explicit TooLittleMemory(std::uint64_t memory) noexcept : m_memory(memory) {}
    /// How much is needed, in bytes.
    [[nodiscard]] std::uint64_t memory() const noexcept { return m_memory; }

private:
    std::uint64_t m_memory;
};

/// The key in the wrap; null when it is under another passphrase. Throws TooLittleMemory.
[[nodiscard]] std::shared_ptr<const Secret> unwrapped(const Wrap &wrap,
                                                      const Passphrase &passphrase);
/// Throws ContentFault when the wrap asks for more memory or time than any file may.
void requireAffordable(const Wrap &wrap);

} // namespace kiv::storage::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/file_key.h"

#include "storage/internal/faults.h"

#include "storage/passphrase.h"

#include <QtCore/QtEndian>

#include <sodium.h>

namespace kiv::storage::internal {
namespace {

// The offsets in a wrap.
constexpr std::size_t passesAt = 0;
constexpr std::size_t memoryAt = 4;
constexpr std::size_t saltAt = 12;
constexpr std::size_t nonceAt = 28;
constexpr std::size_t keyAt = 52;

constexpr std::size_t keySize = crypto_secretstream_xchacha20poly1305_KEYBYTES;
static_assert(keyAt - nonceAt == crypto_aead_xchacha20poly1305_ietf_NPUBBYTES &&
              nonceAt - saltAt == crypto_pwhash_argon2id_SALTBYTES &&
              keyAt + keySize + crypto_aead_xchacha20poly1305_ietf_ABYTES == Wrap::size);

// A file that asks for more would only keep the machine busy.
constexpr std::uint64_t memoryMin = crypto_pwhash_argon2id_MEMLIMIT_MIN;
constexpr std::uint64_t memoryMax = std::uint64_t{256} << 20;
constexpr std::uint32_t passesMax = 16;

unsigned char *at(Wrap &wrap, std::size_t offset) noexcept
{
    return reinterpret_cast<unsigned char *>(wrap.bytes.data() + offset);
}

const unsigned char *at(const Wrap &wrap, std::size_t offset) noexcept
{
    return reinterpret_cast<const unsigned char *>(wrap.bytes.data() + offset);
}

KeyCost costOf(const Wrap &wrap) noexcept
{
    return {qFromBigEndian<quint32>(at(wrap, passesAt)),
            qFromBigEndian<quint64>(at(wrap, memoryAt))};
}

/// What a wrapped key holds on to: nobody can change the salt or the cost beneath it.
QByteArrayView boundTo(const Wrap &wrap) noexcept
{
    return QByteArrayView(wrap.bytes).first(nonceAt);
}

Secret keyFrom(const Passphrase &passphrase, const Wrap &wrap)
{
    const KeyCost cost = costOf(wrap);
    Secret key(keySize);
    if (crypto_pwhash(key.data(), keySize, passphrase.bytes().data(),
                      static_cast<unsigned long long>(passphrase.bytes().size()), at(wrap, saltAt),
                      cost.passes, cost.memory, crypto_pwhash_ALG_ARGON2ID13) != 0)
        throw TooLittleMemory(cost.memory);
    return key;
}

} // namespace

void requireAffordable(const Wrap &wrap)
{
    const KeyCost cost = costOf(wrap);
    if (cost.passes < 1 || cost.passes > passesMax || cost.memory < memoryMin ||
        cost.memory > memoryMax)
        throw keyTooCostly(cost.memory >> 20, cost.passes);
}

Encryption wrapped(std::shared_ptr<const Secret> key, const Passphrase &passphrase,
                   const KeyCost &cost)
{
    readyCiphers();
    Wrap wrap;
    qToBigEndian(cost.passes, at(wrap, passesAt));
    qToBigEndian(cost.memory, at(wrap, memoryAt));
    randombytes_buf(at(wrap, saltAt), nonceAt - saltAt);
    randombytes_buf(at(wrap, nonceAt), keyAt - nonceAt);
    const Secret wrapping = keyFrom(passphrase, wrap);
    const QByteArrayView bound = boundTo(wrap);
    crypto_aead_xchacha20poly1305_ietf_encrypt(
        at(wrap, keyAt), nullptr, key->data(), keySize,
        reinterpret_cast<const unsigned char *>(bound.data()),
        static_cast<unsigned long long>(bound.size()), nullptr, at(wrap, nonceAt), wrapping.data());
    return {wrap, std::move(key)};
}

Encryption newEncryption(const Passphrase &passphrase, const KeyCost &cost)
{
    Secret key(keySize);
    randombytes_buf(key.data(), keySize);
    return wrapped(std::make_shared<const Secret>(std::move(key)), passphrase, cost);
}

std::shared_ptr<const Secret> unwrapped(const Wrap &wrap, const Passphrase &passphrase)
{
    requireAffordable(wrap);
    const Secret wrapping = keyFrom(passphrase, wrap);
    Secret key(keySize);
    const QByteArrayView bound = boundTo(wrap);
    if (crypto_aead_xchacha20poly1305_ietf_decrypt(
            key.data(), nullptr, nullptr, at(wrap, keyAt), Wrap::size - keyAt,
            reinterpret_cast<const unsigned char *>(bound.data()),
            static_cast<unsigned long long>(bound.size()), at(wrap, nonceAt), wrapping.data()) != 0)
        return nullptr;
    return std::make_shared<const Secret>(std::move(key));
}

} // namespace kiv::storage::internal

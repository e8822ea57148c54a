// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/encrypted_file.h"

#include "storage/internal/faults.h"
#include "storage/internal/label.h"
#include "storage/internal/sha256.h"

#include <QtCore/QtEndian>

#include <algorithm>

#include <sodium.h>

namespace kiv::storage::internal {
namespace {

constexpr quint32 form = 1;

// The offsets in the header.
constexpr qsizetype formAt = 16;
constexpr qsizetype wrapAt = 20;
constexpr qsizetype streamHeaderAt = wrapAt + Wrap::size;
constexpr qsizetype labelSizeAt =
    streamHeaderAt + qsizetype{crypto_secretstream_xchacha20poly1305_HEADERBYTES};
constexpr qsizetype digestAt = labelSizeAt + 8;
static_assert(digestAt + Sha256::size == encryptedHeaderSize);

constexpr qsizetype nonceSize = crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr qsizetype tagSize = crypto_aead_xchacha20poly1305_ietf_ABYTES;
/// A label has a multiple of these, so that its size tells nothing about its words.
constexpr std::size_t labelBlock = 512;
constexpr qsizetype lockedLabelMax = labelSizeMax + qsizetype{labelBlock} + nonceSize + tagSize;

constexpr qsizetype pieceSize = qsizetype{64} * 1024;
constexpr qsizetype pieceGrowth = crypto_secretstream_xchacha20poly1305_ABYTES;

const unsigned char *raw(QByteArrayView bytes) noexcept
{
    return reinterpret_cast<const unsigned char *>(bytes.data());
}

unsigned char *raw(QByteArray &bytes, qsizetype offset = 0) noexcept
{
    return reinterpret_cast<unsigned char *>(bytes.data() + offset);
}

unsigned long long length(QByteArrayView bytes) noexcept
{
    return static_cast<unsigned long long>(bytes.size());
}

/// The key for one use of the file key: keyed BLAKE2b (RFC 7693) of the use's name.
Secret keyFor(QByteArrayView use, const Secret &key)
{
    Secret made(key.size());
    crypto_generichash(made.data(), static_cast<std::size_t>(made.size()), raw(use), length(use),
                       key.data(), static_cast<std::size_t>(key.size()));
    return made;
}

Secret labelKey(const Secret &key)
{
    return keyFor("kivbudget label", key);
}

Secret streamKey(const Secret &key)
{
    return keyFor("kivbudget stream", key);
}

QByteArray digestOf(QByteArrayView header)
{
    Sha256 hash;
    hash.add(header.first(digestAt));
    return hash.result();
}

/// Of the locked label, from a whole header.
qsizetype labelSizeIn(QByteArrayView header) noexcept
{
    return qFromBigEndian<quint32>(header.data() + labelSizeAt);
}

QByteArray lockedLabel(QByteArrayView label, QByteArrayView streamHeader, const Secret &key)
{
    QByteArray padded = label.toByteArray();
    padded.resize(label.size() + qsizetype{labelBlock});
    std::size_t size = 0;
    sodium_pad(&size, raw(padded), static_cast<std::size_t>(label.size()), labelBlock,
               static_cast<std::size_t>(padded.size()));
    padded.truncate(static_cast<qsizetype>(size));
    QByteArray locked(nonceSize + padded.size() + tagSize, Qt::Uninitialized);
    randombytes_buf(locked.data(), nonceSize);
    crypto_aead_xchacha20poly1305_ietf_encrypt(
        raw(locked, nonceSize), nullptr, raw(padded), length(padded), raw(streamHeader),
        length(streamHeader), nullptr, raw(locked), labelKey(key).data());
    return locked;
}

} // namespace

QByteArray encrypted(QByteArrayView file, QByteArrayView label, const Encryption &encryption)
{
    readyCiphers();
    crypto_secretstream_xchacha20poly1305_state state;
    QByteArray streamHeader(crypto_secretstream_xchacha20poly1305_HEADERBYTES, Qt::Uninitialized);
    crypto_secretstream_xchacha20poly1305_init_push(&state, raw(streamHeader),
                                                    streamKey(*encryption.key).data());
    const QByteArray locked = lockedLabel(label, streamHeader, *encryption.key);

    QByteArray bytes = encryptedMagic.toByteArray();
    bytes.resize(encryptedHeaderSize, '\0');
    qToBigEndian(form, bytes.data() + formAt);
    std::ranges::copy(encryption.wrap.bytes, bytes.data() + wrapAt);
    std::ranges::copy(streamHeader, bytes.data() + streamHeaderAt);
    qToBigEndian(static_cast<quint32>(locked.size()), bytes.data() + labelSizeAt);
    std::ranges::copy(digestOf(bytes), bytes.data() + digestAt);

    const qsizetype pieces = std::max<qsizetype>(1, (file.size() + pieceSize - 1) / pieceSize);
    qsizetype end = encryptedHeaderSize + locked.size();
    bytes.reserve(end + file.size() + pieces * pieceGrowth);
    bytes.append(locked);
    bytes.resize(end + file.size() + pieces * pieceGrowth);
    for (qsizetype piece = 0; piece < pieces; ++piece) {
        const QByteArrayView part =
            file.sliced(piece * pieceSize, std::min(pieceSize, file.size() - piece * pieceSize));
        crypto_secretstream_xchacha20poly1305_push(
            &state, raw(bytes, end), nullptr, raw(part), length(part), nullptr, 0,
            piece + 1 == pieces ? crypto_secretstream_xchacha20poly1305_TAG_FINAL : 0);
        end += part.size() + pieceGrowth;
    }
    sodium_memzero(&state, sizeof state);
    return bytes;
}

bool EncryptedFile::isNewer(QByteArrayView bytes) noexcept
{
    return bytes.startsWith(encryptedMagic) && bytes.size() >= wrapAt &&
           qFromBigEndian<quint32>(bytes.data() + formAt) > form;
}

std::optional<qsizetype> EncryptedFile::labelEnd(QByteArrayView begin) noexcept
{
    if (begin.size() < encryptedHeaderSize || !begin.startsWith(encryptedMagic) ||
        labelSizeIn(begin) > lockedLabelMax)
        return std::nullopt;
    return encryptedHeaderSize + labelSizeIn(begin);
}

std::optional<Wrap> EncryptedFile::wrapIn(QByteArrayView begin) noexcept
{
    if (begin.size() < encryptedHeaderSize || !begin.startsWith(encryptedMagic))
        return std::nullopt;
    Wrap wrap;
    std::ranges::copy(begin.sliced(wrapAt, Wrap::size), wrap.bytes.begin());
    return wrap;
}

EncryptedFile::EncryptedFile(QByteArrayView bytes) : m_bytes(bytes)
{
    const std::optional<qsizetype> end = labelEnd(bytes);
    if (!end || *end > bytes.size() || qFromBigEndian<quint32>(bytes.data() + formAt) != form ||
        digestOf(bytes) != bytes.sliced(digestAt, Sha256::size))
        throw headerNotWhole();
    m_label = bytes.first(*end).sliced(encryptedHeaderSize);
    m_wrap = *wrapIn(bytes);
    requireAffordable(m_wrap);
}

std::optional<QByteArray> EncryptedFile::openedLabel(const Secret &key) const
{
    const QByteArrayView bound = m_bytes.first(labelSizeAt).sliced(streamHeaderAt);
    if (m_label.size() < nonceSize + tagSize)
        return std::nullopt;
    QByteArray padded(m_label.size() - nonceSize - tagSize, Qt::Uninitialized);
    std::size_t size = 0;
    if (crypto_aead_xchacha20poly1305_ietf_decrypt(
            raw(padded), nullptr, nullptr, raw(m_label.sliced(nonceSize)),
            length(m_label) - nonceSize, raw(bound), length(bound), raw(m_label),
            labelKey(key).data()) != 0 ||
        sodium_unpad(&size, raw(padded), static_cast<std::size_t>(padded.size()), labelBlock) != 0)
        return std::nullopt;
    padded.truncate(static_cast<qsizetype>(size));
    return padded;
}

bool EncryptedFile::isUnder(const Secret &key) const
{
    return openedLabel(key).has_value();
}

QByteArray EncryptedFile::label(const Secret &key) const
{
    std::optional<QByteArray> label = openedLabel(key);
    if (!label)
        throw checksumWrong();
    return *std::move(label);
}

QByteArray EncryptedFile::content(const Secret &key) const
{
    const QByteArray label = this->label(key);
    const QByteArrayView streamHeader = m_bytes.first(labelSizeAt).sliced(streamHeaderAt);
    crypto_secretstream_xchacha20poly1305_state state;
    bool isWhole = crypto_secretstream_xchacha20poly1305_init_pull(&state, raw(streamHeader),
                                                                   streamKey(key).data()) == 0;
    QByteArrayView rest = m_bytes.sliced(encryptedHeaderSize + m_label.size());
    QByteArray content(rest.size(), Qt::Uninitialized);
    qsizetype end = 0;
    do {
        const QByteArrayView piece = rest.first(std::min(rest.size(), pieceSize + pieceGrowth));
        rest = rest.sliced(piece.size());
        unsigned char tag = 0;
        isWhole = isWhole && piece.size() >= pieceGrowth &&
                  crypto_secretstream_xchacha20poly1305_pull(&state, raw(content, end), nullptr,
                                                             &tag, raw(piece), length(piece),
                                                             nullptr, 0) == 0 &&
                  tag == (rest.isEmpty() ? crypto_secretstream_xchacha20poly1305_TAG_FINAL : 0);
        end += piece.size() - pieceGrowth;
    } while (isWhole && !rest.isEmpty());
    sodium_memzero(&state, sizeof state);
    if (!isWhole)
        throw checksumWrong();
    content.truncate(end);
    return content;
}

QByteArray EncryptedFile::under(const Wrap &wrap) const
{
    QByteArray bytes = m_bytes.toByteArray();
    std::ranges::copy(wrap.bytes, bytes.data() + wrapAt);
    std::ranges::copy(digestOf(bytes), bytes.data() + digestAt);
    return bytes;
}

} // namespace kiv::storage::internal

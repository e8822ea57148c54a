// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/seal.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace kiv::storage::internal {

Seal::Seal(std::uint32_t version)
{
    sha256_init(&m_hash);
    append("kiv-budget ");
    append(QByteArray::number(version));
    append("\n");
}

void Seal::beginTable(const char *name)
{
    append("table ");
    append(name);
    append("\n");
}

QByteArray Seal::result()
{
    hash({m_dump.data(), std::exchange(m_size, 0)});
    std::array<std::uint8_t, SHA256_DIGEST_SIZE> digest;
    sha256_digest(&m_hash, digest.size(), digest.data());
    return QByteArray(reinterpret_cast<const char *>(digest.data()), digest.size()).toHex();
}

void Seal::append(char byte)
{
    *room(1) = byte;
    ++m_size;
}

void Seal::append(QByteArrayView bytes)
{
    if (bytes.size() > std::ssize(m_dump)) {
        hash({m_dump.data(), std::exchange(m_size, 0)});
        hash(bytes);
        return;
    }
    std::ranges::copy(bytes, room(bytes.size()));
    m_size += bytes.size();
}

void Seal::appendNumber(char kind, std::int64_t value, char end)
{
    constexpr qsizetype sizeMax = 24;
    char *const begin = room(sizeMax);
    *begin = kind;
    // Most numbers have one digit.
    if (value >= 0 && value < 10) {
        begin[1] = static_cast<char>('0' + value);
        begin[2] = end;
        m_size += 3;
        return;
    }
    char *const last = std::to_chars(begin + 1, begin + sizeMax - 1, value).ptr;
    *last = end;
    m_size += last + 1 - begin;
}

char *Seal::room(qsizetype size)
{
    if (size > std::ssize(m_dump) - m_size)
        hash({m_dump.data(), std::exchange(m_size, 0)});
    return m_dump.data() + m_size;
}

void Seal::hash(QByteArrayView bytes) noexcept
{
    sha256_update(&m_hash, static_cast<std::size_t>(bytes.size()),
                  reinterpret_cast<const std::uint8_t *>(bytes.data()));
}

} // namespace kiv::storage::internal

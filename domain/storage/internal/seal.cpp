// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/seal.h"

#include "storage/internal/faults.h"

#include <charconv>
#include <utility>

namespace kiv::storage::internal {

namespace {

/// Small enough that the allocator keeps it for the next one.
constexpr qsizetype blockSize = qsizetype{64} * 1024;

} // namespace

Seal::Seal(std::uint32_t version, qint64 textsMax)
    : m_textsLeft(textsMax),
      m_dump(blockSize),
      m_at(m_dump.data()),
      m_end(m_at + blockSize),
      m_hashing([this](const std::vector<char> &bytes) { hash(bytes); })
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
    m_dump.resize(static_cast<std::size_t>(m_at - m_dump.data()));
    m_hashing.finish(std::exchange(m_dump, {}));
    std::array<std::uint8_t, SHA256_DIGEST_SIZE> digest;
    sha256_digest(&m_hash, digest.size(), digest.data());
    return QByteArray(reinterpret_cast<const char *>(digest.data()), digest.size()).toHex();
}

void Seal::appendNumber(char kind, std::int64_t value, char end)
{
    constexpr qsizetype sizeMax = 24;
    char *const begin = room(sizeMax);
    *begin = kind;
    // Most numbers have one or two digits.
    if (value >= 0 && value < 100) {
        char *at = begin + 1;
        if (value >= 10)
            *at++ = static_cast<char>('0' + value / 10);
        *at++ = static_cast<char>('0' + value % 10);
        *at++ = end;
        m_at = at;
        return;
    }
    char *const last = std::to_chars(begin + 1, begin + sizeMax - 1, value).ptr;
    *last = end;
    m_at = last + 1;
}

void Seal::makeRoom(qsizetype size)
{
    std::vector<char> next = m_hashing.spare();
    next.resize(static_cast<std::size_t>(std::max(blockSize, size)));
    m_dump.resize(static_cast<std::size_t>(m_at - m_dump.data()));
    m_at = next.data();
    m_end = m_at + next.size();
    m_hashing.add(std::exchange(m_dump, std::move(next)));
}

void Seal::refuseText()
{
    throw tooManyTexts();
}

void Seal::hash(const std::vector<char> &bytes) noexcept
{
    sha256_update(&m_hash, bytes.size(), reinterpret_cast<const std::uint8_t *>(bytes.data()));
}

} // namespace kiv::storage::internal

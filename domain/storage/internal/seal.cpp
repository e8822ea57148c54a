// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/seal.h"

#include <array>
#include <charconv>

namespace kiv::storage::internal {
namespace {

/// Hashing in pieces of this size costs little and keeps the dump small.
constexpr qsizetype pieceSize = 32 * 1024;

} // namespace

Seal::Seal(std::uint32_t version) : m_hash(QCryptographicHash::Sha256)
{
    m_dump.reserve(2 * pieceSize);
    m_dump.append("kiv-budget ").append(QByteArray::number(version)).append('\n');
}

void Seal::beginTable(const char *name)
{
    m_dump.append("table ").append(name).append('\n');
}

void Seal::integer(std::int64_t value)
{
    appendNumber('i', value, ';');
}

void Seal::text(QByteArrayView value)
{
    appendNumber('t', value.size(), ':');
    m_dump.append(value.data(), value.size());
}

void Seal::endRow()
{
    m_dump.append('\n');
    if (m_dump.size() >= pieceSize) {
        m_hash.addData(m_dump);
        m_dump.resize(0);
    }
}

QByteArray Seal::result()
{
    m_hash.addData(m_dump);
    m_dump.resize(0);
    return m_hash.result().toHex();
}

void Seal::appendNumber(char kind, std::int64_t value, char end)
{
    std::array<char, 24> text{kind};
    char *const last = std::to_chars(text.data() + 1, text.data() + text.size() - 1, value).ptr;
    *last = end;
    m_dump.append(text.data(), last - text.data() + 1);
}

} // namespace kiv::storage::internal

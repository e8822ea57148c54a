// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/seal.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace kiv::storage::internal {

Seal::Seal(std::uint32_t version) : m_hash(QCryptographicHash::Sha256)
{
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
    m_hash.addData(QByteArrayView(m_dump.data(), std::exchange(m_size, 0)));
    return m_hash.result().toHex();
}

void Seal::append(QByteArrayView bytes)
{
    if (bytes.size() > std::ssize(m_dump) - m_size)
        m_hash.addData(QByteArrayView(m_dump.data(), std::exchange(m_size, 0)));
    if (bytes.size() > std::ssize(m_dump)) {
        m_hash.addData(bytes);
        return;
    }
    std::ranges::copy(bytes, m_dump.data() + m_size);
    m_size += bytes.size();
}

void Seal::appendNumber(char kind, std::int64_t value, char end)
{
    std::array<char, 24> text{kind};
    char *const last = std::to_chars(text.data() + 1, text.data() + text.size() - 1, value).ptr;
    *last = end;
    append({text.data(), last - text.data() + 1});
}

} // namespace kiv::storage::internal

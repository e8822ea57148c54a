// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/internal/transaction_table.h"

#include <limits>

namespace kiv::accounting::internal {
namespace {

constexpr std::size_t chunkOf(TransactionNumber number)
{
    return number.integer() / slotsInChunk;
}

constexpr std::size_t slotOf(TransactionNumber number)
{
    return number.integer() % slotsInChunk;
}

} // namespace

const TransactionRecord *TransactionTable::find(TransactionNumber number) const noexcept
{
    const Chunk *chunk = m_chunks[chunkOf(number)].constData();
    if (!chunk)
        return nullptr;
    const std::optional<TransactionRecord> &slot = chunk->records[slotOf(number)];
    return slot ? &*slot : nullptr;
}

TransactionNumber TransactionTable::nextFree() const noexcept
{
    const std::uint16_t highest = m_numbers.highest().integer();
    if (highest == std::numeric_limits<std::uint16_t>::max())
        return m_numbers.lowestFree();
    return TransactionNumber(static_cast<std::uint16_t>(highest + 1));
}

void TransactionTable::detach(TransactionNumber number)
{
    QSharedDataPointer<Chunk> &chunk = m_chunks[chunkOf(number)];
    if (chunk.constData())
        chunk.detach();
    else
        chunk = new Chunk;
    m_numbers.detach();
}

void TransactionTable::put(TransactionNumber number, TransactionRecord record)
{
    detach(number);
    m_chunks[chunkOf(number)]->records[slotOf(number)] = std::move(record);
    m_numbers.insert(number);
}

void TransactionTable::erase(TransactionNumber number)
{
    detach(number);
    m_chunks[chunkOf(number)]->records[slotOf(number)].reset();
    m_numbers.remove(number);
}

TransactionRecord &TransactionTable::change(TransactionNumber number)
{
    std::optional<TransactionRecord> &slot = m_chunks[chunkOf(number)]->records[slotOf(number)];
    if (!slot)
        throw std::logic_error("There is no such transaction to change.");
    return *slot;
}

bool operator==(const TransactionTable &a, const TransactionTable &b) noexcept
{
    if (a.m_numbers != b.m_numbers)
        return false;
    for (std::size_t chunk = 0; chunk < a.m_chunks.size(); ++chunk) {
        const TransactionTable::Chunk *left = a.m_chunks[chunk].constData();
        const TransactionTable::Chunk *right = b.m_chunks[chunk].constData();
        // A chunk that was emptied again is as good as none, and with equal
        // numbers it has none to compare with.
        if (left != right && left && right && left->records != right->records)
            return false;
    }
    return true;
}

} // namespace kiv::accounting::internal

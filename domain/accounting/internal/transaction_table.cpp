// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/internal/transaction_table.h"

#include "accounting/internal/mistakes.h"

#include <algorithm>
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
    return m_numbers.contains(number)
               ? &m_chunks[chunkOf(number)].constData()->records[slotOf(number)]
               : nullptr;
}

TransactionNumber TransactionTable::nextFree() const noexcept
{
    const std::uint16_t highest = m_numbers.highest().integer();
    if (highest == std::numeric_limits<std::uint16_t>::max())
        return m_numbers.lowestFree();
    return TransactionNumber(static_cast<std::uint16_t>(highest + 1));
}

std::set<numira::Currency> TransactionTable::currencies() const
{
    std::set<numira::Currency> currencies;
    for (const auto &[currency, count] : m_entered) {
        if (count > 0)
            currencies.insert(currency);
    }
    return currencies;
}

void TransactionTable::detach(TransactionNumber number)
{
    SharedContent<Chunk> &chunk = m_chunks[chunkOf(number)];
    if (chunk.constData())
        chunk.detach();
    else
        chunk = new Chunk;
    m_numbers.detach();
    m_entered.reserve(m_entered.size() + 1);
}

void TransactionTable::put(TransactionNumber number, TransactionRecord record)
{
    detach(number);
    discount(number);
    count(record.amount.code());
    m_chunks[chunkOf(number)]->records[slotOf(number)] = std::move(record);
    m_numbers.insert(number);
}

void TransactionTable::append(TransactionNumber number, TransactionRecord record)
{
    count(record.amount.code());
    m_chunks[chunkOf(number)]->records[slotOf(number)] = std::move(record);
    m_numbers.append(number);
}

void TransactionTable::erase(TransactionNumber number)
{
    detach(number);
    discount(number);
    m_chunks[chunkOf(number)]->records[slotOf(number)] = TransactionRecord();
    m_numbers.remove(number);
}

void TransactionTable::count(const numira::Currency &currency)
{
    const auto found = std::ranges::find(m_entered, currency, &Entered::first);
    if (found == m_entered.end())
        m_entered.emplace_back(currency, 1);
    else
        ++found->second;
}

void TransactionTable::discount(TransactionNumber number) noexcept
{
    if (const TransactionRecord *record = find(number))
        --std::ranges::find(m_entered, record->amount.code(), &Entered::first)->second;
}

TransactionRecord &TransactionTable::change(TransactionNumber number)
{
    if (!m_numbers.contains(number))
        throw recordToChangeMissing();
    return m_chunks[chunkOf(number)]->records[slotOf(number)];
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

std::vector<TransactionNumber> differences(const TransactionTable &a, const TransactionTable &b)
{
    std::vector<TransactionNumber> numbers;
    for (std::size_t chunk = 0; chunk < a.m_chunks.size(); ++chunk) {
        if (a.m_chunks[chunk].constData() == b.m_chunks[chunk].constData())
            continue;
        for (std::size_t slot = 0; slot < slotsInChunk; ++slot) {
            const TransactionNumber number(static_cast<std::uint16_t>(chunk * slotsInChunk + slot));
            const TransactionRecord *left = a.find(number);
            const TransactionRecord *right = b.find(number);
            if (left && right ? *left != *right : left != right)
                numbers.push_back(number);
        }
    }
    return numbers;
}

} // namespace kiv::accounting::internal

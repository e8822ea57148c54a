// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/internal/number_set.h"

#include <bit>

namespace kiv::accounting::internal {
namespace {

constexpr std::size_t wordOf(TransactionNumber number)
{
    return number.integer() / bitsInWord;
}

constexpr std::uint64_t bitOf(TransactionNumber number)
{
    return std::uint64_t{1} << (number.integer() % bitsInWord);
}

constexpr TransactionNumber numberAt(std::size_t word, std::size_t bit)
{
    return TransactionNumber(static_cast<std::uint16_t>(word * bitsInWord + bit));
}

} // namespace

bool NumberSet::contains(TransactionNumber number) const noexcept
{
    return m_count != 0 && (words()[wordOf(number)] & bitOf(number)) != 0;
}

TransactionNumber NumberSet::next(TransactionNumber number) const noexcept
{
    if (number >= m_highest)
        return {};
    // There is a higher one, so the walk ends at it.
    const TransactionNumber from(static_cast<std::uint16_t>(number.integer() + 1));
    std::size_t word = wordOf(from);
    std::uint64_t rest = words()[word] & ~(bitOf(from) - 1);
    while (rest == 0)
        rest = words()[++word];
    return numberAt(word, static_cast<std::size_t>(std::countr_zero(rest)));
}

TransactionNumber NumberSet::lowestFree() const noexcept
{
    if (m_count == 0)
        return TransactionNumber(1);
    std::uint64_t used = words()[0] | 1; // 0 is no number
    for (std::size_t word = 0;;) {
        if (used != ~std::uint64_t{0})
            return numberAt(word, static_cast<std::size_t>(std::countr_one(used)));
        if (++word == words().size())
            return {};
        used = words()[word];
    }
}

void NumberSet::detach()
{
    if (m_bits.constData())
        m_bits.detach();
    else
        m_bits = new Bits;
}

void NumberSet::insert(TransactionNumber number)
{
    detach();
    std::uint64_t &word = m_bits->words[wordOf(number)];
    if ((word & bitOf(number)) != 0)
        return;
    word |= bitOf(number);
    ++m_count;
    m_highest = std::max(m_highest, number);
}

void NumberSet::remove(TransactionNumber number)
{
    if (!contains(number))
        return;
    m_bits->words[wordOf(number)] &= ~bitOf(number);
    if (--m_count == 0) {
        m_bits.reset();
        m_highest = {};
    } else if (number == m_highest) {
        m_highest = highestUpTo(wordOf(number));
    }
}

TransactionNumber NumberSet::highestUpTo(std::size_t word) const noexcept
{
    while (words()[word] == 0)
        --word;
    return numberAt(word, std::bit_width(words()[word]) - 1);
}

bool operator==(const NumberSet &a, const NumberSet &b) noexcept
{
    return a.m_count == b.m_count &&
           (a.m_count == 0 || a.m_bits.constData() == b.m_bits.constData() ||
            a.words() == b.words());
}

} // namespace kiv::accounting::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/internal/number_set.h"

#include <algorithm>
#include <bit>

namespace kiv::accounting::internal {
namespace {

constexpr unsigned bitsInWord = 64;
constexpr std::size_t wordCount = 65'536 / bitsInWord;
/// A list of more takes as much memory as the bits in the end, and longer to
/// change.
constexpr std::size_t fewMax = 2'048;

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
    if (m_count == 0)
        return false;
    return hasBits() ? (content().bits[wordOf(number)] & bitOf(number)) != 0
                     : std::ranges::binary_search(content().few, number);
}

TransactionNumber NumberSet::next(TransactionNumber number) const noexcept
{
    if (number >= m_highest)
        return {};
    // There is a higher one, so the walk ends at it.
    if (!hasBits())
        return *std::ranges::upper_bound(content().few, number);
    const TransactionNumber from(static_cast<std::uint16_t>(number.integer() + 1));
    std::size_t word = wordOf(from);
    std::uint64_t rest = content().bits[word] & ~(bitOf(from) - 1);
    while (rest == 0)
        rest = content().bits[++word];
    return numberAt(word, static_cast<std::size_t>(std::countr_zero(rest)));
}

TransactionNumber NumberSet::lowestFree() const noexcept
{
    if (m_count == m_highest.integer()) // no gap before the highest one
        return TransactionNumber(static_cast<std::uint16_t>(m_count + 1));
    if (!hasBits()) {
        const auto &few = content().few;
        const auto gap = std::ranges::partition_point(few, [&few](const TransactionNumber &number) {
            return number.integer() == &number - few.data() + 1;
        });
        return TransactionNumber(static_cast<std::uint16_t>(gap - few.begin() + 1));
    }
    std::uint64_t used = content().bits[0] | 1; // 0 is no number
    std::size_t word = 0;
    while (used == ~std::uint64_t{0})
        used = content().bits[++word];
    return numberAt(word, static_cast<std::size_t>(std::countr_one(used)));
}

void NumberSet::detach()
{
    if (!m_content.constData())
        m_content = new Content;
    Content &content = *m_content;
    if (m_count < fewMax || hasBits()) {
        if (!hasBits() && content.few.size() == content.few.capacity())
            content.few.reserve(std::max<std::size_t>(8, 2 * content.few.size()));
        return;
    }
    content.bits.resize(wordCount);
    for (const TransactionNumber number : content.few)
        content.bits[wordOf(number)] |= bitOf(number);
    content.few = {};
}

void NumberSet::insert(TransactionNumber number)
{
    detach();
    Content &content = *m_content;
    if (hasBits()) {
        std::uint64_t &word = content.bits[wordOf(number)];
        if ((word & bitOf(number)) != 0)
            return;
        word |= bitOf(number);
    } else {
        const auto at =
            number > m_highest ? content.few.end() : std::ranges::lower_bound(content.few, number);
        if (at != content.few.end() && *at == number)
            return;
        content.few.insert(at, number);
    }
    ++m_count;
    m_highest = std::max(m_highest, number);
}

void NumberSet::append(TransactionNumber number)
{
    Content &content = *m_content;
    if (hasBits())
        content.bits[wordOf(number)] |= bitOf(number);
    else
        content.few.push_back(number);
    ++m_count;
    m_highest = number;
}

void NumberSet::remove(TransactionNumber number)
{
    if (!contains(number))
        return;
    if (--m_count == 0) {
        m_content.reset();
        m_highest = {};
        return;
    }
    Content &content = *m_content;
    if (hasBits())
        content.bits[wordOf(number)] &= ~bitOf(number);
    else
        content.few.erase(std::ranges::lower_bound(content.few, number));
    if (number == m_highest)
        m_highest = highestOf(content);
}

TransactionNumber NumberSet::highestOf(const Content &content) const noexcept
{
    if (!hasBits())
        return content.few.back();
    std::size_t word = wordOf(m_highest);
    while (content.bits[word] == 0)
        --word;
    return numberAt(word, std::bit_width(content.bits[word]) - 1);
}

bool operator==(const NumberSet &a, const NumberSet &b) noexcept
{
    if (a.m_count != b.m_count || a.m_highest != b.m_highest)
        return false;
    // Content may be there for the first number, or not yet.
    if (a.m_count == 0 || a.m_content.constData() == b.m_content.constData())
        return true;
    if (a.hasBits() == b.hasBits())
        return a.content().few == b.content().few && a.content().bits == b.content().bits;
    TransactionNumber number = a.next({});
    while (number.isValid() && b.contains(number))
        number = a.next(number);
    return !number.isValid();
}

} // namespace kiv::accounting::internal

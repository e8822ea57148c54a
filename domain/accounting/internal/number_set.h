// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/transaction_number.h"

#include <QtCore/QSharedDataPointer>

#include <array>
#include <cstddef>

namespace kiv::accounting::internal {

inline constexpr unsigned bitsInWord = 64;

/// A set of transaction numbers as one bit for each possible number: 8 KiB,
/// shared between copies until one is changed, and nothing while it is empty.
class NumberSet {
public:
    [[nodiscard]] std::size_t count() const noexcept { return m_count; }
    [[nodiscard]] bool contains(TransactionNumber number) const noexcept;
    /// The highest number in the set; 0 when it is empty.
    [[nodiscard]] TransactionNumber highest() const noexcept { return m_highest; }
    /// The lowest number in the set above `number`; 0 when there is none.
    [[nodiscard]] TransactionNumber next(TransactionNumber number) const noexcept;
    /// The lowest number from 1 on that is not in the set; 0 when all are.
    [[nodiscard]] TransactionNumber lowestFree() const noexcept;

    /// Takes the memory that the next change needs, so that it cannot fail.
    void detach();
    void insert(TransactionNumber number);
    void remove(TransactionNumber number);

    friend bool operator==(const NumberSet &a, const NumberSet &b) noexcept;

private:
    using Words = std::array<std::uint64_t, 65'536 / bitsInWord>;
    struct Bits : QSharedData {
        Words words{};
    };

    [[nodiscard]] const Words &words() const noexcept { return m_bits.constData()->words; }
    [[nodiscard]] TransactionNumber highestUpTo(std::size_t word) const noexcept;

    QSharedDataPointer<Bits> m_bits;
    std::uint32_t m_count = 0;
    TransactionNumber m_highest;
};

} // namespace kiv::accounting::internal

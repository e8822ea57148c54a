// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/internal/shared_content.h"
#include "accounting/transaction_number.h"

#include <cstddef>
#include <vector>

namespace kiv::accounting::internal {

/// A set of transaction numbers, shared between copies until one is changed.
/// Few numbers stand in a list and many as one bit for each possible number, so
/// that a set takes 8 KiB at most and nothing while it is empty.
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
    /// Inserts a number above all in the set. After detach() it cannot fail.
    void append(TransactionNumber number);
    void remove(TransactionNumber number);

    friend bool operator==(const NumberSet &a, const NumberSet &b) noexcept;

private:
    /// One of both is empty.
    struct Content : QSharedData {
        std::vector<TransactionNumber> few; ///< sorted
        std::vector<std::uint64_t> bits;
    };

    [[nodiscard]] const Content &content() const noexcept { return *m_content.constData(); }
    [[nodiscard]] bool hasBits() const noexcept { return !content().bits.empty(); }
    [[nodiscard]] TransactionNumber highestOf(const Content &content) const noexcept;

    SharedContent<Content> m_content; ///< null while it is empty
    std::uint32_t m_count = 0;
    TransactionNumber m_highest;
};

} // namespace kiv::accounting::internal

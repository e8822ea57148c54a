// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/export.h"

#include <QtCore/QDebug>
#include <QtCore/QMetaType>

#include <compare>
#include <cstdint>
#include <iosfwd>
#include <optional>
#include <set>

namespace kiv::accounting {

/// The number by which the ledger knows a transaction: 1 to 65,535. The
/// default one, 0, is the number of none.
class TransactionNumber {
public:
    constexpr TransactionNumber() noexcept = default;
    /// The number itself; 0 is none.
    constexpr explicit TransactionNumber(std::uint16_t number) noexcept : m_number(number) {}

    /// The number as an integer; 0 is none.
    [[nodiscard]] constexpr std::uint16_t integer() const noexcept { return m_number; }
    /// Whether it can be a transaction's.
    [[nodiscard]] constexpr bool isValid() const noexcept { return m_number != 0; }

    friend constexpr bool operator==(TransactionNumber, TransactionNumber) noexcept = default;
    friend constexpr std::strong_ordering operator<=>(TransactionNumber,
                                                      TransactionNumber) noexcept = default;

private:
    std::uint16_t m_number = 0;
};

/// The number in decimal, without grouping.
[[nodiscard]] KIV_ACCOUNTING_EXPORT QString presentationText(TransactionNumber number);
KIV_ACCOUNTING_EXPORT std::ostream &operator<<(std::ostream &out, TransactionNumber number);
KIV_ACCOUNTING_EXPORT QDebug operator<<(QDebug debug, TransactionNumber number);

} // namespace kiv::accounting

Q_DECLARE_METATYPE(kiv::accounting::TransactionNumber)
Q_DECLARE_METATYPE(std::set<kiv::accounting::TransactionNumber>)
Q_DECLARE_METATYPE(std::optional<kiv::accounting::TransactionNumber>)

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/export.h"

#include <QtCore/QDebug>
#include <QtCore/QMetaType>

#include <compare>
#include <cstdint>
#include <iosfwd>

namespace kiv::accounting {

/// The number by which the ledger knows an account: 1 to 4,294,967,295. The
/// default one, 0, is the invalid number, which no account has.
class AccountNumber {
public:
    constexpr AccountNumber() noexcept = default;
    /// The number itself; 0 is none.
    constexpr explicit AccountNumber(std::uint32_t number) noexcept : m_number(number) {}

    /// The number that no account has.
    [[nodiscard]] static constexpr AccountNumber invalid() noexcept { return {}; }
    /// The number as an integer; 0 is none.
    [[nodiscard]] constexpr std::uint32_t integer() const noexcept { return m_number; }
    /// Whether it can be an account's.
    [[nodiscard]] constexpr bool isValid() const noexcept { return m_number != 0; }

    friend constexpr bool operator==(AccountNumber, AccountNumber) noexcept = default;
    friend constexpr std::strong_ordering operator<=>(AccountNumber,
                                                      AccountNumber) noexcept = default;

private:
    std::uint32_t m_number = 0;
};

/// The number in decimal, without grouping.
[[nodiscard]] KIV_ACCOUNTING_EXPORT QString presentationText(AccountNumber number);
KIV_ACCOUNTING_EXPORT std::ostream &operator<<(std::ostream &out, AccountNumber number);
KIV_ACCOUNTING_EXPORT QDebug operator<<(QDebug debug, AccountNumber number);

} // namespace kiv::accounting

Q_DECLARE_METATYPE(kiv::accounting::AccountNumber)

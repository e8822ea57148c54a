// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surveying/export.h"

#include "accounting/transaction.h"
#include "foundation/debug_stream.h"

namespace kiv::surveying {

/// A transaction together with what it did to the balance of the surveyed bank
/// account. Two are the same exactly when their directions and their
/// transactions' numbers are; decreases come before increases, then numbers
/// count (none first).
class KIV_SURVEYING_EXPORT BalanceChange {
public:
    BalanceChange() = default;
    /// Whether the transaction raised the account's balance, and the transaction.
    BalanceChange(bool isIncrease, accounting::Transaction transaction);

    /// Whether the balance rose.
    [[nodiscard]] bool isIncrease() const noexcept { return m_isIncrease; }
    /// The transaction behind the change.
    [[nodiscard]] const accounting::Transaction &transaction() const noexcept
    {
        return m_transaction;
    }

    /// By direction, then by the transaction's number.
    friend KIV_SURVEYING_EXPORT std::strong_ordering operator<=>(const BalanceChange &a,
                                                                 const BalanceChange &b) noexcept;
    /// The same direction and the same transaction number.
    friend bool operator==(const BalanceChange &a, const BalanceChange &b) noexcept
    {
        return (a <=> b) == 0;
    }

private:
    bool m_isIncrease = false;
    accounting::Transaction m_transaction;
};

/// "+" or "-", and the transaction behind it.
KIV_SURVEYING_EXPORT std::ostream &operator<<(std::ostream &out, const BalanceChange &change);
using foundation::operator<<;

} // namespace kiv::surveying

Q_DECLARE_METATYPE(kiv::surveying::BalanceChange)

// SPDX-License-Identifier: GPL-3.0-or-later
#include "surveying/balance_change.h"

#include "foundation/streams.h"

namespace kiv::surveying {

BalanceChange::BalanceChange(bool isIncrease, accounting::Transaction transaction)
    : m_isIncrease(isIncrease), m_transaction(std::move(transaction))
{
}

std::strong_ordering operator<=>(const BalanceChange &a, const BalanceChange &b) noexcept
{
    if (const auto byDirection = a.m_isIncrease <=> b.m_isIncrease; byDirection != 0)
        return byDirection;
    return a.m_transaction.number() <=> b.m_transaction.number();
}

std::ostream &operator<<(std::ostream &out, const BalanceChange &change)
{
    return out << (change.isIncrease() ? '+' : '-') << change.transaction();
}

} // namespace kiv::surveying

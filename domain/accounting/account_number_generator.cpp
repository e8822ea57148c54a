// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/account_number_generator.h"

#include <limits>

namespace kiv::accounting {

AccountNumberGenerator::~AccountNumberGenerator() = default;

SequentialAccountNumberGenerator::SequentialAccountNumberGenerator(AccountNumber seed) noexcept
    : m_number(seed)
{
}

SequentialAccountNumberGenerator::~SequentialAccountNumberGenerator() = default;

const AccountNumber &SequentialAccountNumberGenerator::operator++()
{
    constexpr auto numberMax = std::numeric_limits<std::uint32_t>::max();
    // A user may have given the highest number to an account by hand. Going on
    // from the lowest keeps new accounts possible.
    m_number = AccountNumber(m_number.integer() == numberMax ? 1 : m_number.integer() + 1);
    return m_number;
}

const AccountNumber &SequentialAccountNumberGenerator::operator--()
{
    if (m_number.isValid())
        m_number = AccountNumber(m_number.integer() - 1);
    return m_number;
}

std::unique_ptr<AccountNumberGenerator> SequentialAccountNumberGenerator::clone() const
{
    return std::make_unique<SequentialAccountNumberGenerator>(*this);
}

AccountNumber SequentialAccountNumberGenerator::seedFrom(const std::set<Account> &accounts) const
{
    return accounts.empty() ? AccountNumber::invalid() : accounts.rbegin()->code().number();
}

} // namespace kiv::accounting

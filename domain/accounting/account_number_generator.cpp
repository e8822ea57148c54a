// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/account_number_generator.h"

#include "accounting/general_ledger.h"

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

NumberHandout::NumberHandout(AccountNumberGenerator &generator, const GeneralLedger &ledger)
    : m_generator(generator)
{
    try {
        m_first = m_number = ++m_generator;
        m_steps = 1;
        for (; ledger.hasLedger(m_number); ++m_steps)
            m_number = ++m_generator;
    } catch (...) {
        takeBack();
        throw;
    }
}

NumberHandout::~NumberHandout()
{
    takeBack();
}

void NumberHandout::takeBack() noexcept
{
    if (m_steps == 0)
        return;
    try {
        for (; m_steps > 0; --m_steps)
            --m_generator;
        // While the change was tried, others may have taken numbers from the
        // same generator and kept them. They hold accounts now or went with
        // this change, so the next hand-out can begin where this one did.
        AccountNumber next = ++*m_generator.clone();
        while (next > m_first) {
            --m_generator;
            if (const AccountNumber lower = ++*m_generator.clone(); lower < next)
                next = lower;
            else
                break;
        }
    } catch (...) {
        // A number that is lost leaves a gap, on which nothing depends.
        m_steps = 0;
    }
}

} // namespace kiv::accounting

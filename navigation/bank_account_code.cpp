// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/bank_account_code.h"

#include "navigation/internal/faults.h"

#include "foundation/streams.h"

namespace kiv::navigation {

BankAccountCode::BankAccountCode() = default;

BankAccountCode::BankAccountCode(banking::BankAccount bankAccount, accounting::AccountCode account,
                                 const numira::Currency &issuedIn)
    : m_bankAccount(std::move(bankAccount)), m_account(std::move(account)), m_issuedIn(issuedIn)
{
    if (m_bankAccount.account.number != m_account.number())
        throw internal::faults::bankAccountIsNotAccount(m_bankAccount.account.number, m_account);
}

std::strong_ordering operator<=>(const BankAccountCode &a, const BankAccountCode &b) noexcept
{
    if (const auto order = a.m_bankAccount <=> b.m_bankAccount; order != 0)
        return order;
    return a.m_issuedIn <=> b.m_issuedIn;
}

std::ostream &operator<<(std::ostream &out, const BankAccountCode &account)
{
    return out << account.bank() << ' ' << account.account() << " ("
               << account.supportedAccountType() << ") in " << account.issuedIn();
}

} // namespace kiv::navigation

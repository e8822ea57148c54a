// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/account.h"

#include "accounting/internal/ledger_state.h"

#include "foundation/streams.h"

namespace kiv::accounting {

Account::Account(AccountTypes type, AccountCode code, const numira::Money &balance, bool isClosed)
    : Account(type, std::move(code), balance, isClosed, TransactionList())
{
}

Account::Account(AccountTypes type, AccountCode code, const numira::Money &balance, bool isClosed,
                 TransactionList transactions)
    : m_type(type),
      m_code(std::move(code)),
      m_balance(balance),
      m_isClosed(isClosed),
      m_transactions(std::move(transactions))
{
}

bool operator==(const Account &a, const Account &b)
{
    return (a <=> b) == 0 && a.m_transactions == b.m_transactions;
}

std::strong_ordering operator<=>(const Account &a, const Account &b) noexcept
{
    if (const auto byCode = a.m_code <=> b.m_code; byCode != 0)
        return byCode;
    if (const auto byType = a.m_type <=> b.m_type; byType != 0)
        return byType;
    if (const auto byState = a.m_isClosed <=> b.m_isClosed; byState != 0)
        return byState;
    return numira::compareExactly(a.m_balance, b.m_balance);
}

LedgerAccount::LedgerAccount(const std::shared_ptr<const internal::LedgerState> &state,
                             AccountNumber number)
    : LedgerAccount(state, state->account(number))
{
}

LedgerAccount::LedgerAccount(const std::shared_ptr<const internal::LedgerState> &state,
                             const internal::AccountRecord &record)
    : Account(record.type, record.code, record.balance(), record.isClosed,
              TransactionList(state, record.code.number())),
      m_openedBy(record.openedBy),
      m_holdsOpenings(record.holdsOpenings)
{
}

std::ostream &operator<<(std::ostream &out, const Account &account)
{
    out << account.type() << " account " << account.code() << ", "
        << (account.isClosed() ? "closed" : "open") << ", balance " << account.balance();
    if (!account.transactions().empty())
        out << ", " << account.transactions().size() << " transactions";
    return out;
}

} // namespace kiv::accounting

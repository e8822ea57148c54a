// SPDX-License-Identifier: GPL-3.0-or-later
#include "banking/bank.h"

#include "foundation/streams.h"

namespace kiv::banking {

Bank::Bank(BankName name, Accounts accounts, bool isClosed)
    : m_name(std::move(name)), m_accounts(std::move(accounts)), m_isClosed(isClosed)
{
}

std::ostream &operator<<(std::ostream &out, const Bank &bank)
{
    out << bank.name() << " [";
    const char *separator = "";
    for (const auto &[number, type] : bank.accounts()) {
        out << separator << AccountNumberBankType{number, type};
        separator = ", ";
    }
    return out << (bank.isClosed() ? "] closed" : "]");
}

} // namespace kiv::banking

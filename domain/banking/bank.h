// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "banking/bank_account.h"

#include "foundation/debug_stream.h"

#include <map>

namespace kiv::banking {

/// A bank with the ledger accounts that it keeps, each with its kind.
class KIV_BANKING_EXPORT Bank {
public:
    /// The accounts that a bank keeps, by their numbers in the ledger.
    using Accounts = std::map<accounting::AccountNumber, BankAccountTypes>;

    Bank() = default;
    /// Checks nothing; the map of banks does.
    Bank(BankName name, Accounts accounts, bool isClosed);

    /// The name, by which the bank is known.
    [[nodiscard]] const BankName &name() const noexcept { return m_name; }
    /// The accounts that it keeps, and what they are to it.
    [[nodiscard]] const Accounts &accounts() const noexcept { return m_accounts; }
    /// Whether the household has left the bank.
    [[nodiscard]] bool isClosed() const noexcept { return m_isClosed; }

    friend bool operator==(const Bank &, const Bank &) = default;

private:
    BankName m_name;
    Accounts m_accounts;
    bool m_isClosed = false;
};

/// "First [1200=>checking, 1300=>savings]", and " closed" behind it.
KIV_BANKING_EXPORT std::ostream &operator<<(std::ostream &out, const Bank &bank);
using foundation::operator<<;

} // namespace kiv::banking

Q_DECLARE_METATYPE(kiv::banking::Bank)

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/export.h"

#include "accounting/account_code.h"
#include "banking/bank_account.h"
#include "foundation/debug_stream.h"

namespace kiv::navigation {

/// A bank account with the code of its ledger account and the currency in
/// which that is kept. The numbers of both are always the same.
///
/// Ordered by bank, number, kind and currency; the code takes no part, so a
/// set holds one record for each bank account and currency.
class KIV_NAVIGATION_EXPORT BankAccountCode {
public:
    /// No account at no bank, in no currency.
    BankAccountCode();
    /// Throws foundation::Error when the two numbers differ.
    BankAccountCode(banking::BankAccount bankAccount, accounting::AccountCode account,
                    const numira::Currency &issuedIn);

    /// The bank that keeps the account.
    [[nodiscard]] const banking::BankName &bank() const noexcept { return m_bankAccount.bank; }
    /// The account's number together with its kind.
    [[nodiscard]] const banking::AccountNumberBankType &bankAccountType() const noexcept
    {
        return m_bankAccount.account;
    }
    /// The account's kind alone.
    [[nodiscard]] const banking::BankAccountTypes &supportedAccountType() const noexcept
    {
        return m_bankAccount.account.type;
    }
    /// The account's code in the ledger.
    [[nodiscard]] const accounting::AccountCode &account() const noexcept { return m_account; }
    /// The currency in which the account is kept.
    [[nodiscard]] const numira::Currency &issuedIn() const noexcept { return m_issuedIn; }

    /// By bank, number, kind and currency.
    friend KIV_NAVIGATION_EXPORT std::strong_ordering
    operator<=>(const BankAccountCode &a, const BankAccountCode &b) noexcept;
    /// Whether those four are equal.
    friend bool operator==(const BankAccountCode &a, const BankAccountCode &b) noexcept
    {
        return (a <=> b) == 0;
    }

private:
    banking::BankAccount m_bankAccount;
    accounting::AccountCode m_account;
    numira::Currency m_issuedIn;
};

KIV_NAVIGATION_EXPORT std::ostream &operator<<(std::ostream &out, const BankAccountCode &account);
using foundation::operator<<;

} // namespace kiv::navigation

Q_DECLARE_METATYPE(kiv::navigation::BankAccountCode)
Q_DECLARE_METATYPE(std::set<kiv::navigation::BankAccountCode>)

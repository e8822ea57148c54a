// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/account_code.h"
#include "accounting/account_types.h"
#include "accounting/transaction_list.h"

#include "foundation/debug_stream.h"

#include "numira/money.h"

namespace kiv::accounting {

/// An account, either as somebody wants the ledger to open it (with its
/// opening balance) or as the ledger has it (with its present balance and its
/// transactions). Accounts are ordered by code, then kind, then closed flag,
/// then balance, without asking for a rate.
class KIV_ACCOUNTING_EXPORT Account {
public:
    Account() = default;
    /// `balance` also gives the currency in which the account is kept; a
    /// negative one is on the other side than the kind's own.
    Account(AccountTypes type, AccountCode code, const numira::Money &balance, bool isClosed);

    /// The kind, which tells the side on which the balance is positive.
    [[nodiscard]] AccountTypes type() const noexcept { return m_type; }
    /// The number, the name and the parent.
    [[nodiscard]] const AccountCode &code() const noexcept { return m_code; }
    /// The balance, positive on the kind's own side, in the account's currency.
    [[nodiscard]] const numira::Money &balance() const noexcept { return m_balance; }
    /// Whether the account is closed: nothing can be posted to it.
    [[nodiscard]] bool isClosed() const noexcept { return m_isClosed; }
    /// The account's transactions; none for an account that no ledger gave.
    [[nodiscard]] const TransactionList &transactions() const &noexcept { return m_transactions; }
    /// A copy, so that it outlives a temporary account, as in
    /// `for (… : ledger.ledger(number).transactions())`.
    [[nodiscard]] TransactionList transactions() && { return m_transactions; }

    /// The same kind, code, balance, flag and transactions.
    friend KIV_ACCOUNTING_EXPORT bool operator==(const Account &a, const Account &b);
    /// In the order that the class describes.
    friend KIV_ACCOUNTING_EXPORT std::strong_ordering operator<=>(const Account &a,
                                                                  const Account &b) noexcept;

protected:
    /// The account with what the ledger knows of it.
    Account(AccountTypes type, AccountCode code, const numira::Money &balance, bool isClosed,
            TransactionList transactions);

private:
    AccountTypes m_type = AccountTypes::Unknown;
    AccountCode m_code;
    numira::Money m_balance;
    bool m_isClosed = false;
    TransactionList m_transactions;
};

/// An account as the ledger holds it, at the time when it was read.
class KIV_ACCOUNTING_EXPORT LedgerAccount final : public Account {
public:
    LedgerAccount() = default;
    /// For the ledger: the account `number` of `state`, which must be there.
    LedgerAccount(const std::shared_ptr<const internal::LedgerState> &state, AccountNumber number);

    /// The transaction that opened the account, if its opening balance was not
    /// zero.
    [[nodiscard]] const std::optional<TransactionNumber> &openedBy() const noexcept
    {
        return m_openedBy;
    }
    /// Whether it is the equity account against which accounts in its currency
    /// are opened.
    [[nodiscard]] bool holdsOpenings() const noexcept { return m_holdsOpenings; }

    /// The same account, opened by the same transaction.
    friend bool operator==(const LedgerAccount &a, const LedgerAccount &b)
    {
        return static_cast<const Account &>(a) == static_cast<const Account &>(b) &&
               a.m_openedBy == b.m_openedBy && a.m_holdsOpenings == b.m_holdsOpenings;
    }

private:
    LedgerAccount(const std::shared_ptr<const internal::LedgerState> &state,
                  const internal::AccountRecord &record);

    std::optional<TransactionNumber> m_openedBy;
    bool m_holdsOpenings = false;
};

KIV_ACCOUNTING_EXPORT std::ostream &operator<<(std::ostream &out, const Account &account);
using foundation::operator<<;

} // namespace kiv::accounting

Q_DECLARE_METATYPE(kiv::accounting::Account)
Q_DECLARE_METATYPE(std::set<kiv::accounting::Account>)
Q_DECLARE_METATYPE(kiv::accounting::LedgerAccount)

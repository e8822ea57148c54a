// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/account_code.h"
#include "accounting/account_types.h"
#include "accounting/internal/transaction_table.h"
#include "accounting/transaction.h"

namespace kiv::accounting::internal {

/// An account as the ledger keeps it.
struct AccountRecord : QSharedData {
    AccountCode code;
    AccountTypes type = AccountTypes::Unknown;
    /// The sums of the account's own sides, in its currency. They stand apart
    /// because all sides are positive: whatever the order in which transactions
    /// come and go, no sum in between exceeds the last one, so a ledger that was
    /// possible can always be built again.
    numira::Money debits;
    numira::Money credits;
    bool isClosed = false;
    bool holdsOpenings = false;
    std::optional<TransactionNumber> openedBy;
    NumberSet transactions;

    [[nodiscard]] const numira::Currency &currency() const noexcept { return debits.code(); }
    /// Positive on the side of the account's type.
    [[nodiscard]] numira::Money balance() const;

    friend bool operator==(const AccountRecord &a, const AccountRecord &b) noexcept;
};

/// The whole content of a ledger. Copies share the accounts and transactions
/// that are equal, so that copying costs a few pointers for each account and
/// each 256 possible transactions.
///
/// It keeps balances, transaction sets and refund sums in step with the
/// transactions. What may be changed is for the ledger to decide.
struct LedgerState {
    using Accounts = std::vector<SharedContent<AccountRecord>>;
    using RestatedSides = std::vector<std::pair<TransactionNumber, numira::Money>>;

    /// In the order of their numbers.
    [[nodiscard]] const Accounts &accounts() const noexcept { return m_accounts; }
    [[nodiscard]] const TransactionTable &table() const noexcept { return m_table; }

    /// Null when there is none.
    [[nodiscard]] const AccountRecord *find(AccountNumber number) const noexcept;
    /// Throws AccountError when there is none.
    [[nodiscard]] const AccountRecord &account(AccountNumber number) const;
    /// Where it stands in accounts(). Throws AccountError when there is none.
    [[nodiscard]] std::size_t placeOf(AccountNumber number) const;
    [[nodiscard]] AccountRecord &changeAccount(AccountNumber number);
    /// Takes in an account without transactions, under a number that is free.
    void insertAccount(AccountTypes type, const AccountCode &code, const numira::Currency &currency,
                       bool holdsOpenings);
    /// Takes away an account without transactions and children.
    void eraseAccount(AccountNumber number);
    /// Gives the account another code, and its number to its transactions and
    /// children. A new number must be free.
    void recode(AccountNumber from, const AccountCode &to);
    [[nodiscard]] bool hasChildren(AccountNumber parent) const noexcept;

    /// Throws TransactionError when there is none.
    [[nodiscard]] const TransactionRecord &record(TransactionNumber number) const;
    /// The record for a change of its statuses. Throws TransactionError when
    /// there is none.
    [[nodiscard]] TransactionRecord &changeRecord(TransactionNumber number);
    /// The transaction with the present codes of its accounts, seen from the
    /// side of `account`. It must be there.
    [[nodiscard]] Transaction transaction(TransactionNumber number,
                                          AccountNumber account = {}) const;
    /// Puts `after` in the place of what stands under the number, if anything;
    /// nothing takes the transaction away, and with it an opening mark. Throws
    /// AccountError when an account's sums get out of range. If it throws, the
    /// state means what it meant before.
    void exchange(TransactionNumber number, std::optional<TransactionRecord> after);
    /// Puts a transaction that is no refund under a number above all in use; what
    /// `exchange` does then, in less time. Throws as that.
    void append(TransactionNumber number, TransactionRecord record);
    /// Keeps the account in another currency, with these amounts on the
    /// account's own sides of all its transactions. Throws numira::Error when
    /// their sums get out of range.
    void restate(AccountNumber number, const numira::Currency &currency,
                 const RestatedSides &sides);

    friend bool operator==(const LedgerState &a, const LedgerState &b) noexcept;

private:
    [[nodiscard]] Accounts::const_iterator position(AccountNumber number) const noexcept;

    Accounts m_accounts;
    TransactionTable m_table;
};

} // namespace kiv::accounting::internal

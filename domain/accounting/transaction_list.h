// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/transaction.h"

#include <cstddef>
#include <iterator>
#include <memory>
#include <vector>

namespace kiv::accounting {

namespace internal {
struct AccountRecord;
struct LedgerState;
} // namespace internal

/// The transactions of one account in the order of their numbers, as they
/// stood when the account was read: a later change of the ledger does not show.
/// It shares the ledger's own store, so copies cost nothing.
///
/// Each transaction is made when it is asked for, with the codes that the
/// accounts had at that time, and is seen from this account's side.
class KIV_ACCOUNTING_EXPORT TransactionList {
public:
    /// Goes over the list once; each step makes its transaction anew.
    class KIV_ACCOUNTING_EXPORT const_iterator {
    public:
        /// It gives values, not references, so it is an input iterator to C++17.
        using iterator_category = std::input_iterator_tag;
        /// What it stands for.
        using value_type = Transaction;
        /// The type of distances.
        using difference_type = std::ptrdiff_t;
        /// A copy, since the list keeps no transactions of its own.
        using reference = Transaction;
        /// There is nothing to point to.
        using pointer = void;

        const_iterator() = default;
        /// The transaction, seen from the account's side.
        Transaction operator*() const;
        /// Goes to the next number.
        const_iterator &operator++();
        /// Goes to the next number and answers with the place before.
        const_iterator operator++(int);
        /// The transaction's number, without making the transaction.
        [[nodiscard]] TransactionNumber number() const noexcept { return m_number; }
        /// The transaction's day, likewise.
        [[nodiscard]] QDate occurredOn() const;
        /// Whether both stand at the same place of one list.
        friend bool operator==(const const_iterator &a, const const_iterator &b) noexcept
        {
            return a.m_number == b.m_number;
        }

    private:
        friend class TransactionList;
        std::shared_ptr<const internal::LedgerState> m_state; ///< outlives the list
        const internal::AccountRecord *m_account = nullptr;
        TransactionNumber m_number; ///< 0 at the end
    };

    /// No transactions.
    TransactionList();
    /// For the ledger: those of an account, which must be there.
    TransactionList(std::shared_ptr<const internal::LedgerState> state, AccountNumber account);
    TransactionList(const TransactionList &);
    TransactionList(TransactionList &&) noexcept;
    TransactionList &operator=(const TransactionList &);
    TransactionList &operator=(TransactionList &&) noexcept;
    ~TransactionList();

    /// How many there are.
    [[nodiscard]] std::size_t size() const noexcept;
    /// Whether there are none.
    [[nodiscard]] bool empty() const noexcept { return size() == 0; }
    /// The first.
    [[nodiscard]] const_iterator begin() const;
    /// Behind the last.
    [[nodiscard]] const_iterator end() const;
    /// Whether the account has a transaction of this number.
    [[nodiscard]] bool contains(TransactionNumber number) const noexcept;
    /// The transaction of this number; nothing when the account has none.
    [[nodiscard]] std::optional<Transaction> find(TransactionNumber number) const;
    /// A set with a copy of each.
    [[nodiscard]] std::set<Transaction> toSet() const;

    /// The same transactions, element by element.
    friend KIV_ACCOUNTING_EXPORT bool operator==(const TransactionList &a,
                                                 const TransactionList &b);
    /// See the declaration outside.
    friend KIV_ACCOUNTING_EXPORT std::vector<TransactionNumber>
    changedTransactions(const TransactionList &before, const TransactionList &after);

private:
    std::shared_ptr<const internal::LedgerState> m_state;
    const internal::AccountRecord *m_account = nullptr; ///< in m_state, if any
};

/// The numbers of the transactions that only one list has, or that differ in anything but
/// the names of their accounts, in order. What the ledgers of both share is not looked at.
[[nodiscard]] KIV_ACCOUNTING_EXPORT std::vector<TransactionNumber>
changedTransactions(const TransactionList &before, const TransactionList &after);

} // namespace kiv::accounting

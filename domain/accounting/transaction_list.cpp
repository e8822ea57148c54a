// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/transaction_list.h"

#include "accounting/internal/ledger_state.h"

namespace kiv::accounting {

TransactionList::TransactionList() = default;
TransactionList::TransactionList(std::shared_ptr<const internal::LedgerState> state,
                                 AccountNumber account)
    : m_state(std::move(state)), m_account(&m_state->account(account))
{
}
TransactionList::TransactionList(const TransactionList &) = default;
TransactionList::TransactionList(TransactionList &&other) noexcept
    : m_state(std::move(other.m_state)), m_account(std::exchange(other.m_account, nullptr))
{
}
TransactionList &TransactionList::operator=(const TransactionList &) = default;
TransactionList &TransactionList::operator=(TransactionList &&other) noexcept
{
    m_state = std::move(other.m_state);
    m_account = std::exchange(other.m_account, nullptr);
    return *this;
}
TransactionList::~TransactionList() = default;

std::size_t TransactionList::size() const noexcept
{
    return m_account ? m_account->transactions.count() : 0;
}

TransactionList::const_iterator TransactionList::begin() const
{
    const_iterator first;
    if (empty())
        return first;
    first.m_state = m_state;
    first.m_account = m_account;
    first.m_number = m_account->transactions.next({});
    return first;
}

TransactionList::const_iterator TransactionList::end() const
{
    return {};
}

bool TransactionList::contains(TransactionNumber number) const noexcept
{
    return m_account && m_account->transactions.contains(number);
}

std::optional<Transaction> TransactionList::find(TransactionNumber number) const
{
    if (!contains(number))
        return std::nullopt;
    return m_state->transaction(number, m_account->code.number());
}

std::set<Transaction> TransactionList::toSet() const
{
    std::set<Transaction> result;
    for (Transaction transaction : *this)
        result.insert(result.end(), std::move(transaction));
    return result;
}

Transaction TransactionList::const_iterator::operator*() const
{
    return m_state->transaction(m_number, m_account->code.number());
}

QDate TransactionList::const_iterator::occurredOn() const
{
    return m_state->record(m_number).occurredOn;
}

TransactionList::const_iterator &TransactionList::const_iterator::operator++()
{
    m_number = m_account->transactions.next(m_number);
    return *this;
}

TransactionList::const_iterator TransactionList::const_iterator::operator++(int)
{
    const_iterator before = *this;
    ++*this;
    return before;
}

bool operator==(const TransactionList &a, const TransactionList &b)
{
    // Ledgers share an account that did not change itself, though its transactions did.
    return (a.m_account == b.m_account && a.m_state == b.m_state) ||
           (a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), b.end()));
}

std::vector<TransactionNumber> changedTransactions(const TransactionList &before,
                                                   const TransactionList &after)
{
    if (before.m_state == after.m_state && before.m_account == after.m_account)
        return {};
    static const internal::TransactionTable none;
    std::vector<TransactionNumber> changed =
        differences(before.m_state ? before.m_state->table() : none,
                    after.m_state ? after.m_state->table() : none);
    std::erase_if(changed, [&](TransactionNumber number) {
        return !before.contains(number) && !after.contains(number);
    });
    return changed;
}

} // namespace kiv::accounting

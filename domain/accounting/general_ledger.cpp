// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/general_ledger.h"

#include "accounting/internal/ledger_state.h"
#include "accounting/internal/mistakes.h"

#include "foundation/streams.h"

#include <atomic>

namespace kiv::accounting {
namespace {

using internal::AccountRecord;
using internal::LedgerState;

/// What every ledger without accounts shares; as it is always shared, nobody
/// changes it.
const std::shared_ptr<LedgerState> &emptyState()
{
    static const auto empty = std::make_shared<LedgerState>();
    return empty;
}

bool isIn(OpenStates states, bool isClosed)
{
    switch (states) {
    case OpenStates::Open:
        return !isClosed;
    case OpenStates::Closed:
        return isClosed;
    case OpenStates::Either:
        return true;
    }
    throw internal::openStatesUnknown();
}

} // namespace

GeneralLedger::GeneralLedger() : m_state(emptyState()) {}
GeneralLedger::GeneralLedger(const GeneralLedger &) = default;
GeneralLedger::GeneralLedger(GeneralLedger &&other) noexcept
    : m_state(std::exchange(other.m_state, emptyState()))
{
}
GeneralLedger &GeneralLedger::operator=(const GeneralLedger &) = default;
GeneralLedger &GeneralLedger::operator=(GeneralLedger &&other) noexcept
{
    std::swap(m_state, other.m_state);
    return *this;
}
GeneralLedger::~GeneralLedger() = default;

internal::LedgerState &GeneralLedger::change()
{
    if (m_state.use_count() > 1)
        m_state = std::make_shared<LedgerState>(*m_state);
    // The last other copy may have ended in another thread, which has read before.
    std::atomic_thread_fence(std::memory_order_acquire);
    return *m_state;
}

bool GeneralLedger::isEmpty() const noexcept
{
    return m_state->accounts().empty();
}

std::set<AccountCode> GeneralLedger::accountCodes() const
{
    std::set<AccountCode> codes;
    for (const auto &account : m_state->accounts())
        codes.insert(codes.end(), account->code);
    return codes;
}

std::set<Account> GeneralLedger::accounts() const
{
    std::set<Account> result;
    for (const auto &account : m_state->accounts())
        result.insert(result.end(), ledger(account->code.number()));
    return result;
}

bool GeneralLedger::hasLedger(AccountNumber number) const noexcept
{
    return m_state->find(number) != nullptr;
}

bool GeneralLedger::hasLedger(const AccountCode &code) const noexcept
{
    return hasLedger(code.number());
}

bool GeneralLedger::hasLedgerNamed(const QString &name) const noexcept
{
    return std::ranges::any_of(m_state->accounts(), [&name](const auto &account) {
        return account.constData()->code.name() == name;
    });
}

LedgerAccount GeneralLedger::ledger(AccountNumber number) const
{
    return {m_state, number};
}

LedgerAccount GeneralLedger::ledger(const AccountCode &code) const
{
    return ledger(code.number());
}

AccountCode GeneralLedger::accountCode(AccountNumber number) const
{
    return m_state->account(number).code;
}

std::optional<Transaction> GeneralLedger::openingTransaction(AccountNumber number) const
{
    const AccountRecord *account = m_state->find(number);
    if (!account || !account->openedBy)
        return std::nullopt;
    return m_state->transaction(*account->openedBy, number);
}

std::set<AccountNumber> GeneralLedger::lookUpChildren(AccountNumber number, OpenStates states) const
{
    static_cast<void>(isIn(states, false)); // throws for an unknown value
    std::set<AccountNumber> children;
    for (const auto &account : m_state->accounts()) {
        if (isIn(states, account->isClosed) && account->code.parent() == number)
            children.insert(children.end(), account->code.number());
    }
    return children;
}

std::optional<Transaction> GeneralLedger::lookUpTransaction(TransactionNumber number) const
{
    if (!m_state->table().find(number))
        return std::nullopt;
    return m_state->transaction(number);
}

std::optional<TransactionOutline> GeneralLedger::lookUpOutline(TransactionNumber number) const
{
    const internal::TransactionRecord *record = m_state->table().find(number);
    if (!record)
        return std::nullopt;
    return TransactionOutline{record->occurredOn, record->debit,       record->credit,
                              record->amount,     record->debitStatus, record->creditStatus};
}

std::vector<Transaction> GeneralLedger::transactions() const
{
    const internal::NumberSet &numbers = m_state->table().numbers();
    std::vector<Transaction> result;
    result.reserve(numbers.count());
    for (auto number = numbers.next({}); number.isValid(); number = numbers.next(number))
        result.push_back(m_state->transaction(number));
    return result;
}

std::size_t GeneralLedger::transactionCount() const noexcept
{
    return m_state->table().numbers().count();
}

numira::Money GeneralLedger::refundable(TransactionNumber number) const
{
    const internal::TransactionRecord &record = m_state->record(number);
    if (record.refundOf)
        return numira::Money(record.amount.code());
    return record.amount - record.refunded();
}

bool operator==(const GeneralLedger &a, const GeneralLedger &b)
{
    return a.m_state == b.m_state || *a.m_state == *b.m_state;
}

std::vector<TransactionNumber> changedTransactions(const GeneralLedger &before,
                                                   const GeneralLedger &after)
{
    if (before.m_state == after.m_state)
        return {};
    return differences(before.m_state->table(), after.m_state->table());
}

std::ostream &operator<<(std::ostream &out, const GeneralLedger &ledger)
{
    out << "Accounts ";
    foundation::streamRange(out, ledger.accounts());
    out << ", transactions ";
    return foundation::streamRange(out, ledger.transactions());
}

std::set<numira::Currency> containedCurrencies(const GeneralLedger &ledger)
{
    const LedgerState &state = *ledger.m_state;
    std::set<numira::Currency> currencies = state.table().currencies();
    for (const auto &account : state.accounts())
        currencies.insert(account->currency());
    currencies.erase(numira::Currency());
    return currencies;
}

} // namespace kiv::accounting

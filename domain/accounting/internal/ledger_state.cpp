// SPDX-License-Identifier: GPL-3.0-or-later
#include "accounting/internal/ledger_state.h"

#include "accounting/internal/faults.h"

#include "foundation/money_refusals.h"

#include <span>

namespace kiv::accounting::internal {
namespace {

/// The sum of one side of an account.
numira::Money summed(const numira::Money &sum, const numira::Money &amount, const AccountCode &code)
{
    return foundation::withMoneyRefusals(
        [&] { return sum + amount; },
        [&](const std::exception &cause) { return balanceOutOfRange(code, cause); });
}

/// The sums that a change gives to the accounts that it touches: two that a
/// transaction leaves and two that it enters at most.
class ChangedSums {
public:
    struct Sums {
        std::size_t place; ///< of the account among all
        numira::Money debits;
        numira::Money credits;
    };

    explicit ChangedSums(const LedgerState &state) : m_state(state) {}

    void subtract(const TransactionRecord &record)
    {
        of(record.debit).debits -= record.debitAmount();
        of(record.credit).credits -= record.creditAmount();
    }
    void add(const TransactionRecord &record)
    {
        add(of(record.debit), &Sums::debits, record.debitAmount());
        add(of(record.credit), &Sums::credits, record.creditAmount());
    }
    [[nodiscard]] std::span<const Sums> all() const { return {m_sums.data(), m_count}; }

private:
    [[nodiscard]] const AccountRecord &accountAt(std::size_t place) const noexcept
    {
        return *m_state.accounts()[place].constData();
    }
    Sums &of(AccountNumber number)
    {
        for (std::size_t at = 0; at < m_count; ++at) {
            if (accountAt(m_sums[at].place).code.number() == number)
                return m_sums[at];
        }
        const std::size_t place = m_state.placeOf(number);
        m_sums[m_count] = {place, accountAt(place).debits, accountAt(place).credits};
        return m_sums[m_count++];
    }
    void add(Sums &sums, numira::Money Sums::*side, const numira::Money &amount) const
    {
        sums.*side = summed(sums.*side, amount, accountAt(sums.place).code);
    }

    const LedgerState &m_state;
    std::array<Sums, 4> m_sums;
    std::size_t m_count = 0;
};

AccountNumber numberOf(const SharedContent<AccountRecord> &account) noexcept
{
    return account.constData()->code.number();
}

} // namespace

numira::Money AccountRecord::balance() const
{
    return isDebitNormal(type) ? debits - credits : credits - debits;
}

bool operator==(const AccountRecord &a, const AccountRecord &b) noexcept
{
    return a.code == b.code && a.type == b.type && a.debits == b.debits && a.credits == b.credits &&
           a.isClosed == b.isClosed && a.holdsOpenings == b.holdsOpenings &&
           a.openedBy == b.openedBy && a.transactions == b.transactions;
}

LedgerState::Accounts::const_iterator LedgerState::position(AccountNumber number) const noexcept
{
    // As numbers differ, an account stands no further behind the first one than
    // their numbers are apart, and just there when none between is missing.
    const std::uint32_t first = m_accounts.empty() ? 0 : numberOf(m_accounts.front()).integer();
    if (number.integer() <= first)
        return m_accounts.begin();
    const std::size_t last = std::min<std::size_t>(number.integer() - first, m_accounts.size());
    const auto end = m_accounts.begin() + static_cast<std::ptrdiff_t>(last);
    if (end != m_accounts.end() && numberOf(*end) == number)
        return end;
    return std::ranges::lower_bound(m_accounts.begin(), end, number, {}, numberOf);
}

const AccountRecord *LedgerState::find(AccountNumber number) const noexcept
{
    const auto found = position(number);
    return found != m_accounts.end() && numberOf(*found) == number ? found->constData() : nullptr;
}

std::size_t LedgerState::placeOf(AccountNumber number) const
{
    const auto found = position(number);
    if (found == m_accounts.end() || numberOf(*found) != number)
        throw accountNotFound(number);
    return static_cast<std::size_t>(found - m_accounts.begin());
}

const AccountRecord &LedgerState::account(AccountNumber number) const
{
    if (const AccountRecord *found = find(number))
        return *found;
    throw accountNotFound(number);
}

AccountRecord &LedgerState::changeAccount(AccountNumber number)
{
    return *m_accounts[placeOf(number)];
}

void LedgerState::insertAccount(AccountTypes type, const AccountCode &code,
                                const numira::Currency &currency, bool holdsOpenings)
{
    SharedContent<AccountRecord> account(new AccountRecord);
    account->code = code;
    account->type = type;
    account->debits = account->credits = numira::Money(currency);
    account->holdsOpenings = holdsOpenings;
    m_accounts.insert(position(code.number()), std::move(account));
}

void LedgerState::eraseAccount(AccountNumber number)
{
    m_accounts.erase(position(number));
}

void LedgerState::recode(AccountNumber from, const AccountCode &to)
{
    const auto found = position(from);
    SharedContent<AccountRecord> account = *found;
    m_accounts.erase(found);
    account->code = to;
    if (to.number() != from) {
        const NumberSet &numbers = account.constData()->transactions;
        for (auto number = numbers.next({}); number.isValid(); number = numbers.next(number)) {
            TransactionRecord &record = m_table.change(number);
            (record.debit == from ? record.debit : record.credit) = to.number();
        }
        for (SharedContent<AccountRecord> &child : m_accounts) {
            if (child.constData()->code.parent() == from)
                child->code.setParent(to.number());
        }
    }
    m_accounts.insert(position(to.number()), std::move(account));
}

bool LedgerState::hasChildren(AccountNumber parent) const noexcept
{
    return std::ranges::any_of(m_accounts, [parent](const auto &account) {
        return account.constData()->code.parent() == parent;
    });
}

const TransactionRecord &LedgerState::record(TransactionNumber number) const
{
    if (const TransactionRecord *found = m_table.find(number))
        return *found;
    throw transactionNotFound(number);
}

TransactionRecord &LedgerState::changeRecord(TransactionNumber number)
{
    if (!m_table.find(number))
        throw transactionNotFound(number);
    return m_table.change(number);
}

Transaction LedgerState::transaction(TransactionNumber number, AccountNumber account) const
{
    const TransactionRecord &record = this->record(number);
    return Transaction({.occurredOn = record.occurredOn,
                        .debiting = this->account(record.debit).code,
                        .crediting = this->account(record.credit).code,
                        .amount = record.amount,
                        .debitAmount = record.debitAmount(),
                        .creditAmount = record.creditAmount(),
                        .description = record.description.text(),
                        .number = number,
                        .refundOf = record.refundOf,
                        .debitStatus = record.debitStatus,
                        .creditStatus = record.creditStatus,
                        .seenFrom = account});
}

void LedgerState::append(TransactionNumber number, TransactionRecord record)
{
    // First all that can fail, as in exchange().
    AccountRecord &debit = changeAccount(record.debit);
    AccountRecord &credit = changeAccount(record.credit);
    const numira::Money debits = summed(debit.debits, record.debitAmount(), debit.code);
    const numira::Money credits = summed(credit.credits, record.creditAmount(), credit.code);
    m_table.detach(number);
    debit.transactions.detach();
    credit.transactions.detach();

    debit.debits = debits;
    credit.credits = credits;
    debit.transactions.append(number);
    credit.transactions.append(number);
    m_table.append(number, std::move(record));
}

void LedgerState::exchange(TransactionNumber number, std::optional<TransactionRecord> after)
{
    // First all that can fail: the sums, then the memory. Copies are left
    // behind here, which changes no meaning.
    ChangedSums changed(*this);
    std::optional<TransactionNumber> original;
    numira::Money refunded;
    const auto meetRefund = [&](const TransactionRecord &refund) {
        if (refund.refundOf && !original) {
            original = refund.refundOf;
            refunded = record(*original).refunded();
        }
        return refund.refundOf.has_value();
    };
    if (const TransactionRecord *before = m_table.find(number)) {
        changed.subtract(*before);
        if (meetRefund(*before))
            refunded -= before->amount;
    }
    if (after) {
        changed.add(*after);
        if (meetRefund(*after))
            refunded += after->amount;
    }
    std::optional<TransactionRecord> originalAfter;
    m_table.detach(number);
    if (original) {
        originalAfter = record(*original);
        originalAfter->setRefundedAmount(refunded.amount());
        m_table.detach(*original);
    }
    for (const ChangedSums::Sums &sums : changed.all())
        m_accounts[sums.place]->transactions.detach();

    // Then all that cannot.
    for (const ChangedSums::Sums &sums : changed.all()) {
        AccountRecord &account = *m_accounts[sums.place];
        account.debits = sums.debits;
        account.credits = sums.credits;
        if (after && after->involves(account.code.number()))
            account.transactions.insert(number);
        else
            account.transactions.remove(number);
        if (!after && account.openedBy == number)
            account.openedBy.reset();
    }
    if (originalAfter)
        m_table.change(*original) = *std::move(originalAfter);
    if (after)
        m_table.put(number, *std::move(after));
    else
        m_table.erase(number);
}

void LedgerState::restate(AccountNumber number, const numira::Currency &currency,
                          const RestatedSides &sides)
{
    numira::Money debits(currency);
    numira::Money credits(currency);
    for (const auto &[transaction, amount] : sides)
        (record(transaction).debit == number ? debits : credits) += amount;
    AccountRecord &account = changeAccount(number);
    account.debits = debits;
    account.credits = credits;
    for (const auto &[transaction, amount] : sides) {
        TransactionRecord &record = m_table.change(transaction);
        if (record.debit == number)
            record.setSideAmounts(amount, record.creditAmount());
        else
            record.setSideAmounts(record.debitAmount(), amount);
    }
}

bool operator==(const LedgerState &a, const LedgerState &b) noexcept
{
    return std::ranges::equal(a.m_accounts, b.m_accounts,
                              [](const auto &left, const auto &right) {
                                  return left.constData() == right.constData() ||
                                         *left.constData() == *right.constData();
                              }) &&
           a.m_table == b.m_table;
}

} // namespace kiv::accounting::internal

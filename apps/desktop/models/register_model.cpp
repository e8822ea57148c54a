// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/register_model.h"

#include "accounting/account_types.h"

#include <algorithm>
#include <bitset>

namespace kiv::desktop {

using accounting::Account;
using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionNumber;
using numira::Decimal;
using numira::Money;
using workbench::AccountIndex;

namespace {

/// With more runs of rows that come or go, all are exchanged at once.
constexpr std::size_t runsMost = 300;

/// The days and amounts of a transaction before and after.
struct Change {
    std::optional<Transaction> before;
    std::optional<Transaction> after;
};

/// All transactions that differ, by number.
std::map<TransactionNumber, Change> changesBetween(const AccountIndex &before,
                                                   const AccountIndex &after,
                                                   std::optional<AccountNumber> account)
{
    static const accounting::TransactionList none;
    std::map<TransactionNumber, Change> changes;
    const auto compare = [&](const Account *old, const Account *now) {
        const accounting::TransactionList &left = old ? old->transactions() : none;
        const accounting::TransactionList &right = now ? now->transactions() : none;
        for (const TransactionNumber number : changedTransactions(left, right)) {
            Change &change = changes[number];
            if (!change.before)
                change.before = left.find(number);
            if (!change.after)
                change.after = right.find(number);
        }
    };
    if (account) {
        compare(before.find(*account), after.find(*account));
        return changes;
    }
    for (const Account &old : before.accounts())
        compare(&old, after.find(old.code().number()));
    for (const Account &now : after.accounts()) {
        if (!before.find(now.code().number()))
            compare(nullptr, &now);
    }
    return changes;
}

/// Whether an account has another name, so that rows read otherwise.
bool namesDiffer(const AccountIndex &before, const AccountIndex &after)
{
    const auto code = [](const Account &account) -> const accounting::AccountCode & {
        return account.code();
    };
    return !std::ranges::equal(before.accounts(), after.accounts(), {}, code, code);
}

} // namespace

struct RegisterModel::Difference {
    std::vector<TransactionNumber> numbers;      ///< all that differ
    std::vector<Key> gone;                       ///< rows to take away, in order
    std::vector<Row> come;                       ///< rows to put in, in order
    std::vector<Row> stay;                       ///< rows that only change, in order
    std::vector<std::pair<Key, Decimal>> shifts; ///< of the balance, from each row on

    [[nodiscard]] bool isScattered() const { return gone.size() + come.size() > runsMost; }
};

RegisterModel::RegisterModel(bool showsTerms, QObject *parent) : QAbstractTableModel(parent)
{
    using enum Column;
    if (showsTerms)
        m_columns = {Number, Day, Text, Debit, Credit, Mark, Amount, Balance};
    else
        m_columns = {Day, Text, Other, Mark, Amount, Balance};
}

RegisterModel::~RegisterModel() = default;

// ---- from old to new ---------------------------------------------------------------

void RegisterModel::show(std::shared_ptr<const AccountIndex> accounts,
                         std::optional<AccountNumber> account,
                         navigation::CurrencyDisplayOptions displayAs, const Days &days)
{
    bool isShownOtherwise = std::exchange(m_displayAs, displayAs) != displayAs;
    isShownOtherwise = std::exchange(m_days, days) != days || isShownOtherwise;
    if (isOther(*accounts, account)) {
        replace(std::move(accounts), account);
        return;
    }
    isShownOtherwise = isShownOtherwise || namesDiffer(*m_accounts, *accounts);
    const Difference difference = differenceTo(*accounts);
    if (!difference.numbers.empty())
        emit changing(difference.numbers);
    if (difference.isScattered())
        replace(std::move(accounts), account);
    else
        apply(difference, std::move(accounts));
    if (isShownOtherwise && !m_rows.empty())
        emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

bool RegisterModel::isOther(const AccountIndex &accounts,
                            std::optional<AccountNumber> account) const
{
    if (!m_accounts || m_account != account)
        return true;
    if (!account)
        return false;
    const Account *before = m_accounts->find(*account);
    const Account *after = accounts.find(*account);
    return before->type() != after->type() || before->balance().code() != after->balance().code();
}

void RegisterModel::replace(std::shared_ptr<const AccountIndex> accounts,
                            std::optional<AccountNumber> account)
{
    if (!m_rows.empty()) {
        beginRemoveRows({}, 0, rowCount() - 1);
        m_rows.clear();
        endRemoveRows();
    }
    m_accounts = std::move(accounts);
    m_account = account;
    std::vector<Row> rows = rowsOf(*m_accounts);
    if (rows.empty())
        return;
    beginInsertRows({}, 0, static_cast<int>(rows.size()) - 1);
    m_rows = std::move(rows);
    endInsertRows();
}

std::vector<RegisterModel::Row> RegisterModel::rowsOf(const AccountIndex &accounts) const
{
    std::vector<Row> rows;
    std::bitset<65'536> seen;
    const auto add = [&](const Account &account) {
        const accounting::TransactionList &list = account.transactions();
        for (auto each = list.begin(); each != list.end(); ++each) {
            if (seen.test(each.number().integer()))
                continue;
            seen.set(each.number().integer());
            const Transaction transaction = *each;
            rows.push_back({m_account ? change(transaction, accounts) : Decimal(),
                            transaction.occurredOn().toJulianDay(), account.code().number(),
                            each.number()});
        }
    };
    if (m_account) {
        add(*accounts.find(*m_account));
    } else {
        for (const Account &account : accounts.accounts())
            add(account);
    }
    std::ranges::sort(rows, {}, keyOf);
    if (m_account) {
        Decimal balance;
        for (Row &row : rows)
            row.balance = balance += row.balance;
    }
    return rows;
}

Decimal RegisterModel::change(const Transaction &transaction, const AccountIndex &accounts) const
{
    const bool isDebited = transaction.debiting().number() == *m_account;
    const Decimal &amount = transaction.amountFor(*m_account).amount();
    return isDebited == isDebitNormal(accounts.find(*m_account)->type()) ? amount : -amount;
}

RegisterModel::Difference RegisterModel::differenceTo(const AccountIndex &accounts) const
{
    Difference difference;
    for (const auto &[number, changed] : changesBetween(*m_accounts, accounts, m_account)) {
        difference.numbers.push_back(number);
        const auto rowOfSide = [&, key = number](const Transaction &transaction) {
            return Row{{},
                       transaction.occurredOn().toJulianDay(),
                       m_account.value_or(transaction.debiting().number()),
                       key};
        };
        const auto &[before, after] = changed;
        const bool isInPlace = before && after && before->occurredOn() == after->occurredOn();
        if (before && !isInPlace)
            difference.gone.push_back(keyOf(rowOfSide(*before)));
        if (after)
            (isInPlace ? difference.stay : difference.come).push_back(rowOfSide(*after));
        if (!m_account)
            continue;
        if (before)
            difference.shifts.emplace_back(keyOf(rowOfSide(*before)),
                                           -change(*before, *m_accounts));
        if (after)
            difference.shifts.emplace_back(keyOf(rowOfSide(*after)), change(*after, accounts));
    }
    std::ranges::sort(difference.gone);
    std::ranges::sort(difference.come, {}, keyOf);
    std::ranges::sort(difference.stay, {}, keyOf);
    std::ranges::sort(difference.shifts);
    return difference;
}

void RegisterModel::apply(const Difference &difference,
                          std::shared_ptr<const AccountIndex> accounts)
{
    // Rows that go are still found in the old accounts, rows that come in the new ones.
    removeRuns(difference.gone);
    m_accounts = std::move(accounts);
    for (const Row &row : difference.stay)
        m_rows[static_cast<std::size_t>(lowerBound(keyOf(row)))].account = row.account;
    insertRuns(difference.come);
    shiftBalances(difference);
    for (const Row &row : difference.stay) {
        const int at = lowerBound(keyOf(row));
        emit dataChanged(index(at, 0), index(at, columnCount() - 1));
    }
}

void RegisterModel::removeRuns(const std::vector<Key> &gone)
{
    for (std::size_t end = gone.size(); end > 0;) {
        const int last = lowerBound(gone[--end]);
        int first = last;
        while (end > 0 && lowerBound(gone[end - 1]) == first - 1) {
            --first;
            --end;
        }
        beginRemoveRows({}, first, last);
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + last + 1);
        endRemoveRows();
    }
}

void RegisterModel::insertRuns(const std::vector<Row> &come)
{
    for (std::size_t end = come.size(); end > 0;) {
        const int at = lowerBound(keyOf(come[end - 1]));
        std::size_t begin = end - 1;
        while (begin > 0 && lowerBound(keyOf(come[begin - 1])) == at)
            --begin;
        const auto run = static_cast<int>(end - begin);
        beginInsertRows({}, at, at + run - 1);
        m_rows.insert(m_rows.begin() + at, come.begin() + static_cast<std::ptrdiff_t>(begin),
                      come.begin() + static_cast<std::ptrdiff_t>(end));
        // Until shiftBalances() adds what they bring.
        const Decimal before =
            at > 0 ? m_rows[static_cast<std::size_t>(at) - 1].balance : Decimal();
        for (int row = at; row < at + run; ++row)
            m_rows[static_cast<std::size_t>(row)].balance = before;
        endInsertRows();
        end = begin;
    }
}

void RegisterModel::shiftBalances(const Difference &difference)
{
    if (difference.shifts.empty())
        return;
    const int first = lowerBound(difference.shifts.front().first);
    Decimal shift;
    auto next = difference.shifts.begin();
    int changedLast = -1;
    for (int at = first; at < rowCount(); ++at) {
        Row &row = m_rows[static_cast<std::size_t>(at)];
        for (; next != difference.shifts.end() && next->first <= keyOf(row); ++next)
            shift += next->second;
        if (shift.sign() != 0) {
            row.balance += shift;
            changedLast = at;
        }
    }
    if (changedLast >= first) {
        const int column = place(Column::Balance);
        emit dataChanged(index(first, column), index(changedLast, column));
    }
}

// ---- what is where -----------------------------------------------------------------

int RegisterModel::place(Column column) const
{
    const auto found = std::ranges::find(m_columns, column);
    return found == m_columns.end() ? -1 : static_cast<int>(found - m_columns.begin());
}

int RegisterModel::lowerBound(const Key &key) const
{
    return static_cast<int>(std::ranges::lower_bound(m_rows, key, {}, keyOf) - m_rows.begin());
}

TransactionNumber RegisterModel::number(int row) const
{
    return m_rows.at(static_cast<std::size_t>(row)).number;
}

int RegisterModel::rowOf(TransactionNumber number) const
{
    const auto found = std::ranges::find(m_rows, number, &Row::number);
    return found == m_rows.end() ? -1 : static_cast<int>(found - m_rows.begin());
}

Transaction RegisterModel::transaction(int row) const
{
    const Row &found = m_rows.at(static_cast<std::size_t>(row));
    return m_accounts->find(found.account)->transactions().find(found.number).value();
}

Money RegisterModel::balance(int row) const
{
    return {m_accounts->find(*m_account)->balance().code(),
            m_rows.at(static_cast<std::size_t>(row)).balance};
}

RegisterModel::Section RegisterModel::section(int row) const
{
    const QDate day = QDate::fromJulianDay(m_rows.at(static_cast<std::size_t>(row)).day);
    if (day > m_days.today)
        return Section::Ahead;
    return m_days.reconciled.isValid() && day <= m_days.reconciled ? Section::Reconciled
                                                                   : Section::Present;
}

Money RegisterModel::amount(int row) const
{
    if (!m_account)
        return signedAmount(transaction(row));
    const auto at = static_cast<std::size_t>(row);
    const Decimal before = at > 0 ? m_rows[at - 1].balance : Decimal();
    return {m_accounts->find(*m_account)->balance().code(), m_rows.at(at).balance - before};
}

int RegisterModel::direction(const Transaction &transaction) const
{
    const auto holds = [this](const accounting::AccountCode &code) {
        const Account *account = m_accounts->find(code.number());
        return account && workbench::keepsMoney(*account);
    };
    return int{holds(transaction.debiting())} - int{holds(transaction.crediting())};
}

Money RegisterModel::signedAmount(const Transaction &transaction) const
{
    if (m_account)
        return {transaction.amountFor(*m_account).code(), change(transaction, *m_accounts)};
    return direction(transaction) < 0 ? -transaction.amount() : transaction.amount();
}

int RegisterModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int RegisterModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_columns.size());
}

} // namespace kiv::desktop

// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/ledger_rows.h"

#include "accounting/errors.h"
#include "accounting/ledger_replay.h"

#include "budgeting/item_account.h"

#include <QtCore/QHash>
#include <QtCore/QObject>

#include <limits>
#include <map>
#include <set>
#include <vector>

namespace kiv::storage::internal {
namespace {

using accounting::AccountCode;
using accounting::AccountNumber;
using accounting::AccountTypes;
using accounting::LedgerReplay;
using accounting::StoredTransaction;
using accounting::TransactionNumber;
using accounting::TransactionStatuses;

constexpr std::int64_t accountNumberMax = std::numeric_limits<std::uint32_t>::max();
constexpr std::int64_t transactionNumberMax = std::numeric_limits<std::uint16_t>::max();

struct AccountRow {
    QString name;
    std::optional<AccountNumber> parent;
    AccountTypes type = AccountTypes::Unknown;
    StoredCurrency currency;
    bool isClosed = false;
    bool holdsOpenings = false;
    std::optional<TransactionNumber> openedBy;
    bool isReplayed = false;
};
/// In the order of their numbers.
using AccountRows = std::map<AccountNumber, AccountRow>;

AccountNumber toAccountNumber(std::int64_t number) noexcept
{
    return AccountNumber(static_cast<std::uint32_t>(number));
}

TransactionNumber toTransactionNumber(std::int64_t number) noexcept
{
    return TransactionNumber(static_cast<std::uint16_t>(number));
}

/// The descriptions that were written, with the first transaction that has each.
using Descriptions = QHash<QStringView, std::int64_t>;

/// A text that stands there already is not written again.
void writeDescription(RowWriter &row, const StoredTransaction &transaction, Descriptions &written)
{
    if (!transaction.description) {
        row.null();
        return;
    }
    std::int64_t &first = written[*transaction.description];
    if (first > 0) {
        row.integer(first);
        return;
    }
    first = transaction.number.integer();
    row.text(*transaction.description);
}

template <typename Number>
std::optional<std::int64_t> integer(const std::optional<Number> &number)
{
    return number ? std::optional<std::int64_t>(number->integer()) : std::nullopt;
}

/// Null where it is the transaction's own amount.
void writeSide(RowWriter &row, const std::optional<numira::Money> &side)
{
    if (side)
        row.amount(*side);
    else
        row.null();
}

void write(RowWriter &row, const StoredTransaction &transaction, Descriptions &written)
{
    row.integer(transaction.number.integer()).date(transaction.day);
    row.integer(transaction.debit.integer()).integer(transaction.credit.integer());
    row.money(transaction.amount);
    writeSide(row, transaction.debitAmount);
    writeSide(row, transaction.creditAmount);
    writeDescription(row, transaction, written);
    row.integer(static_cast<int>(transaction.debitStatus));
    row.integer(static_cast<int>(transaction.creditStatus));
    row.optionalInteger(integer(transaction.refundOf));
}

AccountRows readAccounts(RowSource &source)
{
    AccountRows accounts;
    RowReader row(source, Table::Accounts);
    while (row.next()) {
        if (row.key() > accountNumberMax)
            row.refuse("has a number that no account has");
        AccountRow account;
        account.name = row.text();
        if (const auto parent = row.optionalInteger(1, accountNumberMax))
            account.parent = toAccountNumber(*parent);
        account.type = row.enumerator(AccountTypes::Income);
        account.currency = row.currency();
        account.isClosed = row.boolean();
        account.holdsOpenings = row.boolean();
        if (const auto openedBy = row.optionalInteger(1, transactionNumberMax))
            account.openedBy = toTransactionNumber(*openedBy);
        accounts.emplace_hint(accounts.end(), toAccountNumber(row.key()), std::move(account));
    }
    return accounts;
}

/// Parents first, whatever their numbers. The ledger refuses an account whose parents
/// form a circle or are missing, as one with an unknown parent.
void replayAccounts(LedgerReplay &replay, AccountRows &accounts)
{
    std::vector<AccountRows::value_type *> waiting;
    for (auto &entry : accounts) {
        auto *next = &entry;
        while (!next->second.isReplayed) {
            waiting.push_back(next);
            next->second.isReplayed = true;
            const auto parent =
                next->second.parent ? accounts.find(*next->second.parent) : accounts.end();
            if (parent == accounts.end())
                break;
            next = &*parent;
        }
        for (; !waiting.empty(); waiting.pop_back()) {
            const auto &[number, account] = *waiting.back();
            replay.addAccount(account.type, AccountCode(number, account.name, account.parent),
                              account.currency.currency, account.holdsOpenings);
        }
    }
}

bool isItemsAccount(const AccountRow &account)
{
    static const QString suffix = budgeting::itemAccountName(budgeting::BudgetSource());
    return account.name.endsWith(suffix);
}

/// Version 1.1.0 took the rate of the moment when an item's account came back to
/// the entered currency, or the account of a side was exchanged. So amounts in one
/// currency could differ, which the ledger refuses. The accounts whose sides are
/// made equal to the other amount go into `settled`.
void settleSides(StoredTransaction &read, const AccountRows &accounts,
                 std::set<AccountNumber> &settled)
{
    numira::Money debit = read.debitAmount.value_or(read.amount);
    numira::Money credit = read.creditAmount.value_or(read.amount);
    const auto settle = [&](numira::Money &side, const numira::Money &other, AccountNumber number) {
        if (side.code() == other.code() && side != other) {
            side = other;
            settled.insert(number);
        }
    };
    const auto isItems = [&](AccountNumber number) {
        const auto account = accounts.find(number);
        return account != accounts.end() && isItemsAccount(account->second);
    };
    if (isItems(read.debit))
        settle(debit, read.amount, read.debit);
    if (isItems(read.credit))
        settle(credit, read.amount, read.credit);
    if (debit.code() != read.amount.code()) {
        if (isItems(read.debit))
            settle(debit, credit, read.debit);
        else
            settle(credit, debit, read.credit);
    }
    read.debitAmount = debit;
    read.creditAmount = credit;
}

/// Posts the rows of the transactions.
class TransactionReader {
public:
    TransactionReader(LedgerReplay &replay, const AccountRows &accounts, RowSource &source)
        : m_replay(replay), m_accounts(accounts), m_row(source, Table::Transactions)
    {
    }

    void read()
    {
        m_row.forEach([this] { m_replay.post(transaction()); });
    }
    /// The accounts in which amounts were mended.
    [[nodiscard]] const std::set<AccountNumber> &settled() const noexcept { return m_settled; }

private:
    /// With its sides as they were stored, or as they are mended.
    [[nodiscard]] StoredTransaction transaction()
    {
        if (m_row.key() > transactionNumberMax)
            m_row.refuse("has a number that no transaction has");
        StoredTransaction read;
        read.number = toTransactionNumber(m_row.key());
        read.day = m_row.date();
        read.debit = toAccountNumber(m_row.integer(1, accountNumberMax));
        read.credit = toAccountNumber(m_row.integer(1, accountNumberMax));
        read.amount = m_row.money();
        read.debitAmount = m_row.optionalAmount([&] { return currencyOf(read.debit); });
        read.creditAmount = m_row.optionalAmount([&] { return currencyOf(read.credit); });
        readDescription(read);
        read.debitStatus = m_row.enumerator(TransactionStatuses::Reconciled);
        read.creditStatus = m_row.enumerator(TransactionStatuses::Reconciled);
        if (const auto original = m_row.optionalInteger(1, transactionNumberMax))
            read.refundOf = toTransactionNumber(*original);
        if (read.debitAmount || read.creditAmount)
            settleSides(read, m_accounts, m_settled);
        return read;
    }

    [[nodiscard]] StoredCurrency currencyOf(AccountNumber number) const
    {
        const auto account = m_accounts.find(number);
        if (account == m_accounts.end())
            m_row.refuse("is about no account");
        return account->second.currency;
    }

    void readDescription(StoredTransaction &read)
    {
        const SharedText shared = m_row.sharedText();
        read.description = shared.text;
        if (!shared.sameAs)
            return;
        read.describedAs = toTransactionNumber(*shared.sameAs);
        if (!m_replay.hasDescription(*read.describedAs))
            m_row.refuse("has the description of a transaction without one");
    }

    LedgerReplay &m_replay;
    const AccountRows &m_accounts;
    RowReader m_row;
    std::set<AccountNumber> m_settled;
};

} // namespace

void writeLedger(RowSink &sink, const accounting::GeneralLedger &ledger)
{
    RowWriter accounts(sink, Table::Accounts);
    for (const AccountCode &code : ledger.accountCodes()) {
        const accounting::LedgerAccount account = ledger.ledger(code);
        accounts.integer(code.number().integer()).text(code.name());
        accounts.optionalInteger(integer(code.parent()));
        accounts.integer(static_cast<int>(account.type()));
        accounts.currency(account.balance().code());
        accounts.integer(account.isClosed()).integer(account.holdsOpenings());
        accounts.optionalInteger(integer(account.openedBy())).endRow();
    }
    RowWriter row(sink, Table::Transactions);
    accounting::StoredTransactions transactions(ledger);
    Descriptions descriptions;
    descriptions.reserve(static_cast<qsizetype>(ledger.transactionCount()));
    row.writeAll([&] {
        const auto transaction = transactions.next();
        if (transaction)
            write(row, *transaction, descriptions);
        return transaction.has_value();
    });
}

accounting::GeneralLedger readLedger(RowSource &source, QStringList &mended)
{
    LedgerReplay replay;
    AccountRows accounts = readAccounts(source);
    replayAccounts(replay, accounts);
    TransactionReader transactions(replay, accounts, source);
    transactions.read();
    replay.markRefunds();
    for (const AccountNumber number : transactions.settled()) {
        mended << QObject::tr("Amounts in the account '%1' that differed from those of their "
                              "transactions in the same currency were corrected.")
                      .arg(accounts.at(number).name);
    }
    for (const auto &[number, account] : accounts) {
        if (account.openedBy)
            replay.markOpening(number, *account.openedBy);
    }
    for (const auto &[number, account] : accounts) {
        if (!account.isClosed)
            continue;
        try {
            replay.close(number);
        } catch (const accounting::AccountError &) {
            mended << QObject::tr("The closed account '%1' has a balance and was opened.")
                          .arg(account.name);
        }
    }
    return replay.finish();
}

} // namespace kiv::storage::internal

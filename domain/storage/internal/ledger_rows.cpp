// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/ledger_rows.h"

#include "accounting/errors.h"
#include "accounting/ledger_replay.h"
#include "storage/internal/pipeline.h"
#include "storage/internal/text_codec.h"

#include "budgeting/item_account.h"

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
using accounting::Transaction;
using accounting::TransactionNumber;
using accounting::TransactionStatuses;

constexpr std::int64_t accountNumberMax = std::numeric_limits<std::uint32_t>::max();
constexpr std::int64_t transactionNumberMax = std::numeric_limits<std::uint16_t>::max();

struct AccountRow {
    QString name;
    std::optional<AccountNumber> parent;
    AccountTypes type = AccountTypes::Unknown;
    numira::Currency currency;
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

/// The amount on a side, if it differs from the transaction's.
void writeSide(RowWriter &row, const numira::Money &side, const Transaction &transaction)
{
    if (side == transaction.amount())
        row.null();
    else
        row.decimal(side.amount());
}

AccountRows readAccounts(const ImageDatabase &database, Seal &seal)
{
    AccountRows accounts;
    RowReader row(database, Table::Accounts, seal);
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
                              account.currency, account.holdsOpenings);
        }
    }
}

/// The row of a transaction.
struct TransactionRow {
    TransactionNumber number;
    QDate date;
    AccountNumber debit;
    AccountNumber credit;
    numira::Money amount;
    std::optional<numira::Decimal> debitAmount;
    std::optional<numira::Decimal> creditAmount;
    TransactionStatuses debitStatus = TransactionStatuses::None;
    TransactionStatuses creditStatus = TransactionStatuses::None;
    /// Its description among the texts of its part, if it has one.
    std::optional<std::pair<std::size_t, std::size_t>> description;
};

/// A part of the rows, in their order.
struct TransactionRows {
    std::vector<TransactionRow> rows;
    std::vector<char> texts;
};
constexpr std::size_t rowsInPart = 256;

using Refunds = std::vector<std::pair<TransactionNumber, TransactionNumber>>;

TransactionRow readTransaction(RowReader &row, std::vector<char> &texts, Refunds &refunds)
{
    if (row.key() > transactionNumberMax)
        row.refuse("has a number that no transaction has");
    TransactionRow read;
    read.number = toTransactionNumber(row.key());
    read.date = row.date();
    read.debit = toAccountNumber(row.integer(1, accountNumberMax));
    read.credit = toAccountNumber(row.integer(1, accountNumberMax));
    read.amount = row.money();
    read.debitAmount = row.optionalDecimal();
    read.creditAmount = row.optionalDecimal();
    if (const auto text = row.optionalStoredText()) {
        read.description.emplace(texts.size(), static_cast<std::size_t>(text->size()));
        texts.insert(texts.end(), text->begin(), text->end());
    }
    read.debitStatus = row.enumerator(TransactionStatuses::Reconciled);
    read.creditStatus = row.enumerator(TransactionStatuses::Reconciled);
    if (const auto original = row.optionalInteger(1, transactionNumberMax))
        refunds.emplace_back(read.number, toTransactionNumber(*original));
    return read;
}

std::optional<QString> descriptionOf(const TransactionRow &row, const std::vector<char> &texts)
{
    if (!row.description)
        return std::nullopt;
    const auto [begin, size] = *row.description;
    std::optional<QString> text =
        fromStoredText({texts.data() + begin, static_cast<qsizetype>(size)});
    if (!text)
        throw rowRefused(nameOf(Table::Transactions), row.number.integer(), "has a malformed text");
    return text;
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
void settleSides(numira::Money &debit, numira::Money &credit, const TransactionRow &row,
                 const AccountRows &accounts, std::set<AccountNumber> &settled)
{
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
    if (isItems(row.debit))
        settle(debit, row.amount, row.debit);
    if (isItems(row.credit))
        settle(credit, row.amount, row.credit);
    if (debit.code() == row.amount.code())
        return;
    if (isItems(row.debit))
        settle(debit, credit, row.debit);
    else
        settle(credit, debit, row.credit);
}

/// The transaction with its sides as they were stored, or as they are mended.
Transaction transactionOf(const TransactionRow &row, const std::vector<char> &texts,
                          const AccountRows &accounts, std::set<AccountNumber> &settled)
{
    Transaction transaction(row.date, row.debit, row.credit, row.amount, descriptionOf(row, texts),
                            row.number, row.debitStatus);
    if (row.creditStatus != row.debitStatus)
        transaction = transaction.withStatuses(row.debitStatus, row.creditStatus);
    if (!row.debitAmount && !row.creditAmount)
        return transaction;
    const auto side = [&](AccountNumber number, const std::optional<numira::Decimal> &amount) {
        const auto account = accounts.find(number);
        return amount && account != accounts.end()
                   ? numira::Money(account->second.currency, *amount)
                   : row.amount;
    };
    numira::Money debit = side(row.debit, row.debitAmount);
    numira::Money credit = side(row.credit, row.creditAmount);
    settleSides(debit, credit, row, accounts, settled);
    return transaction.withSideAmounts(debit, credit);
}

Refunds replayTransactions(LedgerReplay &replay, const AccountRows &accounts,
                           const ImageDatabase &database, Seal &seal,
                           std::set<AccountNumber> &settled)
{
    Refunds refunds;
    // Reading the rows of a full ledger takes about as long as applying its rules.
    Pipeline<TransactionRows> posting([&](TransactionRows &part) {
        for (const TransactionRow &row : part.rows)
            replay.post(transactionOf(row, part.texts, accounts, settled));
        part.rows.clear();
        part.texts.clear();
    });
    TransactionRows part;
    try {
        RowReader row(database, Table::Transactions, seal);
        while (row.next()) {
            if (part.rows.size() == rowsInPart)
                posting.add(std::exchange(part, posting.spare()));
            part.rows.push_back(readTransaction(row, part.texts, refunds));
        }
    } catch (...) {
        // A fault of an earlier row is reported instead, so the first wrong row is named.
        posting.finish(std::move(part));
        throw;
    }
    posting.finish(std::move(part));
    return refunds;
}

} // namespace

void writeLedger(const ImageDatabase &database, Seal &seal, const accounting::GeneralLedger &ledger)
{
    const auto integer = [](const auto &number) -> std::optional<std::int64_t> {
        return number ? std::optional<std::int64_t>(number->integer()) : std::nullopt;
    };
    RowWriter accounts(database, Table::Accounts, seal);
    for (const AccountCode &code : ledger.accountCodes()) {
        const accounting::LedgerAccount account = ledger.ledger(code);
        accounts.integer(code.number().integer()).text(code.name());
        accounts.optionalInteger(integer(code.parent()));
        accounts.integer(static_cast<int>(account.type()));
        accounts.currency(account.balance().code());
        accounts.integer(account.isClosed()).integer(account.holdsOpenings());
        accounts.optionalInteger(integer(account.openedBy())).endRow();
    }
    RowWriter transactions(database, Table::Transactions, seal);
    for (const Transaction &transaction : ledger.transactions()) {
        transactions.optionalInteger(integer(transaction.number())).date(transaction.occurredOn());
        transactions.integer(transaction.debiting().number().integer());
        transactions.integer(transaction.crediting().number().integer());
        transactions.money(transaction.amount());
        writeSide(transactions, transaction.debitAmount(), transaction);
        writeSide(transactions, transaction.creditAmount(), transaction);
        transactions.optionalText(transaction.description());
        transactions.integer(static_cast<int>(transaction.debitStatus()));
        transactions.integer(static_cast<int>(transaction.creditStatus()));
        transactions.optionalInteger(integer(transaction.refundOf())).endRow();
    }
}

accounting::GeneralLedger readLedger(const ImageDatabase &database, Seal &seal, QStringList &mended)
{
    LedgerReplay replay;
    AccountRows accounts = readAccounts(database, seal);
    replayAccounts(replay, accounts);
    std::set<AccountNumber> settled;
    for (const auto &[refund, original] :
         replayTransactions(replay, accounts, database, seal, settled))
        replay.markRefund(refund, original);
    for (const AccountNumber number : settled) {
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

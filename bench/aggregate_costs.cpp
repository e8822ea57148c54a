// SPDX-License-Identifier: GPL-3.0-or-later
// Calls of the whole state of a budget: changes, backups, surveys, the file.
#include "book.h"

#include "storage/budget_file.h"

#include <benchmark/benchmark.h>

#include <QtCore/QTemporaryDir>

namespace kiv::bench {
namespace {

using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionNumber;
using accounting::TransactionStatuses;
using banking::BankAccountTypes;
using benchmark::State;
using navigation::internal::BudgetBankLedgers;

void sizes(benchmark::internal::Benchmark *benchmark)
{
    for (const int transactions : bookSizes)
        benchmark->Arg(transactions);
}

int sizeOf(const State &state)
{
    return static_cast<int>(state.range(0));
}

Transaction oneMore()
{
    return {lastDayOfBook(), AccountNumber(busyAccount), AccountNumber(busyAccount + 1),
            numira::Money(numira::toCurrency("USD"), 12, 34), QStringLiteral("One more")};
}

void postAndRemove(State &state)
{
    BudgetBankLedgers whole(book(sizeOf(state)));
    for (auto _ : state)
        whole.remove(whole.post(oneMore()));
}
BENCHMARK(postAndRemove)->Apply(sizes);

/// As a change that can be taken back: the state before it is kept beside.
void postBesideBackup(State &state)
{
    const BudgetBankLedgers &before = book(sizeOf(state));
    for (auto _ : state) {
        BudgetBankLedgers whole(before);
        benchmark::DoNotOptimize(whole.post(oneMore()));
    }
}
BENCHMARK(postBesideBackup)->Apply(sizes);

void repost(State &state)
{
    BudgetBankLedgers whole(book(sizeOf(state)));
    const TransactionNumber number(static_cast<std::uint16_t>((sizeOf(state) + 1) / 2));
    const Transaction transaction = *whole.generalLedger().lookUpTransaction(number);
    for (auto _ : state)
        whole.repost(number, transaction);
}
BENCHMARK(repost)->Apply(sizes);

void clear(State &state)
{
    BudgetBankLedgers whole(book(sizeOf(state)));
    const TransactionNumber number(static_cast<std::uint16_t>((sizeOf(state) + 1) / 2));
    for (auto _ : state)
        whole.clear(number, std::nullopt);
}
BENCHMARK(clear)->Apply(sizes);

void backup(State &state)
{
    const BudgetBankLedgers &whole = book(sizeOf(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(BudgetBankLedgers(whole));
}
BENCHMARK(backup)->Apply(sizes);

void setManaged(State &state)
{
    const BudgetBankLedgers &whole = book(sizeOf(state));
    BudgetBankLedgers other;
    for (auto _ : state)
        other.setManaged(whole.generalLedger(), whole.budget(),
                         whole.budgetLedgers().budgetAccountCodes(), whole.banks(),
                         whole.surveys());
}
BENCHMARK(setManaged)->Apply(sizes);

void generateMapSurvey(State &state)
{
    const BudgetBankLedgers &whole = book(sizeOf(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(
            whole.createMapSurvey(bankOfBook(), AccountNumber(busyAccount), lastDayOfBook()));
}
BENCHMARK(generateMapSurvey)->Apply(sizes);

/// Everything in the account is on the statement.
void finaliseSurvey(State &state)
{
    const BudgetBankLedgers &before = book(sizeOf(state));
    const accounting::LedgerAccount account =
        before.generalLedger().ledger(AccountNumber(busyAccount));
    std::set<TransactionNumber> all;
    for (const Transaction &transaction : account.transactions())
        all.insert(all.end(), *transaction.number());
    const banking::BankAccount bank{bankOfBook(),
                                    {account.code().number(), BankAccountTypes::Checking}};
    const numira::Money nothing(account.balance().code());
    for (auto _ : state) {
        BudgetBankLedgers whole(before);
        benchmark::DoNotOptimize(whole.completedSurvey(lastDayOfBook(), bank, account.balance(),
                                                       all, {}, {}, {}, nothing,
                                                       foundation::Percentage(2.75, 2)));
    }
}
BENCHMARK(finaliseSurvey)->Apply(sizes);

void nonReconciledTransactions(State &state)
{
    const BudgetBankLedgers &whole = book(sizeOf(state));
    const auto item = *whole.budgetLedgers().lookUpBudgetId(AccountNumber(itemsInBook));
    for (auto _ : state)
        benchmark::DoNotOptimize(whole.nonReconciledTransactions(item));
}
BENCHMARK(nonReconciledTransactions)->Apply(sizes);

void store(State &state)
{
    const QTemporaryDir folder;
    const storage::BudgetStorage::Data data = dataOf(book(sizeOf(state)));
    storage::BudgetFile file;
    file.setFilePathName(folder.filePath(QStringLiteral("book.budget")));
    for (auto _ : state)
        file.store(data);
}
BENCHMARK(store)->Apply(sizes)->Unit(benchmark::kMillisecond);

void load(State &state)
{
    const QTemporaryDir folder;
    storage::BudgetFile file;
    file.setFilePathName(folder.filePath(QStringLiteral("book.budget")));
    file.store(dataOf(book(sizeOf(state))));
    for (auto _ : state)
        benchmark::DoNotOptimize(file.load());
}
BENCHMARK(load)->Apply(sizes)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace kiv::bench

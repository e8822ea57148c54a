// SPDX-License-Identifier: GPL-3.0-or-later
#include "book.h"

#include "banking/bank.h"

#include <map>
#include <random>

namespace kiv::bench {
namespace {

using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionStatuses;
using banking::BankAccountTypes;
using budgeting::BudgetSource;
using navigation::internal::BudgetBankLedgers;
using numira::Money;

constexpr int daysInBook = 3652;

QDate firstDay()
{
    return {2016, 1, 1};
}

const numira::Currency &dollar()
{
    static const numira::Currency currency = numira::toCurrency("USD");
    return currency;
}

/// From 1.00 to 500.99.
Money amountFrom(std::uint64_t random)
{
    return {dollar(), static_cast<std::int64_t>(1 + random % 500),
            static_cast<std::uint16_t>(random / 500 % 100), 0};
}

/// Where an item's money goes or comes from.
struct ItemAccount {
    AccountNumber number;
    bool isIncome;
};

std::vector<AccountNumber> addBankAccounts(BudgetBankLedgers &whole)
{
    std::vector<AccountNumber> accounts;
    whole.add(banking::Bank(bankOfBook(), {}, false));
    const auto add = [&](const char *name, BankAccountTypes type) {
        accounts.push_back(
            whole.addAccount(QString::fromLatin1(name), type, Money(dollar())).number());
        whole.addAssociation(bankOfBook(), accounts.back(), type);
    };
    add("Household", BankAccountTypes::Checking);
    add("Joint", BankAccountTypes::Checking);
    add("Reserve", BankAccountTypes::Savings);
    add("Purse", BankAccountTypes::Cash);
    return accounts;
}

std::vector<ItemAccount> addItems(BudgetBankLedgers &whole)
{
    using budgeting::EventFrequency;
    const QDate next = lastDayOfBook().addDays(30);
    std::vector<ItemAccount> accounts;
    for (int index = 0; index < itemsInBook; ++index) {
        const auto named = [index](const char *kind) {
            return BudgetSource(QStringLiteral("%1 %2").arg(QLatin1String(kind)).arg(index));
        };
        const Money amount = amountFrom(static_cast<std::uint64_t>(index) * 97);
        if (index % 10 == 0) {
            const auto code =
                whole.add(budgeting::Wage(named("Wage"), amount, EventFrequency::Monthly, next));
            accounts.push_back({code.number(), true});
        } else if (index % 3 == 0) {
            const auto code =
                whole.add(budgeting::Nontrack(named("Shop"), amount, EventFrequency::Weekly, next));
            accounts.push_back({code.number(), false});
        } else {
            const auto period = index % 2 == 0 ? EventFrequency::Monthly : EventFrequency::Yearly;
            const auto code = whole.add(budgeting::Bill(named("Bill"), amount, period, next));
            accounts.push_back({code.number(), false});
        }
    }
    return accounts;
}

} // namespace

banking::BankName bankOfBook()
{
    return banking::BankName(QStringLiteral("First"));
}

QDate lastDayOfBook()
{
    return firstDay().addDays(daysInBook - 1);
}

std::unique_ptr<BudgetBankLedgers> makeBook(int transactions)
{
    auto whole = std::make_unique<BudgetBankLedgers>();
    const std::vector<AccountNumber> banks = addBankAccounts(*whole);
    const std::vector<ItemAccount> items = addItems(*whole);

    // Only the generator's own numbers are the same everywhere; what the
    // standard distributions make of them is not.
    std::mt19937_64 random(2016);
    for (qint64 index = 0; index < transactions; ++index) {
        const ItemAccount &item = items.at(random() % items.size());
        // Most of a household's money goes through one account.
        const std::uint64_t chosen = random() % 8;
        const AccountNumber bank = chosen < banks.size() ? banks.at(chosen) : banks.front();
        const QDate day = firstDay().addDays(index * daysInBook / transactions);
        whole->post(Transaction(
            day, item.isIncome ? bank : item.number, item.isIncome ? item.number : bank,
            amountFrom(random()), QStringLiteral("Receipt %1").arg(index + 1), std::nullopt,
            random() % 2 == 0 ? TransactionStatuses::Cleared : TransactionStatuses::None));
    }
    return whole;
}

const BudgetBankLedgers &book(int transactions)
{
    static std::map<int, std::unique_ptr<BudgetBankLedgers>> made;
    std::unique_ptr<BudgetBankLedgers> &whole = made[transactions];
    if (!whole)
        whole = makeBook(transactions);
    return *whole;
}

storage::BudgetStorage::Data dataOf(const BudgetBankLedgers &whole)
{
    return {whole.generalLedger(), whole.budget(),  whole.budgetLedgers().budgetAccountCodes(),
            whole.banks(),         whole.surveys(), {}};
}

} // namespace kiv::bench

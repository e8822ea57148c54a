// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/paying_account.h"

#include "workbench/entry/account_index.h"

#include "budgeting/item_traits.h"

#include <stdexcept>

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::Transaction;
using budgeting::BudgetItemIdentifier;
using storage::BudgetStorage;

namespace {

std::optional<AccountNumber> lastUsed(const accounting::Account &item,
                                      const std::function<bool(AccountNumber)> &canPay)
{
    // Days and numbers come without making the transactions, of which the last one mostly is enough.
    std::vector<std::pair<QDate, accounting::TransactionNumber>> entries;
    const accounting::TransactionList &list = item.transactions();
    for (auto each = list.begin(); each != list.end(); ++each)
        entries.emplace_back(each.occurredOn(), each.number());
    // Of one day the transaction with the highest number counts.
    std::ranges::sort(entries, std::greater<>());
    const AccountNumber own = item.code().number();
    for (const auto &[day, number] : entries) {
        const Transaction transaction = list.find(number).value();
        const AccountNumber other = transaction.debiting().number() == own
                                        ? transaction.crediting().number()
                                        : transaction.debiting().number();
        if (canPay(other))
            return other;
    }
    return std::nullopt;
}

std::optional<AccountNumber> firstChecking(const banking::BankMap &banks,
                                           const std::function<bool(AccountNumber)> &canPay)
{
    std::optional<AccountNumber> first;
    for (const auto &[name, bank] : banks) {
        for (const auto &[number, type] : bank.accounts()) {
            if (type == banking::BankAccountTypes::Checking && (!first || number < *first) &&
                canPay(number))
                first = number;
        }
    }
    return first;
}

} // namespace

std::optional<AccountNumber> usualPayer(const accounting::Account *item,
                                        const banking::BankMap &banks,
                                        const std::function<bool(AccountNumber)> &canPay)
{
    if (item) {
        if (const auto last = lastUsed(*item, canPay))
            return last;
    }
    return firstChecking(banks, canPay);
}

std::optional<AccountNumber> accountOf(const BudgetStorage::Data &data,
                                       const BudgetItemIdentifier &item)
{
    const auto unknown = [] { return std::logic_error("An item of no kind has no account."); };
    return budgeting::visitItemClass(
        item.type, unknown,
        [&]<typename Item>(std::type_identity<Item>) -> std::optional<AccountNumber> {
            if (!data.budgetAccountCodes.has<Item>(item.source))
                return std::nullopt;
            return data.budgetAccountCodes.value<Item>(item.source);
        });
}

std::optional<AccountNumber> payingAccount(const BudgetStorage::Data &data,
                                           const BudgetItemIdentifier &item,
                                           std::optional<AccountNumber> said)
{
    const accounting::GeneralLedger &ledger = data.generalLedger;
    const auto canPay = [&ledger](AccountNumber number) {
        if (!ledger.hasLedger(number))
            return false;
        const accounting::LedgerAccount account = ledger.ledger(number);
        return !account.isClosed() && keepsMoney(account);
    };
    if (said && canPay(*said))
        return said;
    const std::optional<AccountNumber> own = accountOf(data, item);
    std::optional<accounting::LedgerAccount> account;
    if (own && ledger.hasLedger(*own))
        account = ledger.ledger(*own);
    return usualPayer(account ? &*account : nullptr, data.banks, canPay);
}

} // namespace kiv::workbench

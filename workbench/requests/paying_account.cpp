// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/paying_account.h"

#include "budgeting/item_traits.h"

#include <stdexcept>

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::Transaction;
using budgeting::BudgetItemIdentifier;
using storage::BudgetStorage;

namespace {

/// Whether money can be paid from the account.
bool canPay(const accounting::GeneralLedger &ledger, AccountNumber number)
{
    if (!ledger.hasLedger(number))
        return false;
    using enum accounting::AccountTypes;
    const accounting::LedgerAccount account = ledger.ledger(number);
    return !account.isClosed() && (account.type() == Asset || account.type() == Liability);
}

std::optional<AccountNumber> lastUsed(const accounting::GeneralLedger &ledger, AccountNumber item)
{
    std::optional<AccountNumber> last;
    QDate day;
    for (const Transaction &transaction : ledger.ledger(item).transactions()) {
        const AccountNumber other = transaction.debiting().number() == item
                                        ? transaction.crediting().number()
                                        : transaction.debiting().number();
        // Of one day the transaction with the highest number counts, which comes last.
        if ((!day.isValid() || transaction.occurredOn() >= day) && canPay(ledger, other)) {
            last = other;
            day = transaction.occurredOn();
        }
    }
    return last;
}

std::optional<AccountNumber> firstChecking(const BudgetStorage::Data &data)
{
    std::optional<AccountNumber> first;
    for (const auto &[name, bank] : data.banks) {
        for (const auto &[number, type] : bank.accounts()) {
            if (type == banking::BankAccountTypes::Checking && (!first || number < *first) &&
                canPay(data.generalLedger, number))
                first = number;
        }
    }
    return first;
}

} // namespace

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
    if (said && canPay(data.generalLedger, *said))
        return said;
    const std::optional<AccountNumber> own = accountOf(data, item);
    if (own && data.generalLedger.hasLedger(*own)) {
        if (const auto last = lastUsed(data.generalLedger, *own))
            return last;
    }
    return firstChecking(data);
}

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/statements/statement_books.h"

#include "workbench/requests/budget_view.h"

namespace kiv::workbench {

using accounting::AccountNumber;
using banking::BankAccountTypes;
using navigation::Navigator;

namespace {

std::optional<accounting::TransactionNumber> openingOf(Requests &requests,
                                                       const accounting::AccountCode &code)
{
    return std::get<accounting::LedgerAccount>(
               requests.ask(&Navigator::showLedger, &Navigator::onSelectedLedger, code))
        .openedBy();
}

/// The first kind of a name alone: the Navigator pays items by their names.
std::vector<PayableItem> payableItems(Requests &requests)
{
    std::vector<PayableItem> items;
    std::set<QString> names;
    BudgetView(requests).budget().forEach([&](const budgeting::BudgetedMoney &item) {
        const budgeting::BudgetItemIdentifier id = identify(item);
        if (!names.insert(id.source.name()).second)
            return;
        if (const auto account = requests.accountOf(id))
            items.push_back({id, item.amount(), *account, item.period(), item.nextOccurOn(),
                             item.dayOfMonth()});
    });
    return items;
}

} // namespace

std::map<AccountNumber, QString> accountsWithStatements(Requests &requests)
{
    std::map<AccountNumber, QString> kept;
    for (const auto &[name, bank] : requests.banks()) {
        for (const auto &[number, type] : bank.accounts()) {
            if (type != BankAccountTypes::Cash && type != BankAccountTypes::GoalSubAccount)
                kept.emplace(number, name.institution());
        }
    }
    return kept;
}

StatementBooks statementBooks(Requests &requests, const accounting::Account &account)
{
    StatementBooks books{account.code(), account.balance().code()};
    books.opening = openingOf(requests, account.code());
    const AccountIndex index = requests.accounts();
    books.accounts = index.accounts();
    books.posted = requests.transactions();
    for (const auto &[number, bank] : accountsWithStatements(requests))
        books.kept.insert(number);
    books.items = payableItems(requests);
    return books;
}

} // namespace kiv::workbench

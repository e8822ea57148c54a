// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/versions/changes.h"

#include "workbench/entry/kind_words.h"

#include "budgeting/budget_items.h"
#include "interchange/account_paths.h"

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::Transaction;
using storage::BudgetStorage;

namespace {

/// Names of accounts do not matter for a transaction.
bool isSame(const Transaction &before, const Transaction &after)
{
    const auto seen = [](const Transaction &transaction) {
        return std::tuple(transaction.occurredOn(), transaction.debiting().number(),
                          transaction.crediting().number(), transaction.description(),
                          transaction.refundOf(), transaction.debitStatus(),
                          transaction.creditStatus());
    };
    return seen(before) == seen(after) && before.amount() == after.amount() &&
           before.debitAmount() == after.debitAmount() &&
           before.creditAmount() == after.creditAmount();
}

template <typename State>
bool isSame(const State &before, const State &after)
{
    return before == after;
}

/// Compares two maps; `nameOf` makes a name of a key.
template <typename Things, typename NameOf>
void compare(const Things &before, const Things &after, NameOf nameOf, std::vector<Change> &changes)
{
    for (const auto &[key, was] : before) {
        const auto found = after.find(key);
        if (found == after.end())
            changes.push_back({nameOf(key), was, std::nullopt});
        else if (!isSame(was, found->second))
            changes.push_back({nameOf(key), was, found->second});
    }
    for (const auto &[key, is] : after) {
        if (!before.contains(key))
            changes.push_back({nameOf(key), std::nullopt, is});
    }
}

auto itemsIn(const BudgetStorage::Data &data)
{
    std::map<QString, ItemState> items;
    data.budget.forEach([&](const budgeting::BudgetedMoney &item) {
        ItemState state{{budgeting::toBudgetItemTypes(item), item.source()},
                        item.amount(),
                        item.period(),
                        item.nextOccurOn(),
                        std::nullopt,
                        std::nullopt,
                        {}};
        if (const auto *debt = dynamic_cast<const budgeting::Debt *>(&item))
            state.borrowed = debt->borrowed();
        if (const auto *goal = dynamic_cast<const budgeting::Goal *>(&item))
            state.target = goal->final();
        state.tags = data.itemTags.tags(state.id);
        items.emplace(kindWord(state.id.type) + u' ' + item.source().name(), std::move(state));
    });
    return items;
}

auto accountsIn(const BudgetStorage::Data &data)
{
    const std::set<accounting::Account> accounts = data.generalLedger.accounts();
    const auto paths = interchange::accountPaths(accounts);
    // An account with another name is another account.
    std::map<std::pair<AccountNumber, QString>, AccountState> states;
    for (const accounting::Account &account : accounts) {
        const accounting::AccountCode &code = account.code();
        states.emplace(std::pair(code.number(), code.name()),
                       AccountState{code, paths.at(code.number()), account.type(),
                                    account.isClosed(), account.balance()});
    }
    return states;
}

/// Looks only at transactions that the ledgers do not share.
void compareTransactions(const accounting::GeneralLedger &before,
                         const accounting::GeneralLedger &after, std::vector<Change> &changes)
{
    std::vector<Change> added;
    for (const accounting::TransactionNumber number :
         accounting::changedTransactions(before, after)) {
        std::optional<Transaction> was = before.lookUpTransaction(number);
        std::optional<Transaction> is = after.lookUpTransaction(number);
        // A refund changes what is left to refund, which is not shown.
        if (was && is && isSame(*was, *is))
            continue;
        const QString name = accounting::presentationText(number);
        if (was)
            changes.push_back({name, std::move(*was), std::move(is)});
        else
            added.push_back({name, std::nullopt, std::move(is)});
    }
    std::ranges::move(added, std::back_inserter(changes));
}

auto banksIn(const BudgetStorage::Data &data)
{
    std::map<banking::BankName, BankState> banks;
    for (const auto &[name, bank] : data.banks) {
        BankState state{name, bank.isClosed(), {}};
        for (const auto &[number, type] : bank.accounts())
            state.accounts.push_back(number);
        banks.emplace(name, std::move(state));
    }
    return banks;
}

auto surveysIn(const BudgetStorage::Data &data)
{
    std::map<QString, SurveyState> surveys;
    for (const auto &[account, survey] : data.surveys) {
        const banking::ReconciledBankAccount &reconciled = survey.reconciled();
        surveys.emplace(account.bank.institution() + u' ' +
                            accounting::presentationText(account.account.number),
                        SurveyState{reconciled.reconciledOn().value_or(QDate()),
                                    reconciled.balance(), survey.nonDistributed()});
    }
    return surveys;
}

} // namespace

std::vector<Change> changesBetween(const BudgetStorage::Data &before,
                                   const BudgetStorage::Data &after)
{
    std::vector<Change> changes;
    const auto itself = [](const QString &name) { return name; };
    compare(itemsIn(before), itemsIn(after), itself, changes);
    compare(
        accountsIn(before), accountsIn(after),
        [](const auto &key) { return accounting::presentationText(key.first) + u' ' + key.second; },
        changes);
    compareTransactions(before.generalLedger, after.generalLedger, changes);
    compare(
        banksIn(before), banksIn(after),
        [](const banking::BankName &name) { return name.institution(); }, changes);
    compare(surveysIn(before), surveysIn(after), itself, changes);
    return changes;
}

} // namespace kiv::workbench

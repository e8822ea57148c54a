// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/surveys/survey_form.h"

#include "workbench/entry/money_text.h"
#include "workbench/entry/values.h"
#include "workbench/internal/faults.h"
#include "workbench/requests/budget_view.h"

#include "foundation/clock.h"

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::TransactionNumber;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using navigation::Navigator;

namespace {

struct Assignment {
    QString name;
    Amount amount;
};

Assignment readAssignment(const QString &text)
{
    const auto [name, value] = assignment(text);
    Assignment read{name, {}};
    readValue(value, read.amount);
    return read;
}

template <typename Changes>
void collectNumbers(const Changes &changes, std::set<TransactionNumber> &numbers)
{
    for (const auto &[key, set] : changes) {
        for (const surveying::BalanceChange &change : set)
            numbers.insert(change.transaction().number().value());
    }
}

template <typename Key>
surveying::IndexedIncreaseDecreases<Key> bySign(const std::map<Key, numira::Money> &changes)
{
    std::map<Key, numira::Money> increases;
    std::map<Key, numira::Money> decreases;
    for (const auto &[key, money] : changes)
        (money.isNegative() ? decreases : increases).emplace(key, money.abs());
    return {std::move(increases), std::move(decreases)};
}

} // namespace

SurveyForm SurveyForm::propose(Requests &requests, const QString &bank, const QString &account,
                               QDate date)
{
    const banking::BankName name = requests.bank(bank).name();
    const AccountNumber number = requests.accounts().find(account).code().number();
    const auto kept = std::get<std::set<banking::AccountNumberBankType>>(
        requests.ask(&Navigator::lookedUpBankAccounts, &Navigator::onLookUpBankAccounts, name,
                     navigation::AllowSubAccounts(true)));
    const auto found = std::ranges::find(kept, number, &banking::AccountNumberBankType::number);
    if (found == kept.end())
        throw internal::notABankAccount(account);

    SurveyForm form;
    form.account = {name, *found};
    form.accounts.insert(number);
    const AccountIndex index = requests.accounts();
    for (const accounting::Account &other : index.accounts()) {
        if (other.code().parent() == number)
            form.accounts.insert(other.code().number());
    }
    form.date = date;
    form.proposal = std::get<surveying::MappingSurvey>(
        requests.ask(&Navigator::generatedMappingSurvey, &Navigator::onGenerateMappingSurvey, name,
                     number, date));
    form.balance = form.proposal.expectedBalance();
    form.distribution = form.proposal.distributions();
    collectNumbers(form.proposal.budgetItemChanges(), form.reconciled);
    collectNumbers(form.proposal.accountChanges(), form.reconciled);
    try {
        form.nonDistributed = form.left();
    } catch (const std::exception &) {
        // Unknown without an exchange rate; it is for information only.
        form.nonDistributed = numira::Money(form.balance.code());
    }
    return form;
}

SurveyForm SurveyForm::drop(Requests &requests, const QString &bank, const QString &account)
{
    SurveyForm form = propose(requests, bank, account, foundation::today());
    const banking::ReconciledBankAccount &last = form.proposal.reconciled();
    if (!last.reconciledOn())
        throw internal::neverReconciled(requests.accounts().plainName(form.account.account.number));
    form.date = *last.reconciledOn();
    form.balance = form.nonDistributed = last.balance();
    form.reconciled.clear();
    form.distribution.clear();
    return form;
}

void SurveyForm::addItem(Requests &requests, const QString &text)
{
    const Assignment read = readAssignment(text);
    items.insert_or_assign(BudgetView(requests).findTyped(read.name),
                           read.amount.in(balance.code()));
}

void SurveyForm::addExtra(Requests &requests, const QString &text)
{
    const Assignment read = readAssignment(text);
    extras.insert_or_assign(requests.accounts().find(read.name).code().number(),
                            read.amount.in(balance.code()));
}

void SurveyForm::distribute(Requests &requests, const QString &text)
{
    const Assignment read = readAssignment(text);
    distribution[BudgetView(requests).findTyped(read.name)] = read.amount.in(balance.code());
}

void SurveyForm::settleGoals(Requests &requests)
{
    const AccountIndex index = requests.accounts();
    for (auto &[id, amount] : distribution) {
        if (id.type != BudgetItemTypes::Goal)
            continue;
        const std::optional<AccountNumber> number = requests.accountOf(id);
        if (const accounting::Account *own = number ? index.find(*number) : nullptr)
            amount = own->balance();
    }
}

void SurveyForm::complete(Requests &requests) const
{
    requests.change(surveyOutcome, &Navigator::onCompletedSurvey, date, account, balance,
                    reconciled, itemChanges(), accountChanges(), distribution, nonDistributed);
}

bool SurveyForm::isOwed() const
{
    return banking::isLiabilityAccount(account.account.type);
}

std::vector<accounting::Transaction> SurveyForm::transactions() const
{
    // A transaction within the surveyed accounts may be there once for each side.
    std::map<std::pair<QDate, TransactionNumber>, accounting::Transaction> ordered;
    const auto collect = [&ordered](const auto &changes) {
        for (const auto &[key, set] : changes) {
            for (const surveying::BalanceChange &change : set) {
                const accounting::Transaction &one = change.transaction();
                ordered.emplace(std::pair(one.occurredOn(), one.number().value()), one);
            }
        }
    };
    collect(proposal.budgetItemChanges());
    collect(proposal.accountChanges());
    for (const accounting::Transaction &one : elsewhere)
        ordered.emplace(std::pair(one.occurredOn(), one.number().value()), one);
    std::vector<accounting::Transaction> all;
    for (auto &[place, transaction] : ordered)
        all.push_back(std::move(transaction));
    return all;
}

numira::Money SurveyForm::changeBy(const accounting::Transaction &transaction) const
{
    const AccountNumber debit = transaction.debiting().number();
    const AccountNumber credit = transaction.crediting().number();
    const AccountNumber number = account.account.number;
    const bool isDebited = debit == number || (credit != number && accounts.contains(debit));
    const numira::Money &amount = transaction.amountFor(isDebited ? debit : credit);
    return isDebited == isOwed() ? -amount : amount;
}

AccountNumber SurveyForm::otherOf(const accounting::Transaction &transaction) const
{
    const AccountNumber debit = transaction.debiting().number();
    const AccountNumber credit = transaction.crediting().number();
    if (credit == account.account.number)
        return debit;
    return accounts.contains(debit) ? credit : debit;
}

bool SurveyForm::isWithin(const accounting::Transaction &transaction) const
{
    return accounts.contains(transaction.debiting().number()) &&
           accounts.contains(transaction.crediting().number());
}

numira::Money SurveyForm::missing() const
{
    numira::Money rest = balance;
    rest -= proposal.reconciled().balance();
    for (const accounting::Transaction &transaction : transactions()) {
        if (reconciled.contains(transaction.number().value()) && !isWithin(transaction))
            rest -= changeBy(transaction);
    }
    for (const auto &[id, money] : items)
        rest -= money;
    for (const auto &[number, money] : extras)
        rest -= money;
    return rest;
}

Deed SurveyForm::deed(Requests &requests) const
{
    const QString name = requests.accounts().plainName(account.account.number);
    return {QObject::tr("Reconciled %1 at %2 with a balance of %3.")
                .arg(name, account.bank.institution(), amountText(balance, requests.displayAs())),
            QObject::tr("reconciling “%1”").arg(name),
            {}};
}

numira::Money SurveyForm::left() const
{
    numira::Money rest = balance;
    for (const auto &[id, amount] : distribution)
        rest -= amount.distributed();
    return rest;
}

surveying::IndexedIncreaseDecreases<BudgetItemIdentifier> SurveyForm::itemChanges() const
{
    return bySign(items);
}

surveying::IndexedIncreaseDecreases<AccountNumber> SurveyForm::accountChanges() const
{
    return bySign(extras);
}

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#include "survey_form.h"

#include "budget_view.h"
#include "output/json.h"
#include "parsing/json_input.h"
#include "parsing/values.h"

namespace kiv::app {

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
    const qsizetype at = text.lastIndexOf(u'=');
    if (at < 1)
        throw notAnAssignment(text);
    Assignment read{text.first(at), {}};
    readValue(text.sliced(at + 1).toStdString(), read.amount);
    return read;
}

/// An item by its name, with its kind and a colon before it where names repeat.
BudgetItemIdentifier findItem(Session &session, const QString &text)
{
    const BudgetView view(session);
    const qsizetype at = text.indexOf(u':');
    std::optional<BudgetItemTypes> kind;
    budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        if (at > 0 && text.first(at) == QLatin1String(budgeting::ItemTraits<Item>::word))
            kind = budgeting::ItemTraits<Item>::type;
    });
    return identify(view.find(kind ? text.sliced(at + 1) : text, kind));
}

BudgetItemIdentifier readItem(const QJsonValue &json)
{
    BudgetItemIdentifier id;
    readValue(json[QLatin1String("kind")].toString().toStdString(), id.type);
    id.source = budgeting::BudgetSource(json[QLatin1String("name")].toString());
    return id;
}

QJsonObject itemJson(const BudgetItemIdentifier &id)
{
    return {{QStringLiteral("kind"), kindWord(id.type)},
            {QStringLiteral("name"), id.source.name()}};
}

QJsonObject accountJson(const accounting::AccountCode &code)
{
    return {{QStringLiteral("account"), toJson(code.number())},
            {QStringLiteral("name"), code.name()}};
}

/// One row for each change, with what it did to the balance.
template <typename Changes, typename KeyJson>
QJsonArray changesJson(const Changes &changes, AccountNumber surveyed, KeyJson keyJson)
{
    QJsonArray rows;
    for (const auto &[key, set] : changes) {
        for (const surveying::BalanceChange &change : set) {
            const accounting::Transaction &transaction = change.transaction();
            const numira::Money &amount = transaction.amountFor(surveyed);
            QJsonObject row = keyJson(key);
            row.insert(QStringLiteral("transaction"), toJson(transaction.number()));
            row.insert(QStringLiteral("date"), toJson(transaction.occurredOn()));
            row.insert(QStringLiteral("description"),
                       transaction.description().value_or(QString()));
            row.insert(QStringLiteral("change"), toJson(change.isIncrease() ? amount : -amount));
            rows.append(row);
        }
    }
    return rows;
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

SurveyForm SurveyForm::propose(Session &session, const QString &bank, const QString &account,
                               QDate date)
{
    const banking::BankName name = session.bank(bank).name();
    const AccountNumber number = session.accounts().find(account).code().number();
    const auto kept = std::get<std::set<banking::AccountNumberBankType>>(
        session.ask(&Navigator::lookedUpBankAccounts, &Navigator::onLookUpBankAccounts, name,
                    navigation::AllowSubAccounts(true)));
    const auto found = std::ranges::find(kept, number, &banking::AccountNumberBankType::number);
    if (found == kept.end())
        throw notABankAccount(account);

    SurveyForm form;
    form.account = {name, *found};
    form.date = date;
    form.proposal = std::get<surveying::MappingSurvey>(
        session.ask(&Navigator::generatedMappingSurvey, &Navigator::onGenerateMappingSurvey, name,
                    number, date));
    form.balance = form.proposal.expectedBalance();
    form.distribution = form.proposal.distributions();
    collectNumbers(form.proposal.budgetItemChanges(), form.reconciled);
    collectNumbers(form.proposal.accountChanges(), form.reconciled);
    try {
        form.nonDistributed = form.left();
    } catch (const std::exception &) {
        // Without an exchange rate nobody can tell; it is for information only.
        form.nonDistributed = numira::Money(form.balance.code());
    }
    return form;
}

SurveyForm SurveyForm::fromJson(Session &session, const QJsonObject &json)
{
    const auto text = [&json](const char *key) {
        return json.value(QLatin1String(key)).toVariant().toString();
    };
    QDate date;
    readPlain(text("date").toStdString(), date);
    SurveyForm form = propose(session, text("bank"), text("account"), date);
    const numira::Currency currency = form.balance.code();
    form.balance = readMoney(json.value(QLatin1String("balance")), currency);
    form.reconciled.clear();
    for (const QJsonValue number : json.value(QLatin1String("reconciled")).toArray()) {
        TransactionNumber read;
        readValue(number.toVariant().toString().toStdString(), read);
        form.reconciled.insert(read);
    }
    const AccountIndex index = session.accounts();
    for (const QJsonValue item : json.value(QLatin1String("items")).toArray())
        form.items.insert_or_assign(readItem(item),
                                    readMoney(item[QLatin1String("change")], currency));
    for (const QJsonValue extra : json.value(QLatin1String("accounts")).toArray()) {
        const QString account = extra[QLatin1String("account")].toVariant().toString();
        form.extras.insert_or_assign(index.find(account).code().number(),
                                     readMoney(extra[QLatin1String("change")], currency));
    }
    form.distribution.clear();
    for (const QJsonValue share : json.value(QLatin1String("distribution")).toArray()) {
        const BudgetItemIdentifier id = readItem(share);
        const auto proposed = form.proposal.distributions().find(id);
        surveying::DistributedAmount amount;
        if (proposed != form.proposal.distributions().end())
            amount = proposed->second;
        amount = readMoney(share[QLatin1String("distributed")], currency);
        form.distribution.insert_or_assign(id, amount);
    }
    return form;
}

QJsonObject SurveyForm::toJson(Session &session) const
{
    using app::toJson;
    const AccountIndex index = session.accounts();
    const banking::ReconciledBankAccount &last = proposal.reconciled();
    const AccountNumber number = account.account.number;
    const std::optional<numira::Money> &due = proposal.amountDue();
    QJsonArray ticked;
    for (const TransactionNumber transaction : reconciled)
        ticked.append(toJson(std::optional(transaction)));
    QJsonArray added;
    for (const auto &[id, money] : items) {
        QJsonObject row = itemJson(id);
        row.insert(QStringLiteral("change"), toJson(money));
        added.append(row);
    }
    QJsonArray extra;
    for (const auto &[other, money] : extras) {
        QJsonObject row = accountJson(index.find(other)->code());
        row.insert(QStringLiteral("change"), toJson(money));
        extra.append(row);
    }
    QJsonArray shares;
    for (const auto &[id, amount] : distribution) {
        QJsonObject row = itemJson(id);
        row.insert(QStringLiteral("distributed"), toJson(amount.distributed()));
        row.insert(QStringLiteral("expected"), toJson(amount.expected().rounded()));
        row.insert(QStringLiteral("next"), toJson(amount.nextOccurOn()));
        shares.append(row);
    }
    return {{QStringLiteral("bank"), account.bank.institution()},
            {QStringLiteral("account"), toJson(number)},
            {QStringLiteral("accountName"), index.find(number)->code().name()},
            {QStringLiteral("date"), toJson(date)},
            {QStringLiteral("reconciledOn"), toJson(last.reconciledOn().value_or(QDate()))},
            {QStringLiteral("reconciledBalance"), toJson(last.balance())},
            {QStringLiteral("start"), toJson(proposal.startOn())},
            {QStringLiteral("expectedBalance"), toJson(proposal.expectedBalance())},
            {QStringLiteral("amountDue"), due ? QJsonValue(toJson(due->rounded())) : QJsonValue()},
            {QStringLiteral("itemChanges"),
             changesJson(proposal.budgetItemChanges(), number, itemJson)},
            {QStringLiteral("accountChanges"),
             changesJson(proposal.accountChanges(), number, accountJson)},
            {QStringLiteral("balance"), toJson(balance)},
            {QStringLiteral("reconciled"), ticked},
            {QStringLiteral("items"), added},
            {QStringLiteral("accounts"), extra},
            {QStringLiteral("distribution"), shares},
            {QStringLiteral("nonDistributed"), toJson(nonDistributed)}};
}

void SurveyForm::addItem(Session &session, const QString &text)
{
    const Assignment read = readAssignment(text);
    items.insert_or_assign(findItem(session, read.name), read.amount.in(balance.code()));
}

void SurveyForm::addExtra(Session &session, const QString &text)
{
    const Assignment read = readAssignment(text);
    extras.insert_or_assign(session.accounts().find(read.name).code().number(),
                            read.amount.in(balance.code()));
}

void SurveyForm::distribute(Session &session, const QString &text)
{
    const Assignment read = readAssignment(text);
    distribution[findItem(session, read.name)] = read.amount.in(balance.code());
}

void SurveyForm::settleGoals(Session &session)
{
    const AccountIndex index = session.accounts();
    for (auto &[id, amount] : distribution) {
        if (id.type != BudgetItemTypes::Goal)
            continue;
        const auto answer = session.ask(&Navigator::lookedUpRefundableTransactions,
                                        &Navigator::onLookUpRefundableTransactions, id);
        const AccountNumber number = std::get<accounting::AccountCode>(answer).number();
        if (const accounting::Account *own = index.find(number))
            amount = own->balance();
    }
}

bool SurveyForm::isOwed() const
{
    return banking::isLiabilityAccount(account.account.type);
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

} // namespace kiv::app

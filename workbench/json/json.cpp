// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/json/json.h"

#include "workbench/entry/kind_words.h"

#include "budgeting/budget_items.h"
#include "foundation/local_dates.h"
#include "foundation/presentation.h"

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::TransactionNumber;

QJsonObject toJson(const numira::Money &money)
{
    return {{QStringLiteral("amount"), foundation::toQString(money)},
            {QStringLiteral("currency"), foundation::toQString(money.code())}};
}

QJsonValue toJson(const QDate &date)
{
    return date.isValid() ? QJsonValue(foundation::isoText(date)) : QJsonValue();
}

QJsonValue toJson(AccountNumber number)
{
    return QJsonValue(qint64{number.integer()});
}

QJsonValue toJson(const std::optional<AccountNumber> &number)
{
    return number ? toJson(*number) : QJsonValue();
}

QJsonValue toJson(const std::optional<TransactionNumber> &number)
{
    return number ? QJsonValue(qint64{number->integer()}) : QJsonValue();
}

QJsonObject accountJson(const accounting::AccountCode &code, accounting::AccountTypes type,
                        bool isOpen, const numira::Money &balance, const QString &path)
{
    return {{QStringLiteral("number"), toJson(code.number())},
            {QStringLiteral("name"), code.name()},
            {QStringLiteral("type"), accounting::toQString(type)},
            {QStringLiteral("parent"), toJson(code.parent())},
            {QStringLiteral("open"), isOpen},
            {QStringLiteral("balance"), toJson(balance)},
            {QStringLiteral("path"), path}};
}

QJsonObject toJson(const accounting::Account &account, const AccountIndex &index)
{
    return accountJson(account.code(), account.type(), !account.isClosed(), account.balance(),
                       index.path(account.code().number()));
}

QJsonObject toJson(const accounting::Transaction &transaction)
{
    QJsonObject json{
        {QStringLiteral("number"), toJson(transaction.number())},
        {QStringLiteral("date"), toJson(transaction.occurredOn())},
        {QStringLiteral("debit"), toJson(transaction.debiting().number())},
        {QStringLiteral("credit"), toJson(transaction.crediting().number())},
        {QStringLiteral("amount"), toJson(transaction.amount())},
        {QStringLiteral("description"), transaction.description().value_or(QString())},
        {QStringLiteral("debitStatus"), accounting::toQString(transaction.debitStatus())},
        {QStringLiteral("creditStatus"), accounting::toQString(transaction.creditStatus())}};
    const numira::Money &amount = transaction.amount();
    if (transaction.debitAmount() != amount || transaction.creditAmount() != amount) {
        json.insert(QStringLiteral("debitAmount"), toJson(transaction.debitAmount()));
        json.insert(QStringLiteral("creditAmount"), toJson(transaction.creditAmount()));
    }
    if (transaction.refundOf())
        json.insert(QStringLiteral("refundOf"), toJson(transaction.refundOf()));
    return json;
}

QJsonObject withPaths(QJsonObject transaction, const AccountIndex &index)
{
    for (const QString &side : {QStringLiteral("debit"), QStringLiteral("credit")}) {
        const AccountNumber number(static_cast<std::uint32_t>(transaction.value(side).toInteger()));
        transaction.insert(side + QStringLiteral("Path"), index.path(number));
    }
    return transaction;
}

QJsonObject toJson(const budgeting::BudgetedMoney &item)
{
    QJsonObject json{{QStringLiteral("kind"), kindWord(budgeting::toBudgetItemTypes(item))},
                     {QStringLiteral("name"), item.source().name()},
                     {QStringLiteral("amount"), toJson(item.amount())},
                     {QStringLiteral("every"), budgeting::toQString(item.period())},
                     {QStringLiteral("next"), toJson(item.nextOccurOn())}};
    if (const auto *debt = dynamic_cast<const budgeting::Debt *>(&item))
        json.insert(QStringLiteral("borrowed"), toJson(debt->borrowed()));
    if (const auto *goal = dynamic_cast<const budgeting::Goal *>(&item))
        json.insert(QStringLiteral("target"), toJson(goal->final()));
    return json;
}

QJsonObject toJson(const budgeting::BudgetedMoney &item, const BudgetView &view)
{
    QJsonObject json = toJson(item);
    QJsonArray tagNames;
    const budgeting::BudgetItemIdentifier id = identify(item);
    for (const tagging::Tag &tag : view.tags(id))
        tagNames.append(tag.name());
    json.insert(QStringLiteral("tags"), tagNames);
    if (const auto account = view.bankAccount(id)) {
        json.insert(QStringLiteral("bankAccount"), toJson(account->account.number));
        json.insert(QStringLiteral("bank"), account->bank.institution());
    }
    return json;
}

QJsonObject toJson(const budgeting::BudgetItemAmountDue &due)
{
    return {{QStringLiteral("kind"), kindWord(due.id.type)},
            {QStringLiteral("name"), due.id.source.name()},
            {QStringLiteral("amount"), toJson(due.amount)},
            {QStringLiteral("due"), toJson(due.id.dueOn)}};
}

QJsonObject toJson(const banking::Bank &bank, const AccountIndex &index)
{
    QJsonArray accounts;
    for (const auto &[number, type] : bank.accounts()) {
        QJsonObject account{{QStringLiteral("number"), toJson(number)},
                            {QStringLiteral("type"), banking::toQString(type)}};
        if (const accounting::Account *ledger = index.find(number)) {
            account.insert(QStringLiteral("name"), ledger->code().name());
            account.insert(QStringLiteral("balance"), toJson(ledger->balance()));
        }
        accounts.append(account);
    }
    return {{QStringLiteral("name"), bank.name().institution()},
            {QStringLiteral("open"), !bank.isClosed()},
            {QStringLiteral("accounts"), accounts}};
}

} // namespace kiv::workbench

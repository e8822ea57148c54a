// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/survey_json.h"

#include "output/json.h"
#include "output/set_aside_json.h"
#include "parsing/json_input.h"

#include "workbench/entry/kind_words.h"
#include "workbench/entry/values.h"
#include "workbench/requests/budget_view.h"

namespace kiv::app {

using accounting::AccountNumber;
using accounting::TransactionNumber;
using budgeting::BudgetItemIdentifier;
using workbench::AccountIndex;
using workbench::BudgetView;
using workbench::identify;
using workbench::readPlain;
using workbench::readValue;
using workbench::Requests;

namespace {

BudgetItemIdentifier readItem(const BudgetView &view, const QJsonValue &json)
{
    budgeting::BudgetItemTypes kind{};
    workbench::readValue(json[QLatin1String("kind")].toString(), kind);
    return identify(view.find(json[QLatin1String("name")].toString(), kind));
}

QJsonObject codeJson(const accounting::AccountCode &code)
{
    return {{QStringLiteral("account"), toJson(code.number())},
            {QStringLiteral("name"), code.name()}};
}

/// One row for each change, with its effect on the balance.
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

/// Null where an exchange rate is missing.
QJsonValue figuresJson(const SurveySheet &sheet)
{
    try {
        const workbench::SheetFigures figures = sheet.figures();
        return QJsonObject{{QStringLiteral("calculated"), toJson(figures.calculated)},
                           {QStringLiteral("difference"), toJson(figures.difference)},
                           {QStringLiteral("percent"),
                            figures.percent
                                ? QJsonValue(QString::fromStdString(figures.percent->toText(2)))
                                : QJsonValue()},
                           {QStringLiteral("accepted"), figures.isAccepted},
                           {QStringLiteral("before"), toJson(figures.before)}};
    } catch (const foundation::Error &) {
        return {};
    }
}

QJsonArray linesJson(const SurveySheet &sheet, navigation::CurrencyDisplayOptions displayAs)
{
    QJsonArray lines;
    for (const workbench::SheetLine &one : sheet.lines()) {
        QJsonObject line = lineJson(one.line, sheet.envelopes, displayAs);
        line.insert(QStringLiteral("proposed"), moneyJson(one.proposed));
        line.insert(QStringLiteral("now"), toJson(one.now));
        line.insert(QStringLiteral("handedOver"), one.isHandedOver);
        lines.append(line);
    }
    return lines;
}

} // namespace

SurveySheet surveyFromJson(Document &document, const QJsonObject &json)
{
    const auto text = [&json](const char *key) {
        return json.value(QLatin1String(key)).toVariant().toString();
    };
    Requests &requests = document.requests();
    QDate date;
    readPlain(text("date"), date);
    SurveySheet sheet =
        SurveySheet::begin(requests, SheetBooks::of(document), text("bank"), text("account"), date);
    SurveyForm &form = sheet.form;
    const numira::Currency currency = form.balance.code();
    form.balance = readMoney(json.value(QLatin1String("balance")), currency);
    form.reconciled.clear();
    for (const QJsonValue number : json.value(QLatin1String("reconciled")).toArray()) {
        TransactionNumber read;
        readValue(number.toVariant().toString(), read);
        form.reconciled.insert(read);
    }
    const AccountIndex index = requests.accounts();
    const BudgetView view(requests);
    for (const QJsonValue item : json.value(QLatin1String("items")).toArray())
        form.items.insert_or_assign(readItem(view, item),
                                    readMoney(item[QLatin1String("change")], currency));
    for (const QJsonValue extra : json.value(QLatin1String("accounts")).toArray()) {
        const QString account = extra[QLatin1String("account")].toVariant().toString();
        form.extras.insert_or_assign(index.find(account).code().number(),
                                     readMoney(extra[QLatin1String("change")], currency));
    }
    surveying::Distribution given;
    for (const QJsonValue share : json.value(QLatin1String("distribution")).toArray()) {
        const BudgetItemIdentifier id = readItem(view, share);
        const auto proposed = form.proposal.distributions().find(id);
        surveying::DistributedAmount amount;
        if (proposed != form.proposal.distributions().end())
            amount = proposed->second;
        amount = readMoney(share[QLatin1String("distributed")], currency);
        given.insert_or_assign(id, amount);
    }
    SurveyForm settled = form;
    settled.distribution = std::move(given);
    settled.settleGoals(requests);
    sheet.exact = std::move(settled.distribution);
    return sheet;
}

QJsonObject toJson(const SurveySheet &sheet, Requests &requests)
{
    const SurveyForm &form = sheet.form;
    const AccountIndex index = requests.accounts();
    const banking::ReconciledBankAccount &last = form.proposal.reconciled();
    const AccountNumber number = form.account.account.number;
    const std::optional<numira::Money> &due = form.proposal.amountDue();
    QJsonArray ticked;
    for (const TransactionNumber transaction : form.reconciled)
        ticked.append(toJson(std::optional(transaction)));
    QJsonArray added;
    for (const auto &[id, money] : form.items) {
        QJsonObject row = itemJson(id);
        row.insert(QStringLiteral("change"), toJson(money));
        added.append(row);
    }
    QJsonArray extra;
    for (const auto &[other, money] : form.extras) {
        QJsonObject row = codeJson(index.find(other)->code());
        row.insert(QStringLiteral("change"), toJson(money));
        extra.append(row);
    }
    QJsonArray shares;
    for (const auto &[id, amount] : sheet.distribution()) {
        QJsonObject row = itemJson(id);
        row.insert(QStringLiteral("distributed"), toJson(amount.distributed()));
        row.insert(QStringLiteral("expected"), toJson(amount.expected().rounded()));
        row.insert(QStringLiteral("next"), toJson(amount.nextOccurOn()));
        shares.append(row);
    }
    QJsonArray elsewhere;
    for (const accounting::Transaction &one : form.elsewhere)
        elsewhere.append(toJson(one));
    return {{QStringLiteral("bank"), form.account.bank.institution()},
            {QStringLiteral("account"), toJson(number)},
            {QStringLiteral("accountName"), index.find(number)->code().name()},
            {QStringLiteral("date"), toJson(form.date)},
            {QStringLiteral("reconciledOn"), toJson(last.reconciledOn().value_or(QDate()))},
            {QStringLiteral("reconciledBalance"), toJson(last.balance())},
            {QStringLiteral("start"), toJson(form.proposal.startOn())},
            {QStringLiteral("expectedBalance"), toJson(form.proposal.expectedBalance())},
            {QStringLiteral("amountDue"), due ? QJsonValue(toJson(due->rounded())) : QJsonValue()},
            {QStringLiteral("itemChanges"),
             changesJson(form.proposal.budgetItemChanges(), number, itemJson)},
            {QStringLiteral("accountChanges"),
             changesJson(form.proposal.accountChanges(), number, codeJson)},
            {QStringLiteral("elsewhere"), elsewhere},
            {QStringLiteral("balance"), toJson(form.balance)},
            {QStringLiteral("reconciled"), ticked},
            {QStringLiteral("items"), added},
            {QStringLiteral("accounts"), extra},
            {QStringLiteral("figures"), figuresJson(sheet)},
            {QStringLiteral("lines"), linesJson(sheet, requests.displayAs())},
            {QStringLiteral("distribution"), shares},
            {QStringLiteral("nonDistributed"), toJson(sheet.rest())}};
}

} // namespace kiv::app

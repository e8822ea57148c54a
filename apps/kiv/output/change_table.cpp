// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/change_table.h"

#include "output/json.h"

#include "workbench/entry/kind_words.h"
#include "workbench/versions/change_text.h"

#include <QtCore/QObject>

#include <array>

namespace kiv::app {

using workbench::Change;

namespace {

template <typename... States>
struct Overloaded : States... {
    using States::operator()...;
};
template <typename... States>
Overloaded(States...) -> Overloaded<States...>;

QJsonObject json(const workbench::ItemState &item)
{
    QJsonObject json{{QStringLiteral("kind"), workbench::kindWord(item.id.type)},
                     {QStringLiteral("name"), item.id.source.name()},
                     {QStringLiteral("amount"), toJson(item.amount)},
                     {QStringLiteral("every"), budgeting::toQString(item.every)},
                     {QStringLiteral("next"), toJson(item.next)}};
    if (item.borrowed)
        json.insert(QStringLiteral("borrowed"), toJson(*item.borrowed));
    if (item.target)
        json.insert(QStringLiteral("target"), toJson(*item.target));
    QJsonArray tags;
    for (const tagging::Tag &tag : item.tags)
        tags.append(tag.name());
    json.insert(QStringLiteral("tags"), tags);
    return json;
}

QJsonObject json(const workbench::AccountState &account)
{
    return accountJson(account.code, account.type, !account.isClosed, account.balance,
                       account.path);
}

QJsonObject json(const workbench::BankState &bank)
{
    QJsonArray numbers;
    for (const accounting::AccountNumber number : bank.accounts)
        numbers.append(toJson(number));
    return {{QStringLiteral("name"), bank.name.institution()},
            {QStringLiteral("open"), !bank.isClosed},
            {QStringLiteral("accounts"), numbers}};
}

QJsonObject json(const workbench::SurveyState &survey)
{
    return {{QStringLiteral("reconciledOn"), toJson(survey.reconciledOn)},
            {QStringLiteral("balance"), toJson(survey.balance)},
            {QStringLiteral("notDistributed"), toJson(survey.nonDistributed)}};
}

QJsonValue json(const std::optional<workbench::Thing> &thing)
{
    if (!thing)
        return {};
    return std::visit(
        Overloaded{[](const accounting::Transaction &transaction) { return toJson(transaction); },
                   [](const auto &state) { return json(state); }},
        *thing);
}

QLatin1String whatOf(const Change &change)
{
    constexpr std::array words{"item", "account", "transaction", "bank", "survey"};
    return QLatin1String(words.at((change.before ? change.before : change.after)->index()));
}

QLatin1String howOf(const Change &change)
{
    if (!change.before)
        return QLatin1String("added");
    return QLatin1String(change.after ? "changed" : "removed");
}

} // namespace

Rows rowsOf(const SharedChanges &changes)
{
    return {static_cast<qsizetype>(changes->size()), [changes](qsizetype at) {
                const Change &change = (*changes)[static_cast<std::size_t>(at)];
                return QJsonObject{{QStringLiteral("what"), whatOf(change)},
                                   {QStringLiteral("name"), change.name},
                                   {QStringLiteral("change"), howOf(change)},
                                   {QStringLiteral("before"), json(change.before)},
                                   {QStringLiteral("after"), json(change.after)}};
            }};
}

void tabulate(Report &report, const SharedChanges &changes, const QString &whenNone,
              qsizetype rowsMax)
{
    const auto count = static_cast<qsizetype>(changes->size());
    const Rows rows(std::min(count, rowsMax), [changes](qsizetype at) {
        const workbench::ChangeText text =
            workbench::changeText((*changes)[static_cast<std::size_t>(at)]);
        return QJsonObject{{QStringLiteral("what"), text.what},
                           {QStringLiteral("name"), text.name},
                           {QStringLiteral("change"), text.how},
                           {QStringLiteral("detail"), text.detail}};
    });
    report.table({{QObject::tr("What"), QStringLiteral("what")},
                  {QObject::tr("Name"), QStringLiteral("name")},
                  {QObject::tr("Change"), QStringLiteral("change")},
                  {QObject::tr("Detail"), QStringLiteral("detail")}},
                 rows, whenNone);
    if (const auto left = static_cast<int>(count - rows.size()); left > 0)
        report.line(
            QObject::tr("%n more changes are not shown; see all with --json.", nullptr, left));
}

} // namespace kiv::app

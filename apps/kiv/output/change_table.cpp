// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/change_table.h"

#include "output/json.h"

#include "workbench/entry/kind_words.h"

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

/// For wordText: kinds of things, kinds of changes, and fields.
[[maybe_unused]] constexpr std::array words{
    QT_TRANSLATE_NOOP("QObject", "item"),         QT_TRANSLATE_NOOP("QObject", "account"),
    QT_TRANSLATE_NOOP("QObject", "transaction"),  QT_TRANSLATE_NOOP("QObject", "bank"),
    QT_TRANSLATE_NOOP("QObject", "survey"),       QT_TRANSLATE_NOOP("QObject", "added"),
    QT_TRANSLATE_NOOP("QObject", "changed"),      QT_TRANSLATE_NOOP("QObject", "removed"),
    QT_TRANSLATE_NOOP("QObject", "accounts"),     QT_TRANSLATE_NOOP("QObject", "amount"),
    QT_TRANSLATE_NOOP("QObject", "balance"),      QT_TRANSLATE_NOOP("QObject", "borrowed"),
    QT_TRANSLATE_NOOP("QObject", "credit"),       QT_TRANSLATE_NOOP("QObject", "creditAmount"),
    QT_TRANSLATE_NOOP("QObject", "creditStatus"), QT_TRANSLATE_NOOP("QObject", "date"),
    QT_TRANSLATE_NOOP("QObject", "debit"),        QT_TRANSLATE_NOOP("QObject", "debitAmount"),
    QT_TRANSLATE_NOOP("QObject", "debitStatus"),  QT_TRANSLATE_NOOP("QObject", "description"),
    QT_TRANSLATE_NOOP("QObject", "every"),        QT_TRANSLATE_NOOP("QObject", "name"),
    QT_TRANSLATE_NOOP("QObject", "next"),         QT_TRANSLATE_NOOP("QObject", "notDistributed"),
    QT_TRANSLATE_NOOP("QObject", "number"),       QT_TRANSLATE_NOOP("QObject", "open"),
    QT_TRANSLATE_NOOP("QObject", "parent"),       QT_TRANSLATE_NOOP("QObject", "path"),
    QT_TRANSLATE_NOOP("QObject", "reconciledOn"), QT_TRANSLATE_NOOP("QObject", "refundOf"),
    QT_TRANSLATE_NOOP("QObject", "tags"),         QT_TRANSLATE_NOOP("QObject", "target"),
    QT_TRANSLATE_NOOP("QObject", "type"),
};

QString textOf(const QString &field, const QJsonValue &value)
{
    if (value.isNull() || value.isUndefined())
        return QStringLiteral("–");
    if (QStringList{QStringLiteral("date"), QStringLiteral("next"), QStringLiteral("reconciledOn")}
            .contains(field))
        return dayText(value);
    if (field == u"every" || field == u"type")
        return wordText(value);
    if (field == u"debitStatus" || field == u"creditStatus")
        return statusText(value);
    if (field == u"description")
        return descriptionText(value);
    if (value.isObject())
        return amountText(value, navigation::CurrencyDisplayOptions::IsoCode);
    if (value.isArray()) {
        QStringList texts;
        for (const QJsonValue element : value.toArray())
            texts += textOf({}, element);
        return texts.join(QStringLiteral(", "));
    }
    return value.toVariant().toString();
}

/// The changed values; for something added or removed, its main values.
QString detailOf(const QJsonObject &change)
{
    const QJsonObject before = change[QLatin1String("before")].toObject();
    const QJsonObject after = change[QLatin1String("after")].toObject();
    QStringList details;
    if (!before.isEmpty() && !after.isEmpty()) {
        for (auto field = after.begin(); field != after.end(); ++field) {
            if (const QJsonValue was = before.value(field.key()); was != field.value()) {
                details += QStringLiteral("%1 %2 → %3")
                               .arg(wordText(field.key()), textOf(field.key(), was),
                                    textOf(field.key(), field.value()));
            }
        }
        return details.join(QStringLiteral(", "));
    }
    const QJsonObject &whole = after.isEmpty() ? before : after;
    for (const char *key : {"date", "amount", "balance", "description", "every", "next"}) {
        const QJsonValue value = whole.value(QLatin1String(key));
        if (const QString text = textOf(QLatin1String(key), value);
            !value.isUndefined() && !text.isEmpty())
            details += text;
    }
    return details.join(QStringLiteral(", "));
}

/// The name to show. An item's name begins with its kind, which is translated.
QString nameOf(const QJsonObject &change)
{
    const QString name = change[QLatin1String("name")].toString();
    const bool isGone = change[QLatin1String("after")].isNull();
    const QString kind =
        change[QLatin1String(isGone ? "before" : "after")][QLatin1String("kind")].toString();
    return kind.isEmpty() ? name : wordText(kind) + name.mid(kind.size());
}

} // namespace

Rows rowsOf(std::vector<Change> changes)
{
    const auto all = std::make_shared<const std::vector<Change>>(std::move(changes));
    return {static_cast<qsizetype>(all->size()), [all](qsizetype at) {
                const Change &change = (*all)[static_cast<std::size_t>(at)];
                return QJsonObject{{QStringLiteral("what"), whatOf(change)},
                                   {QStringLiteral("name"), change.name},
                                   {QStringLiteral("change"), howOf(change)},
                                   {QStringLiteral("before"), json(change.before)},
                                   {QStringLiteral("after"), json(change.after)}};
            }};
}

void tabulate(Report &report, const Rows &changes, const QString &whenNone, qsizetype rowsMax)
{
    const Rows rows(std::min(changes.size(), rowsMax), [changes](qsizetype at) {
        QJsonObject row = changes[at].toObject();
        row.insert(QStringLiteral("detail"), plainText(detailOf(row)));
        row.insert(QStringLiteral("name"), plainText(nameOf(row)));
        return row;
    });
    report.table({{QObject::tr("What"), QStringLiteral("what"), wordText},
                  {QObject::tr("Name"), QStringLiteral("name")},
                  {QObject::tr("Change"), QStringLiteral("change"), wordText},
                  {QObject::tr("Detail"), QStringLiteral("detail")}},
                 rows, whenNone);
    if (const auto left = static_cast<int>(changes.size() - rows.size()); left > 0)
        report.line(
            QObject::tr("%n more changes are not shown; see all with --json.", nullptr, left));
}

} // namespace kiv::app

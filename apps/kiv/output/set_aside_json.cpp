// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/set_aside_json.h"

#include "output/json.h"

#include "workbench/entry/kind_words.h"
#include "workbench/surveys/set_aside_text.h"

namespace kiv::app {

using budgeting::BudgetItemIdentifier;
using workbench::SetAside;
using workbench::SetAsideLine;

namespace {

/// Why a line is as it is: "Tax: set aside on 2026-03-25; $600.00 yearly = …".
QString whyText(const QJsonValue &line)
{
    QStringList reasons;
    for (const QJsonValue part : line[QLatin1String("parts")].toArray()) {
        const QString text = part[QLatin1String("text")].toString();
        if (!text.isEmpty())
            reasons += text;
    }
    return QStringLiteral("%1: %2").arg(line[QLatin1String("name")].toString(),
                                        reasons.join(QStringLiteral("; ")));
}

/// The amount of a part of a line; nothing without parts.
QJsonObject withParts(QJsonObject line)
{
    for (const QJsonValue part : line[QLatin1String("parts")].toArray())
        line.insert(part[QLatin1String("part")].toString(), part[QLatin1String("amount")]);
    return line;
}

} // namespace

QJsonObject itemJson(const BudgetItemIdentifier &id)
{
    return {{QStringLiteral("kind"), workbench::kindWord(id.type)},
            {QStringLiteral("name"), id.source.name()}};
}

QJsonValue moneyJson(const std::optional<numira::Money> &money)
{
    return money ? QJsonValue(toJson(*money)) : QJsonValue();
}

QJsonObject lineJson(const SetAsideLine &line, const SetAside &account,
                     navigation::CurrencyDisplayOptions displayAs)
{
    QJsonArray parts;
    if (line.parts) {
        const workbench::PartReasons reasons = reasonsOf(line, account, displayAs);
        const auto add = [&parts](const char *name, const numira::Money &money,
                                  const QString &text) {
            parts.append(QJsonObject{{QStringLiteral("part"), QLatin1String(name)},
                                     {QStringLiteral("amount"), toJson(money)},
                                     {QStringLiteral("text"), text}});
        };
        add("before", line.parts->before, reasons.before);
        add("added", line.parts->added, reasons.added);
        add("paid", -line.parts->paid, reasons.paid);
        add("adjusted", line.parts->adjusted, reasons.adjusted);
    }
    QJsonArray postings;
    for (const accounting::TransactionNumber number : line.postings)
        postings.append(qint64{number.integer()});
    QJsonObject json = itemJson(line.item);
    json.insert(QStringLiteral("parts"), parts);
    json.insert(QStringLiteral("now"),
                line.parts ? QJsonValue(toJson(line.parts->now())) : QJsonValue());
    json.insert(QStringLiteral("counted"), moneyJson(line.counted));
    json.insert(QStringLiteral("handedOver"), line.isHandedOver());
    json.insert(QStringLiteral("next"), toJson(line.next));
    json.insert(QStringLiteral("expected"), toJson(line.expected.rounded()));
    json.insert(QStringLiteral("transactions"), postings);
    return json;
}

void addSetAside(Report &report, const QJsonArray &lines, const std::vector<Column> &more)
{
    QJsonArray rows;
    for (const QJsonValue line : lines)
        rows.append(withParts(line.toObject()));
    std::vector<Column> columns{{QObject::tr("Item"), QStringLiteral("name")},
                                {QObject::tr("Before"), QStringLiteral("before")},
                                {QObject::tr("Added"), QStringLiteral("added")},
                                {QObject::tr("Paid"), QStringLiteral("paid")},
                                {QObject::tr("Now"), QStringLiteral("now")}};
    columns.insert(columns.end(), more.begin(), more.end());
    columns.push_back({QObject::tr("Expected"), QStringLiteral("expected")});
    columns.push_back({QObject::tr("Next"), QStringLiteral("next"), dayText});
    report.table(std::move(columns), rows,
                 QObject::tr("There are no items to set money aside for."));
    for (const QJsonValue line : lines) {
        if (!line[QLatin1String("parts")].toArray().isEmpty())
            report.line(whyText(line));
    }
}

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/surveys/survey_notes.h"

#include "workbench/entry/kind_words.h"
#include "workbench/entry/values.h"
#include "workbench/errors.h"
#include "workbench/json/json.h"

#include "numira/error.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

namespace kiv::workbench {

using accounting::AccountNumber;
using accounting::TransactionNumber;
using budgeting::BudgetItemIdentifier;
using numira::Money;
using storage::Notes;
using surveying::ReconciledTransaction;

namespace {

const QString sheetKey = QStringLiteral("survey.sheet.");
const QString countedKey = QStringLiteral("survey.counted.");

/// What cannot be read is nothing: the notes may be of a later version of this program.
template <typename Read>
auto readable(Read &&read) -> std::optional<std::invoke_result_t<Read>>
{
    try {
        return read();
    } catch (const foundation::Error &) {
        return std::nullopt;
    } catch (const numira::Error &) {
        return std::nullopt;
    }
}

Money moneyOf(const QJsonValue &json)
{
    numira::Currency currency;
    readValue(json[QLatin1String("currency")].toString(), currency);
    Amount amount;
    readPlain(json[QLatin1String("amount")].toString(), amount);
    return amount.in(currency);
}

template <typename T>
T valueOf(const QJsonValue &json)
{
    T value{};
    readValue(json.toVariant().toString(), value);
    return value;
}

QDate dayOf(const QJsonValue &json)
{
    QDate day;
    readPlain(json.toString(), day);
    return day;
}

// ---- the parts of a sheet ----------------------------------------------------------

/// An array, since a sheet may have thousands of them.
QJsonArray jsonOf(const ReconciledTransaction &one)
{
    const QJsonObject amount = toJson(one.amount);
    return {toJson(std::optional(one.number)), toJson(one.day),   amount[QLatin1String("amount")],
            amount[QLatin1String("currency")], toJson(one.debit), toJson(one.credit)};
}

ReconciledTransaction transactionOf(const QJsonValue &json)
{
    return {valueOf<TransactionNumber>(json[0]), dayOf(json[1]),
            moneyOf(QJsonObject{{QStringLiteral("amount"), json[2]},
                                {QStringLiteral("currency"), json[3]}}),
            valueOf<AccountNumber>(json[4]), valueOf<AccountNumber>(json[5])};
}

QJsonObject keyJson(const BudgetItemIdentifier &id)
{
    return {{QStringLiteral("kind"), kindWord(id.type)},
            {QStringLiteral("name"), id.source.name()}};
}

void readKey(const QJsonValue &json, BudgetItemIdentifier &id)
{
    id.type = valueOf<budgeting::BudgetItemTypes>(json[QLatin1String("kind")]);
    id.source = budgeting::BudgetSource(json[QLatin1String("name")].toString());
}

QJsonObject keyJson(AccountNumber number)
{
    return {{QStringLiteral("account"), toJson(number)}};
}

void readKey(const QJsonValue &json, AccountNumber &number)
{
    number = valueOf<AccountNumber>(json[QLatin1String("account")]);
}

template <typename Key>
QJsonArray jsonOf(const std::map<Key, Money> &amounts)
{
    QJsonArray array;
    for (const auto &[key, money] : amounts) {
        QJsonObject object = keyJson(key);
        object.insert(QStringLiteral("money"), toJson(money));
        array.append(object);
    }
    return array;
}

template <typename Key>
void readAmounts(const QJsonValue &array, std::map<Key, Money> &amounts)
{
    for (const QJsonValue json : array.toArray()) {
        const auto one = readable([&json] {
            Key key{};
            readKey(json, key);
            return std::pair(key, moneyOf(json[QLatin1String("money")]));
        });
        if (one)
            amounts.insert(*one);
    }
}

QJsonObject jsonOf(const PutOffSheet &sheet)
{
    QJsonArray ticked;
    for (const ReconciledTransaction &one : sheet.ticked)
        ticked.append(jsonOf(one));
    return {{QStringLiteral("date"), toJson(sheet.day)},
            {QStringLiteral("balance"),
             sheet.balance ? QJsonValue(toJson(*sheet.balance)) : QJsonValue()},
            {QStringLiteral("ticked"), ticked},
            {QStringLiteral("items"), jsonOf(sheet.items)},
            {QStringLiteral("accounts"), jsonOf(sheet.extras)},
            {QStringLiteral("setAside"), jsonOf(sheet.typed)},
            {QStringLiteral("asProposed"), sheet.isAsProposed}};
}

std::optional<PutOffSheet> sheetOf(const QJsonValue &json)
{
    const auto day = readable([&json] { return dayOf(json[QLatin1String("date")]); });
    if (!day)
        return std::nullopt;
    PutOffSheet sheet;
    sheet.day = *day;
    sheet.balance = readable([&json] { return moneyOf(json[QLatin1String("balance")]); });
    for (const QJsonValue one : json[QLatin1String("ticked")].toArray()) {
        if (const auto transaction = readable([&one] { return transactionOf(one); }))
            sheet.ticked.push_back(*transaction);
    }
    readAmounts(json[QLatin1String("items")], sheet.items);
    readAmounts(json[QLatin1String("accounts")], sheet.extras);
    readAmounts(json[QLatin1String("setAside")], sheet.typed);
    sheet.isAsProposed = json[QLatin1String("asProposed")].toBool();
    return sheet;
}

template <typename Value>
std::map<AccountNumber, Value>
renumbered(std::map<AccountNumber, Value> all,
           const std::function<std::optional<AccountNumber>(AccountNumber)> &numberNow)
{
    std::map<AccountNumber, Value> now;
    for (auto &[number, value] : all) {
        if (const auto other = numberNow(number))
            now[*other] = std::move(value);
    }
    return now;
}

} // namespace

SurveyNotes SurveyNotes::of(const Notes &notes)
{
    SurveyNotes all;
    for (const auto &[key, value] : notes) {
        const auto numberAfter = [&key](const QString &prefix) {
            return key.startsWith(prefix)
                       ? readable([&] { return valueOf<AccountNumber>(key.mid(prefix.size())); })
                       : std::nullopt;
        };
        if (const auto number = numberAfter(sheetKey)) {
            if (const auto sheet = sheetOf(value))
                all.putOff.emplace(*number, *sheet);
        } else if (const auto other = numberAfter(countedKey)) {
            for (const QJsonValue one : value.toArray()) {
                if (const auto transaction =
                        readable([&one] { return valueOf<TransactionNumber>(one); }))
                    all.counted[*other].insert(*transaction);
            }
        }
    }
    return all;
}

Notes SurveyNotes::keptIn(Notes notes) const
{
    QStringList former;
    for (const auto &[key, value] : notes) {
        if (key.startsWith(sheetKey) || key.startsWith(countedKey))
            former += key;
    }
    for (const QString &key : former)
        notes.set(key, QJsonValue::Undefined);
    for (const auto &[number, sheet] : putOff)
        notes.set(sheetKey + accounting::presentationText(number), jsonOf(sheet));
    for (const auto &[number, transactions] : counted) {
        QJsonArray array;
        for (const TransactionNumber transaction : transactions)
            array.append(toJson(std::optional(transaction)));
        notes.set(countedKey + accounting::presentationText(number), array);
    }
    return notes;
}

void SurveyNotes::renumber(
    const std::function<std::optional<AccountNumber>(AccountNumber)> &numberNow)
{
    putOff = renumbered(std::move(putOff), numberNow);
    counted = renumbered(std::move(counted), numberNow);
    for (auto &[account, sheet] : putOff) {
        sheet.extras = renumbered(std::move(sheet.extras), numberNow);
        for (ReconciledTransaction &one : sheet.ticked) {
            one.debit = numberNow(one.debit).value_or(one.debit);
            one.credit = numberNow(one.credit).value_or(one.credit);
        }
    }
}

} // namespace kiv::workbench

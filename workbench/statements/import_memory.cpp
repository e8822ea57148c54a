// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/statements/import_memory.h"

#include "workbench/entry/folded.h"
#include "workbench/internal/faults.h"

#include "numira/error.h"
#include "storage/storage_error.h"

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <ranges>

namespace kiv::workbench {

using accounting::AccountNumber;
using storage::Notes;

namespace {

const QString rulesKey = QStringLiteral("import.rules");
const QString learnedKey = QStringLiteral("import.learned");
const QString accountKey = QStringLiteral("import.account.");

/// So many payees are remembered; a note has room for them with names of usual length.
constexpr std::size_t learnedMax = 1'000;
constexpr qsizetype payeeKeyMax = 48;
/// So many identifiers of an account's transactions; the newest ones.
constexpr std::size_t toldMax = 500;

std::optional<AccountNumber> numberOf(const QJsonValue &value)
{
    const qint64 number = value.toInteger(0);
    return number > 0 && number <= std::numeric_limits<std::uint32_t>::max()
               ? std::optional(AccountNumber(static_cast<std::uint32_t>(number)))
               : std::nullopt;
}

qint64 plain(AccountNumber number)
{
    return qint64{number.integer()};
}

std::optional<numira::Decimal> decimalOf(const QJsonValue &value)
{
    try {
        return value.isString()
                   ? std::optional(numira::Decimal::fromText(value.toString().toStdString()))
                   : std::nullopt;
    } catch (const numira::Error &) {
        return std::nullopt;
    }
}

QJsonObject jsonOf(const ImportRule &rule)
{
    QJsonObject object{{QStringLiteral("text"), rule.text},
                       {QStringLiteral("target"), plain(rule.target)}};
    if (rule.isPattern)
        object.insert(QStringLiteral("pattern"), true);
    if (rule.of)
        object.insert(QStringLiteral("of"), plain(*rule.of));
    for (const auto &[key, bound] : {std::pair("least", rule.least), {"most", rule.most}}) {
        if (bound)
            object.insert(QLatin1String(key), QString::fromStdString(bound->toText()));
    }
    return object;
}

std::optional<ImportRule> ruleOf(const QJsonValue &value)
{
    const auto target = numberOf(value[QLatin1String("target")]);
    const QString text = value[QLatin1String("text")].toString();
    if (!target || text.isEmpty())
        return std::nullopt;
    return ImportRule{text,
                      value[QLatin1String("pattern")].toBool(),
                      decimalOf(value[QLatin1String("least")]),
                      decimalOf(value[QLatin1String("most")]),
                      numberOf(value[QLatin1String("of")]),
                      *target};
}

std::optional<interchange::CsvProfile> profileOf(const QJsonValue &value)
{
    try {
        return value.isObject() ? std::optional(interchange::readProfile(
                                      QJsonDocument(value.toObject()).toJson(), QString()))
                                : std::nullopt;
    } catch (const interchange::ImportError &) {
        return std::nullopt; // of a later version of this program
    }
}

std::map<accounting::TransactionNumber, QString> toldOf(const QJsonValue &value)
{
    std::map<accounting::TransactionNumber, QString> told;
    for (const QJsonValue one : value.toArray()) {
        const qint64 number = one[0].toInteger(0);
        if (number > 0 && number <= std::numeric_limits<std::uint16_t>::max())
            told.emplace(accounting::TransactionNumber(static_cast<std::uint16_t>(number)),
                         one[1].toString());
    }
    return told;
}

QJsonObject jsonOf(const ImportMemory::Account &account)
{
    QJsonObject object;
    if (!account.bankNumber.isEmpty())
        object.insert(QStringLiteral("number"), account.bankNumber);
    if (account.profile)
        object.insert(QStringLiteral("profile"),
                      QJsonDocument::fromJson(interchange::toJson(*account.profile)).object());
    QJsonArray told;
    const std::size_t former = account.told.size() > toldMax ? account.told.size() - toldMax : 0;
    for (const auto &[number, id] : account.told | std::views::drop(former))
        told.append(QJsonArray{int{number.integer()}, id});
    if (!told.isEmpty())
        object.insert(QStringLiteral("told"), told);
    return object;
}

/// As many as a note can hold: names in some scripts take more room than others.
QJsonArray newestThatFit(const std::vector<std::pair<QString, AccountNumber>> &learned)
{
    std::size_t first = learned.size() > learnedMax ? learned.size() - learnedMax : 0;
    while (true) {
        QJsonArray known;
        for (std::size_t at = first; at < learned.size(); ++at)
            known.append(QJsonArray{learned[at].first, plain(learned[at].second)});
        if (QJsonDocument(known).toJson(QJsonDocument::Compact).size() <= Notes::valueSizeMax)
            return known;
        first += (learned.size() - first) / 4 + 1;
    }
}

void setOrRemove(Notes &notes, const QString &key, const QJsonArray &array)
{
    notes.set(key, array.isEmpty() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(array));
}

} // namespace

ImportMemory ImportMemory::of(const Notes &notes)
{
    ImportMemory memory;
    for (const QJsonValue value : notes.value(rulesKey).toArray()) {
        if (const auto rule = ruleOf(value))
            memory.rules.push_back(*rule);
    }
    for (const QJsonValue value : notes.value(learnedKey).toArray()) {
        if (const auto target = numberOf(value[1]); target && value[0].isString())
            memory.learned.emplace_back(value[0].toString(), *target);
    }
    for (const auto &[key, value] : notes) {
        const auto number = key.startsWith(accountKey)
                                ? numberOf(key.mid(accountKey.size()).toLongLong())
                                : std::nullopt;
        if (number)
            memory.accounts[*number] = {value[QLatin1String("number")].toString(),
                                        profileOf(value[QLatin1String("profile")]),
                                        toldOf(value[QLatin1String("told")])};
    }
    return memory;
}

Notes ImportMemory::keptIn(Notes notes) const
{
    QJsonArray told;
    for (const ImportRule &rule : rules)
        told.append(jsonOf(rule));
    try {
        setOrRemove(notes, rulesKey, told);
    } catch (const storage::StorageError &) {
        throw internal::tooManyRules();
    }
    const QJsonArray known = newestThatFit(learned);
    setOrRemove(notes, learnedKey, known);
    QStringList former;
    for (const auto &[key, value] : notes) {
        if (key.startsWith(accountKey))
            former += key;
    }
    for (const QString &key : former)
        notes.set(key, QJsonValue::Undefined);
    for (const auto &[number, account] : accounts) {
        if (const QJsonObject object = jsonOf(account); !object.isEmpty())
            notes.set(accountKey + QString::number(plain(number)), object);
    }
    return notes;
}

void ImportMemory::learn(const QString &key, AccountNumber target)
{
    std::erase_if(learned, [&key](const auto &known) { return known.first == key; });
    learned.emplace_back(key, target);
}

void ImportMemory::renumber(
    const std::function<std::optional<AccountNumber>(AccountNumber)> &numberNow)
{
    const auto isGone = [&numberNow](AccountNumber &number) {
        const auto now = numberNow(number);
        number = now.value_or(number);
        return !now;
    };
    std::erase_if(rules, [&](ImportRule &rule) {
        return isGone(rule.target) || (rule.of && isGone(*rule.of));
    });
    std::erase_if(learned, [&](auto &known) { return isGone(known.second); });
    std::map<AccountNumber, Account> kept;
    for (auto &[number, account] : accounts) {
        if (const auto now = numberNow(number))
            kept[*now] = std::move(account);
    }
    accounts = std::move(kept);
}

QString payeeKey(const QString &payee, const QString &text)
{
    constexpr int wordsMax = 4;
    const QString said = folded(payee.trimmed().isEmpty() ? text : payee);
    QStringList words;
    QString word;
    bool hasDigit = false;
    const auto finish = [&] {
        // Numbers of cards, branches and receipts differ each time.
        if (!word.isEmpty() && !hasDigit && words.size() < wordsMax)
            words += word;
        word.clear();
        hasDigit = false;
    };
    for (const QChar letter : said) {
        if (letter.isLetterOrNumber() || letter.isSurrogate()) {
            word += letter;
            hasDigit = hasDigit || letter.isDigit();
        } else {
            finish();
        }
    }
    finish();
    return words.join(u' ').left(payeeKeyMax);
}

} // namespace kiv::workbench

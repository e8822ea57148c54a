// SPDX-License-Identifier: GPL-3.0-or-later
#include "version_changes.h"

#include "errors.h"
#include "output/json.h"

#include "budgeting/budget_items.h"
#include "storage/budget_file.h"
#include "storage/storage_error.h"

#include <QtCore/QFileInfo>
#include <QtCore/QObject>

#include <array>

namespace kiv::app {

using storage::BudgetStorage;
using storage::Verdict;

namespace {

/// Things of one kind: how they are called, and what they are, in the order of
/// their keys.
using Things = std::map<QString, QJsonObject>;

/// A number as a key that is in the order of numbers.
QString keyOf(qint64 number)
{
    return QStringLiteral("%1").arg(number, 10, 10, QChar(u' '));
}

Things itemsIn(const BudgetStorage::Data &data)
{
    Things things;
    data.budget.forEach([&](const budgeting::BudgetedMoney &item) {
        QJsonObject json = toJson(item);
        QJsonArray tags;
        const budgeting::BudgetItemIdentifier id{budgeting::toBudgetItemTypes(item), item.source()};
        for (const tagging::Tag &tag : data.itemTags.tags(id))
            tags.append(tag.name());
        json.insert(QStringLiteral("tags"), tags);
        things.emplace(json[QLatin1String("kind")].toString() + u' ' + item.source().name(), json);
    });
    return things;
}

Things accountsIn(const AccountIndex &index)
{
    Things things;
    for (const accounting::Account &account : index.accounts()) {
        things.emplace(keyOf(account.code().number().integer()) + u' ' + account.code().name(),
                       toJson(account, index));
    }
    return things;
}

Things transactionsIn(const BudgetStorage::Data &data)
{
    Things things;
    for (const accounting::Transaction &transaction : data.generalLedger.transactions()) {
        const QJsonObject json = toJson(transaction);
        things.emplace(keyOf(json[QLatin1String("number")].toInteger()), json);
    }
    return things;
}

Things banksIn(const BudgetStorage::Data &data, const AccountIndex &index)
{
    Things things;
    for (const auto &[name, bank] : data.banks) {
        QJsonObject json = toJson(bank, index);
        // Balances are told with the accounts.
        QJsonArray numbers;
        for (const QJsonValue account : json[QLatin1String("accounts")].toArray())
            numbers.append(account[QLatin1String("number")]);
        json.insert(QStringLiteral("accounts"), numbers);
        things.emplace(name.institution(), json);
    }
    return things;
}

Things surveysIn(const BudgetStorage::Data &data)
{
    Things things;
    for (const auto &[account, survey] : data.surveys) {
        const banking::ReconciledBankAccount &reconciled = survey.reconciled();
        things.emplace(
            account.bank.institution() + u' ' +
                accounting::presentationText(account.account.number),
            QJsonObject{{QStringLiteral("reconciledOn"),
                         toJson(reconciled.reconciledOn().value_or(QDate()))},
                        {QStringLiteral("balance"), toJson(reconciled.balance())},
                        {QStringLiteral("notDistributed"), toJson(survey.nonDistributed())}});
    }
    return things;
}

void compare(const QString &what, const Things &before, const Things &after, QJsonArray &changes)
{
    const auto tell = [&](const QString &name, const char *change, const QJsonValue &was,
                          const QJsonValue &is) {
        changes.append(QJsonObject{{QStringLiteral("what"), what},
                                   {QStringLiteral("name"), name.trimmed()},
                                   {QStringLiteral("change"), QLatin1String(change)},
                                   {QStringLiteral("before"), was},
                                   {QStringLiteral("after"), is}});
    };
    for (const auto &[name, was] : before) {
        const auto found = after.find(name);
        if (found == after.end())
            tell(name, "removed", was, QJsonValue());
        else if (found->second != was)
            tell(name, "changed", was, found->second);
    }
    for (const auto &[name, is] : after) {
        if (!before.contains(name))
            tell(name, "added", QJsonValue(), is);
    }
}

/// For wordText: what changed and how, and the fields.
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

/// What is different, or for something new or gone what matters of it.
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

/// An item's name has its kind before it, which has a word in each language.
QString nameOf(const QJsonObject &change)
{
    const QString name = change[QLatin1String("name")].toString();
    const bool isGone = change[QLatin1String("after")].isNull();
    const QString kind =
        change[QLatin1String(isGone ? "before" : "after")][QLatin1String("kind")].toString();
    return kind.isEmpty() ? name : wordText(kind) + name.mid(kind.size());
}

} // namespace

const BudgetStorage::Data &Version::data() const
{
    if (found.data)
        return *found.data;
    QString reason;
    for (const storage::Judgement &judgement : found.judgements) {
        if (judgement.verdict == Verdict::Broken)
            reason = judgement.reasons.join(u' ');
    }
    throw versionDamaged(path, reason);
}

Version versionOf(const QString &file, unsigned number)
{
    const QString path = number == 0 ? file : storage::backupOf(file, number);
    try {
        return {number, path, storage::inspectBudget(path)};
    } catch (const storage::StorageError &error) {
        if (number == 0 || error.failure() != storage::StorageFailure::NotFound)
            throw;
        throw noSuchVersion(QString::number(number),
                            static_cast<qsizetype>(versionsOf(file).size()) - 1);
    }
}

std::vector<Version> versionsOf(const QString &file)
{
    std::vector<Version> versions{versionOf(file, 0)};
    for (unsigned number = 1; number <= storage::BudgetFile::backupsByDefault; ++number) {
        const QString path = storage::backupOf(file, number);
        if (QFileInfo::exists(path))
            versions.push_back({number, path, storage::inspectBudget(path)});
    }
    return versions;
}

QJsonArray changesBetween(const BudgetStorage::Data &before, const BudgetStorage::Data &after)
{
    const AccountIndex accountsBefore(before.generalLedger.accounts());
    const AccountIndex accountsAfter(after.generalLedger.accounts());
    QJsonArray changes;
    compare(QStringLiteral("item"), itemsIn(before), itemsIn(after), changes);
    compare(QStringLiteral("account"), accountsIn(accountsBefore), accountsIn(accountsAfter),
            changes);
    compare(QStringLiteral("transaction"), transactionsIn(before), transactionsIn(after), changes);
    compare(QStringLiteral("bank"), banksIn(before, accountsBefore), banksIn(after, accountsAfter),
            changes);
    compare(QStringLiteral("survey"), surveysIn(before), surveysIn(after), changes);
    return changes;
}

void tabulate(Report &report, const QJsonArray &changes, const QString &whenNone, qsizetype rowsMax)
{
    QJsonArray rows;
    for (const QJsonValue change : changes) {
        if (rows.size() == rowsMax)
            break;
        QJsonObject row = change.toObject();
        row.insert(QStringLiteral("detail"), detailOf(row));
        row.insert(QStringLiteral("name"), nameOf(row));
        rows.append(row);
    }
    report.table({{QObject::tr("What"), QStringLiteral("what"), wordText},
                  {QObject::tr("Name"), QStringLiteral("name")},
                  {QObject::tr("Change"), QStringLiteral("change"), wordText},
                  {QObject::tr("Detail"), QStringLiteral("detail")}},
                 rows, whenNone);
    if (const auto left = static_cast<int>(changes.size() - rows.size()); left > 0)
        report.line(QObject::tr("%n more changes are not shown; --json tells all.", nullptr, left));
}

} // namespace kiv::app

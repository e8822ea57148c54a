// SPDX-License-Identifier: GPL-3.0-or-later
#include "parsing/json_input.h"

#include "messages/errors.h"

#include "workbench/entry/values.h"
#include "workbench/statements/input_file.h"

#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QObject>

#include <cstdio>

namespace kiv::app {

using accounting::Transaction;
using accounting::TransactionStatuses;
using workbench::AccountIndex;
using workbench::notAChoice;
using workbench::readPlain;

namespace {

QDate readDate(const QJsonObject &object, const char *key)
{
    const QJsonValue value = object.value(QLatin1String(key));
    if (!value.isString())
        throw missing(QStringLiteral("\"%1\"").arg(QLatin1String(key)));
    QDate read;
    readPlain(value.toString(), read);
    return read;
}

accounting::AccountCode readAccount(const QJsonObject &object, const char *key,
                                    const AccountIndex &index)
{
    const QJsonValue value = object.value(QLatin1String(key));
    if (!value.isDouble() && !value.isString())
        throw missing(QStringLiteral("\"%1\"").arg(QLatin1String(key)));
    return index.find(value.isDouble() ? QString::number(value.toInteger()) : value.toString())
        .code();
}

TransactionStatuses readStatus(const QJsonObject &object, const char *key)
{
    using enum TransactionStatuses;
    const QString word = object.value(QLatin1String(key)).toString(accounting::toQString(None));
    for (const TransactionStatuses status : {None, Cleared, Reconciled}) {
        if (accounting::toQString(status) == word)
            return status;
    }
    throw notAChoice(word, {accounting::toQString(None), accounting::toQString(Cleared),
                            accounting::toQString(Reconciled)});
}

Transaction readTransaction(const QJsonObject &object, const AccountIndex &index)
{
    const accounting::AccountCode debit = readAccount(object, "debit", index);
    const accounting::AccountCode credit = readAccount(object, "credit", index);
    const numira::Currency currency = index.find(debit.number())->balance().code();
    const QString description = object.value(QLatin1String("description")).toString();
    // In this order, so that every compiler reports the same error first.
    const auto date = readDate(object, "date");
    const numira::Money amount = readMoney(object.value(QLatin1String("amount")), currency);
    const Transaction transaction(date, debit, credit, amount,
                                  description.isEmpty() ? std::nullopt
                                                        : std::optional(description));
    return transaction.withStatuses(readStatus(object, "debitStatus"),
                                    readStatus(object, "creditStatus"));
}

} // namespace

QByteArray readInput(const QString &path)
{
    if (path != u"-")
        return workbench::readFile(path);
    QFile input;
    (void)input.open(stdin, QIODevice::ReadOnly); // readWhole refuses what is not open
    return workbench::readWhole(input, path);
}

QJsonDocument readJson(const QString &path)
{
    QJsonParseError error;
    QJsonDocument document = QJsonDocument::fromJson(readInput(path), &error);
    if (error.error != QJsonParseError::NoError) {
        throw unreadableInput(
            path,
            QObject::tr("%1 at byte %2").arg(error.errorString(), QString::number(error.offset)));
    }
    return document;
}

std::vector<Transaction> readTransactions(const QString &path, const AccountIndex &index)
{
    const QJsonDocument document = readJson(path);
    const QJsonValue list = document.isArray()
                                ? QJsonValue(document.array())
                                : document.object().value(QLatin1String("transactions"));
    if (!list.isArray())
        throw unreadableInput(path, QObject::tr("it has no list of transactions"));
    std::vector<Transaction> transactions;
    for (const QJsonValue element : list.toArray()) {
        try {
            transactions.push_back(readTransaction(element.toObject(), index));
        } catch (const foundation::Error &error) {
            throw unreadableInput(QObject::tr("transaction %1 of '%2'")
                                      .arg(QString::number(transactions.size() + 1), path),
                                  told(error));
        }
    }
    return transactions;
}

numira::Money readMoney(const QJsonValue &value, const numira::Currency &otherwise)
{
    QString text = value.toString();
    if (value.isObject()) {
        text = value[QLatin1String("amount")].toString() + u' ' +
               value[QLatin1String("currency")].toString();
    }
    workbench::Amount amount;
    readPlain(text, amount);
    return amount.in(otherwise);
}

} // namespace kiv::app

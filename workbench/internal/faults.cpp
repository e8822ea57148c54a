// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/internal/faults.h"

#include "workbench/entry/kind_words.h"

#include <QtCore/QObject>

namespace kiv::workbench::internal {

EntryError notUtf8()
{
    return EntryError(QObject::tr("A value on the command line is not valid UTF-8."));
}

EntryError emptyName()
{
    return EntryError(QObject::tr("A name cannot be empty."));
}

EntryError notADate(const QString &text)
{
    return EntryError(
        QObject::tr("'%1' is not a date; write one like 2026-03-31, with a day that exists.")
            .arg(text));
}

EntryError notAnAmount(const QString &text)
{
    return EntryError(
        QObject::tr("'%1' is not an amount; write one like 1234.50 or '1234.50 USD'.").arg(text));
}

EntryError amountTooLarge(const QString &text)
{
    return EntryError(QObject::tr("The amount '%1' is too large to be kept exactly.").arg(text));
}

EntryError tooManyDigits(const QString &text, const QString &currency, unsigned digitsMax)
{
    return EntryError(digitsMax == 0
                          ? QObject::tr("'%1' is not an amount of %2, which has no minor unit.")
                                .arg(text, currency)
                          : QObject::tr("'%1' has more digits behind the point than the %2 of %3.")
                                .arg(text, QString::number(digitsMax), currency));
}

EntryError notACurrency(const QString &text, const QStringList &similar)
{
    const QString statement = QObject::tr("'%1' is not a currency").arg(text);
    return EntryError(similar.isEmpty()
                          ? QObject::tr("%1; %2.").arg(
                                statement, QObject::tr("write its ISO 4217 code, like USD"))
                          : didYouMean(statement, similar));
}

EntryError notAPercentage(const QString &text)
{
    return EntryError(QObject::tr("'%1' is not a percentage; write one like 2.75.").arg(text));
}

Refusal noSuchAccount(const QString &text, const QStringList &similar)
{
    return missed(QObject::tr("There is no account '%1'").arg(text), similar, Remedy::ListAccounts);
}

Refusal ambiguousAccount(const QString &name, const QStringList &numbers)
{
    return Refusal(QObject::tr("Several accounts are named '%1'; give the number of one: %2.")
                       .arg(name, numbers.join(QStringLiteral(", "))));
}

Refusal noSuchBank(const QString &name, const QStringList &similar)
{
    return missed(QObject::tr("There is no bank '%1'").arg(name), similar, Remedy::ListBanks);
}

Refusal notABankAccount(const QString &account)
{
    return Refusal(QObject::tr("No bank keeps the account '%1'").arg(account),
                   Remedy::AttachBankAccount);
}

Refusal noSuchItem(budgeting::BudgetItemTypes kind, const QString &name, const QStringList &similar)
{
    return missed(QObject::tr("There is no %1 '%2'").arg(kindText(kind), name), similar,
                  Remedy::ListItems, kindWord(kind));
}

Refusal noSuchItem(const QString &name, const QStringList &similar)
{
    return missed(QObject::tr("There is no budget item '%1'").arg(name), similar,
                  Remedy::ListItems);
}

Refusal ambiguousItem(const QString &name, const QStringList &kinds)
{
    return Refusal(QObject::tr("Several budget items are named '%1'").arg(name), Remedy::ChooseKind,
                   kinds.join(QStringLiteral(", ")));
}

Refusal noSuchTransaction(const QString &number)
{
    return missed(QObject::tr("There is no transaction %1").arg(number), {},
                  Remedy::ListTransactions);
}

Refusal noSuchVersion(const QString &number, qsizetype count)
{
    const QString statement = QObject::tr("There is no former version %1").arg(number);
    if (count > 0)
        return missed(statement, {}, Remedy::ListVersions);
    return Refusal(
        QObject::tr("%1; %2.").arg(statement, QObject::tr("none was kept of this budget")));
}

Refusal versionDamaged(const QString &path, const QString &reason)
{
    const QString sentence = QObject::tr("The version in '%1' is not whole.").arg(path);
    return Refusal(reason.isEmpty() ? sentence : sentence + u' ' + reason);
}

Refusal fileExists(const QString &path)
{
    return Refusal(QObject::tr("The file '%1' exists already; choose another name.").arg(path));
}

Refusal unsavedChanges(const QString &path)
{
    return Refusal(QObject::tr("The changes of '%1' could not be saved").arg(path),
                   Remedy::SaveElsewhere);
}

} // namespace kiv::workbench::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors.h"

#include <QtCore/QObject>

namespace kiv::app {

namespace {
QString withReason(const QString &sentence, const QString &reason)
{
    return reason.isEmpty() ? sentence : sentence + u' ' + reason;
}
} // namespace

UsageError::~UsageError() = default;
Refusal::~Refusal() = default;

UsageError notUtf8()
{
    return UsageError(QObject::tr("A value on the command line is not valid UTF-8."));
}

UsageError emptyName()
{
    return UsageError(QObject::tr("A name cannot be empty."));
}

UsageError notADate(const QString &text)
{
    return UsageError(
        QObject::tr("'%1' is not a date; write one like 2026-03-31, with a day that exists.")
            .arg(text));
}

UsageError notAnAmount(const QString &text)
{
    return UsageError(
        QObject::tr("'%1' is not an amount; write one like 1234.50 or '1234.50 USD'.").arg(text));
}

UsageError amountTooLarge(const QString &text)
{
    return UsageError(QObject::tr("The amount '%1' is too large to be kept exactly.").arg(text));
}

UsageError tooManyDigits(const QString &text, const QString &currency, unsigned digitsMax)
{
    return UsageError(digitsMax == 0
                          ? QObject::tr("'%1' is not an amount of %2, which has no minor unit.")
                                .arg(text, currency)
                          : QObject::tr("'%1' has more digits behind the point than the %2 of %3.")
                                .arg(text, QString::number(digitsMax), currency));
}

UsageError notACurrency(const QString &text)
{
    return UsageError(
        QObject::tr("'%1' is not a currency; write its ISO 4217 code, like USD.").arg(text));
}

UsageError notANumber(const QString &text, qint64 lowest, qint64 highest)
{
    return UsageError(QObject::tr("'%1' is not a whole number from %2 to %3.")
                          .arg(text, QString::number(lowest), QString::number(highest)));
}

UsageError notAPercentage(const QString &text)
{
    return UsageError(QObject::tr("'%1' is not a percentage; write one like 2.75.").arg(text));
}

UsageError notAChoice(const QString &text, const QStringList &choices)
{
    return UsageError(
        QObject::tr("'%1' is none of: %2.").arg(text, choices.join(QStringLiteral(", "))));
}

UsageError contradiction(const QString &one, const QString &other)
{
    return UsageError(QObject::tr("%1 and %2 exclude each other.").arg(one, other));
}

UsageError missing(const QString &what)
{
    return UsageError(QObject::tr("%1 is missing.").arg(what));
}

UsageError nothingToChange()
{
    return UsageError(QObject::tr("Nothing to change was given."));
}

UsageError noFileNamed()
{
    return UsageError(
        QObject::tr("No budget file was named; use --file or the variable KIV_FILE."));
}

UsageError notAnAssignment(const QString &text)
{
    return UsageError(QObject::tr("'%1' is not of the form NAME=VALUE.").arg(text));
}

UsageError noSuchCommand(const QString &word)
{
    return UsageError(
        QObject::tr("'%1' is no command; kiv --help lists those that there are.").arg(word));
}

UsageError openQuote()
{
    return UsageError(QObject::tr("A quote is not closed."));
}

UsageError unreadableInput(const QString &name, const QString &reason)
{
    return UsageError(QObject::tr("Cannot understand %1: %2.").arg(name, reason));
}

Refusal noSuchAccount(const QString &text)
{
    return Refusal(QObject::tr("There is no account '%1'.").arg(text));
}

Refusal ambiguousAccount(const QString &name, const QStringList &numbers)
{
    return Refusal(QObject::tr("Several accounts are named '%1'; give the number of one: %2.")
                       .arg(name, numbers.join(QStringLiteral(", "))));
}

Refusal noSuchBank(const QString &name)
{
    return Refusal(QObject::tr("There is no bank '%1'.").arg(name));
}

Refusal notABankAccount(const QString &account)
{
    return Refusal(QObject::tr("No bank keeps the account '%1'.").arg(account));
}

Refusal noSuchItem(const QString &kind, const QString &name)
{
    return Refusal(QObject::tr("There is no %1 '%2'.").arg(kind, name));
}

Refusal noSuchItem(const QString &name)
{
    return Refusal(QObject::tr("There is no budget item '%1'.").arg(name));
}

Refusal ambiguousItem(const QString &name, const QStringList &kinds)
{
    return Refusal(QObject::tr("Several budget items are named '%1'; choose one with --kind: %2.")
                       .arg(name, kinds.join(QStringLiteral(", "))));
}

Refusal answersEnded()
{
    return Refusal(QObject::tr("The answers ended before the questions."));
}

Refusal surveyGivenUp()
{
    return Refusal(QObject::tr("The survey was not completed."));
}

Refusal ratesNotFetched(const QString &reason)
{
    return Refusal(withReason(QObject::tr("The exchange rates could not be fetched."), reason));
}

Refusal releasesNotFetched(const QString &reason)
{
    return Refusal(withReason(QObject::tr("The releases could not be fetched."), reason));
}

Refusal wizardFailed(const QString &reason)
{
    return Refusal(withReason(QObject::tr("The budget could not be made."), reason));
}

Refusal noSuchTag(const QString &name)
{
    return Refusal(QObject::tr("There is no tag '%1'.").arg(name));
}

Refusal shadowedItem(const QString &kind, const QString &firstKind, const QString &name)
{
    return Refusal(QObject::tr("The %1 '%3' cannot be processed while there is a %2 of the same "
                               "name; rename one of them.")
                       .arg(kind, firstKind, name));
}

Refusal noTransferFrom(const QString &account)
{
    return Refusal(QObject::tr("Money can be moved out of an asset account that a bank keeps, "
                               "which '%1' is not.")
                       .arg(account));
}

Refusal noTransferTo(const QString &account)
{
    return Refusal(QObject::tr("Money can be moved into an asset account that a bank keeps and "
                               "that stands under no other, which '%1' is not.")
                       .arg(account));
}

Refusal noSuchTransaction(const QString &number)
{
    return Refusal(QObject::tr("There is no transaction %1.").arg(number));
}

Refusal fileExists(const QString &path)
{
    return Refusal(QObject::tr("The file '%1' exists already.").arg(path));
}

Refusal cannotWriteOutput(const QString &reason)
{
    return Refusal(QObject::tr("Cannot write the output: %1.").arg(reason));
}

Refusal cannotRead(const QString &path, const QString &reason)
{
    return Refusal(QObject::tr("Cannot read '%1': %2.").arg(path, reason));
}

} // namespace kiv::app

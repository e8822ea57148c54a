// SPDX-License-Identifier: GPL-3.0-or-later
#include "errors.h"

#include "output/report.h"
#include "parsing/similar.h"

#include <QtCore/QObject>

namespace kiv::app {

namespace {
QString withReason(const QString &sentence, const QString &reason)
{
    return reason.isEmpty() ? sentence : sentence + u' ' + reason;
}

/// What there is not, and what may have been meant; otherwise what to do next.
QString missed(const QString &what, const QStringList &similar, const QString &next)
{
    if (similar.isEmpty())
        return next.isEmpty() ? what + u'.' : QObject::tr("%1; %2.").arg(what, next);
    QStringList quoted;
    for (const QString &name : similar)
        quoted += QObject::tr("'%1'", "a name").arg(name);
    return QObject::tr("%1; did you mean %2?").arg(what, quoted.join(QStringLiteral(", ")));
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

UsageError notACurrency(const QString &text, const QStringList &similar)
{
    return UsageError(missed(QObject::tr("'%1' is not a currency").arg(text), similar,
                             QObject::tr("write its ISO 4217 code, like USD")));
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
    // A mark would be lost among the commas.
    QStringList shown;
    for (const QString &choice : choices)
        shown += choice.front().isLetter() ? choice : QObject::tr("'%1'", "a name").arg(choice);
    return UsageError(
        missed(QObject::tr("'%1' is none of: %2").arg(text, shown.join(QStringLiteral(", "))),
               similarTo(text, choices).mid(0, 1), {}));
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
    return UsageError(
        QObject::tr("Nothing to change was given; --help lists what can be changed."));
}

UsageError notAFormerVersion()
{
    return UsageError(
        QObject::tr("Version 0 is the file itself; kiv history lists the former ones."));
}

UsageError noFileNamed()
{
    return UsageError(
        QObject::tr("No budget file was named; use --file or the variable KIV_FILE, or make one "
                    "with kiv new FILE."));
}

UsageError notAnAssignment(const QString &text)
{
    return UsageError(QObject::tr("'%1' is not of the form NAME=VALUE.").arg(text));
}

UsageError notARate(const QString &text)
{
    return UsageError(QObject::tr("'%1' is not a rate; write one like EUR=0.92.").arg(text));
}

UsageError noSuchCommand(const QString &word, const QStringList &similar)
{
    return UsageError(missed(QObject::tr("'%1' is no command").arg(word), similar,
                             QObject::tr("kiv --help lists those that there are")));
}

UsageError noSuchOption(const QString &word, const QStringList &similar)
{
    return UsageError(missed(QObject::tr("'%1' is no option of this command").arg(word), similar,
                             QObject::tr("--help lists those that there are")));
}

UsageError openQuote()
{
    return UsageError(QObject::tr("A quote is not closed."));
}

UsageError notAProfileName(const QString &name)
{
    return UsageError(
        QObject::tr("'%1' cannot name a profile; use letters, digits, '-' and '_'.").arg(name));
}

Refusal noSuchAccount(const QString &text, const QStringList &similar)
{
    return Refusal(missed(QObject::tr("There is no account '%1'").arg(text), similar,
                          QObject::tr("kiv accounts lists those that there are")));
}

Refusal ambiguousAccount(const QString &name, const QStringList &numbers)
{
    return Refusal(QObject::tr("Several accounts are named '%1'; give the number of one: %2.")
                       .arg(name, numbers.join(QStringLiteral(", "))));
}

Refusal noSuchBank(const QString &name, const QStringList &similar)
{
    return Refusal(missed(QObject::tr("There is no bank '%1'").arg(name), similar,
                          QObject::tr("kiv banks lists those that there are")));
}

Refusal notABankAccount(const QString &account)
{
    return Refusal(
        QObject::tr("No bank keeps the account '%1'; kiv bank-account attach ties it to one.")
            .arg(account));
}

Refusal noSuchItem(const QString &kind, const QString &name, const QStringList &similar)
{
    return Refusal(missed(QObject::tr("There is no %1 '%2'").arg(wordText(kind), name), similar,
                          QObject::tr("kiv %1 list shows those that there are").arg(kind)));
}

Refusal noSuchItem(const QString &name, const QStringList &similar)
{
    return Refusal(missed(QObject::tr("There is no budget item '%1'").arg(name), similar,
                          QObject::tr("kiv bill list and the like show those that there are")));
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
    return Refusal(
        withReason(QObject::tr("The exchange rates could not be fetched; try again later, or set "
                               "them with kiv rates set."),
                   reason));
}

Refusal releasesNotFetched(const QString &reason)
{
    return Refusal(
        withReason(QObject::tr("The releases could not be fetched; try again later."), reason));
}

Refusal wizardFailed(const QString &reason)
{
    return Refusal(withReason(QObject::tr("The budget could not be made."), reason));
}

Refusal noSuchTag(const QString &name, const QStringList &similar)
{
    return Refusal(missed(QObject::tr("There is no tag '%1'").arg(name), similar,
                          QObject::tr("kiv tags list shows those that there are")));
}

Refusal noSuchVersion(const QString &number, qsizetype count)
{
    const QString what = QObject::tr("There is no former version %1").arg(number);
    return Refusal(count == 0
                       ? missed(what, {}, QObject::tr("none was kept of this budget"))
                       : missed(what, {}, QObject::tr("kiv history lists those that are kept")));
}

Refusal versionDamaged(const QString &path, const QString &reason)
{
    return Refusal(withReason(QObject::tr("The version in '%1' is not whole.").arg(path), reason));
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
    return Refusal(missed(QObject::tr("There is no transaction %1").arg(number), {},
                          QObject::tr("kiv transactions lists those that there are")));
}

Refusal noSuchProfile(const QString &name, const QStringList &present)
{
    return Refusal(
        present.isEmpty()
            ? QObject::tr("There is no profile '%1'; --save-profile saves one.").arg(name)
            : QObject::tr("There is no profile '%1' among: %2.")
                  .arg(name, present.join(QStringLiteral(", "))));
}

UsageError unknownFormat(const QString &file)
{
    return UsageError(QObject::tr("What '%1' is cannot be told from its name; say it with "
                                  "--format: journal, csv, ofx or qif.")
                          .arg(file));
}

UsageError noAccountInto()
{
    return UsageError(QObject::tr("Say with --into which account the bank statement is about."));
}

Refusal noOtherAccount(const QString &entry)
{
    return Refusal(
        QObject::tr("Say with --against which account is the other side of %1.").arg(entry));
}

Refusal fileExists(const QString &path)
{
    return Refusal(QObject::tr("The file '%1' exists already; choose another name.").arg(path));
}

Refusal unsavedChanges(const QString &path)
{
    return Refusal(
        QObject::tr("The changes of '%1' could not be saved; use save-as first.").arg(path));
}

QString withBackups(const QString &sentence, const QString &backup)
{
    return QObject::tr("%1 kiv history tells which former version is whole; copy that file ('%2', "
                       "…) into its place.")
        .arg(sentence, backup);
}

Refusal cannotWriteOutput(const QString &reason)
{
    return Refusal(QObject::tr("Cannot write the output: %1.").arg(reason));
}

Refusal cannotWrite(const QString &path, const QString &reason)
{
    return Refusal(QObject::tr("Cannot write '%1': %2.").arg(path, reason));
}

Refusal cannotRead(const QString &path, const QString &reason)
{
    return Refusal(QObject::tr("Cannot read '%1': %2.").arg(path, reason));
}

Refusal unreadableInput(const QString &name, const QString &reason)
{
    QString sentence = QObject::tr("Cannot understand %1: %2.").arg(name, reason);
    // The reason may be a sentence, which has an end of its own.
    if (reason.endsWith(u'.') || reason.endsWith(u'?'))
        sentence.chop(1);
    return Refusal(sentence);
}

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#include "messages/errors.h"

#include "workbench/requests/requests.h"

#include <QtCore/QObject>

namespace kiv::app {

namespace {
QString withReason(const QString &sentence, const QString &reason)
{
    return reason.isEmpty() ? sentence : sentence + u' ' + reason;
}

/// `next` is what to do, where no name is alike.
QString missed(const QString &what, const QStringList &similar, const QString &next)
{
    return similar.isEmpty() ? QObject::tr("%1; %2.").arg(what, next)
                             : workbench::didYouMean(what, similar);
}

/// What the user can do, as a part of a sentence.
QString remedyText(const Refusal &refusal)
{
    using enum workbench::Remedy;
    switch (refusal.remedy()) {
    case ListAccounts:
        return QObject::tr("kiv accounts lists those that there are");
    case ListBanks:
        return QObject::tr("kiv banks lists those that there are");
    case ListItems:
        return refusal.subject().isEmpty()
                   ? QObject::tr("kiv bill list and the like show those that there are")
                   : QObject::tr("kiv %1 list shows those that there are").arg(refusal.subject());
    case ListTags:
        return QObject::tr("kiv tags list shows those that there are");
    case ListTransactions:
        return QObject::tr("kiv transactions lists those that there are");
    case ListVersions:
        return QObject::tr("kiv history lists those that are kept");
    case AttachBankAccount:
        return QObject::tr("kiv bank-account attach ties it to one");
    case ChooseKind:
        return QObject::tr("choose one with --kind: %1").arg(refusal.subject());
    case SaveElsewhere:
        return QObject::tr("use save-as first");
    case SaveProfile:
        return QObject::tr("--save-profile saves one");
    case None:
        break;
    }
    return {};
}
} // namespace

UsageError::~UsageError() = default;

QString told(const std::exception &error)
{
    if (const auto *refusal = dynamic_cast<const Refusal *>(&error);
        refusal && refusal->remedy() != workbench::Remedy::None)
        return QObject::tr("%1; %2.").arg(refusal->statement(), remedyText(*refusal));
    return workbench::userText(error);
}

UsageError contradiction(const QString &one, const QString &other)
{
    return UsageError(QObject::tr("Use either %1 or %2, not both.").arg(one, other));
}

UsageError onlyWith(const QString &name, const QString &base)
{
    return UsageError(QObject::tr("%1 goes only with %2.").arg(name, base));
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

UsageError notUtf8()
{
    return UsageError(QObject::tr("A value on the command line is not valid UTF-8."));
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

Refusal noSuchTag(const QString &name, const QStringList &similar)
{
    return workbench::missed(QObject::tr("There is no tag '%1'").arg(name), similar,
                             workbench::Remedy::ListTags);
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

Refusal unreadableInput(const QString &name, const QString &reason)
{
    QString sentence = QObject::tr("Cannot understand %1: %2.").arg(name, reason);
    // The reason may be a sentence, which has an end of its own.
    if (reason.endsWith(u'.') || reason.endsWith(u'?'))
        sentence.chop(1);
    return Refusal(sentence);
}

} // namespace kiv::app

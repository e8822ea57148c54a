// SPDX-License-Identifier: GPL-3.0-or-later
#include "messages/errors.h"

#include "workbench/requests/requests.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::app {

namespace {
QString withReason(const QString &sentence, const QString &reason)
{
    return reason.isEmpty() ? sentence : sentence + u' ' + reason;
}

QString seeCommand(const QString &command)
{
    return QObject::tr("see %1").arg(command);
}

/// Offers similar names, or else the help.
QString missed(const QString &what, const QStringList &similar, const QString &help)
{
    return similar.isEmpty() ? QObject::tr("%1; %2.").arg(what, seeCommand(help))
                             : workbench::didYouMean(what, similar);
}

/// The end of a sentence: what the user can do.
QString remedyText(const Refusal &refusal)
{
    using enum workbench::Remedy;
    switch (refusal.remedy()) {
    case ListAccounts:
        return seeCommand(QStringLiteral("kiv accounts"));
    case ListBanks:
        return seeCommand(QStringLiteral("kiv banks"));
    case ListItems:
        return refusal.subject().isEmpty()
                   ? QObject::tr("see kiv bill list (or debt, goal, nontrack, wage)")
                   : seeCommand(QStringLiteral("kiv %1 list").arg(refusal.subject()));
    case ListTags:
        return seeCommand(QStringLiteral("kiv tags list"));
    case ListTransactions:
        return seeCommand(QStringLiteral("kiv transactions"));
    case ListVersions:
        return seeCommand(QStringLiteral("kiv history"));
    case ConvertAccount:
        return QObject::tr("use kiv account convert");
    case AttachBankAccount:
        return QObject::tr("assign it with kiv bank-account attach");
    case ChooseKind:
        return QObject::tr("choose one with --kind: %1").arg(refusal.subject());
    case SaveElsewhere:
        return QObject::tr("save them elsewhere with save-as");
    case SaveProfile:
        return QObject::tr("save one with --save-profile");
    case BringBack:
        return QObject::tr("bring the newest back with kiv undo");
    case TryAgain:
    case LookAtVersions:
    case Reload:
    case OpenForReading:
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
    return UsageError(QObject::tr("Use %1 only together with %2.").arg(name, base));
}

UsageError missing(const QString &what)
{
    return UsageError(QObject::tr("%1 is missing.").arg(what));
}

UsageError nothingToChange()
{
    return UsageError(QObject::tr("No change given; see --help."));
}

UsageError noFileNamed()
{
    return UsageError(QObject::tr("No budget file given; use --file or the variable KIV_FILE, or "
                                  "create one with kiv new FILE."));
}

UsageError notARate(const QString &text)
{
    return UsageError(QObject::tr("'%1' is not a rate; write one like EUR=0.92.").arg(text));
}

UsageError givenTwice(const QString &what)
{
    return UsageError(QObject::tr("'%1' is given twice.").arg(what));
}

UsageError notAGoal(const QString &item)
{
    return UsageError(QObject::tr("'%1' is no goal, and has no target.").arg(item));
}

UsageError noSuchStarterItem(const QString &name, const QStringList &similar)
{
    return UsageError(missed(QObject::tr("The template has no item '%1'").arg(name), similar,
                             QStringLiteral("kiv templates show")));
}

UsageError ambiguousStarterItem(const QString &name, const QStringList &ways)
{
    return UsageError(QObject::tr("The template has several items '%1'; write one of: %2.")
                          .arg(name, ways.join(QStringLiteral(", "))));
}

UsageError noSuchCommand(const QString &word, const QStringList &similar, const QString &help)
{
    return UsageError(missed(QObject::tr("There is no command '%1'").arg(word), similar, help));
}

UsageError noSuchOption(const QString &word, const QStringList &similar, const QString &help)
{
    return UsageError(missed(QObject::tr("There is no option '%1'").arg(word), similar, help));
}

UsageError wrongCall(const QString &what, const QString &help)
{
    return UsageError(missed(what, {}, help));
}

UsageError openQuote()
{
    return UsageError(QObject::tr("A closing quote is missing."));
}

UsageError notUtf8()
{
    return UsageError(QObject::tr("A value on the command line is not valid UTF-8."));
}

Refusal answersEnded()
{
    return Refusal(QObject::tr("The input ended before the last question; nothing is saved."));
}

Refusal surveyGivenUp()
{
    return Refusal(QObject::tr("The survey was not completed; nothing is saved."));
}

Refusal ratesNotFetched(const QString &reason)
{
    return Refusal(
        withReason(QObject::tr("The exchange rates could not be fetched; try again later, or set "
                               "them with kiv rates set."),
                   reason));
}

UsageError unknownFormat(const QString &file)
{
    return UsageError(
        QObject::tr(
            "Cannot tell the format of '%1'; use --format: journal, csv, ofx, qif, mt940 or camt.")
            .arg(file));
}

UsageError noAccountInto(const QStringList &accounts)
{
    const QString sentence = QObject::tr("Give the account of the bank statement with --into.");
    return UsageError(
        accounts.isEmpty()
            ? sentence
            : QObject::tr("%1 It may be: %2.").arg(sentence, accounts.join(QStringLiteral(", "))));
}

Refusal ofOtherAccount(const QString &said)
{
    return Refusal(QObject::tr("%1 Use --yes to import it all the same.").arg(said));
}

Refusal importGivenUp()
{
    return Refusal(QObject::tr("Nothing was imported."));
}

Refusal notTheSame(const numira::Money &amount, const QString &number)
{
    return Refusal(QObject::tr("Transaction %1 cannot be the same as an entry of %2.")
                       .arg(number, foundation::presentationText(amount)));
}

Refusal noOtherAccount(const QString &entry)
{
    return Refusal(
        QObject::tr(
            "It is not known what this was for: %1. Say it with --for, --against or a rule.")
            .arg(entry));
}

UsageError noPassphrase(const QString &file, const QString &option)
{
    return UsageError(QObject::tr("The file '%1' is encrypted: give its passphrase with %2, or at "
                                  "a terminal.")
                          .arg(file, option));
}

UsageError typedTooLong(qsizetype bytes)
{
    return UsageError(
        QObject::tr("At a terminal a passphrase has fewer than %1 bytes; a longer one "
                    "can be given in a file.")
            .arg(bytes));
}

UsageError otherPassphrase()
{
    return UsageError(QObject::tr("This is not the same passphrase."));
}

QString withFormerVersions(const QString &sentence)
{
    return QObject::tr("%1 Former versions are kept; bring the newest back with kiv undo.")
        .arg(sentence);
}

Refusal cannotWriteOutput(const QString &reason)
{
    return Refusal(QObject::tr("Cannot write the output: %1.").arg(reason));
}

Refusal unreadableInput(const QString &name, const QString &reason)
{
    QString sentence = QObject::tr("Cannot understand %1: %2.").arg(name, reason);
    // If the reason is a sentence, it has its own end.
    if (reason.endsWith(u'.') || reason.endsWith(u'?'))
        sentence.chop(1);
    return Refusal(sentence);
}

} // namespace kiv::app

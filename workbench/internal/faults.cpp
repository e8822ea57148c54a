// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/internal/faults.h"

#include "workbench/entry/kind_words.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::workbench::internal {

using interchange::ImportError;
using interchange::Place;
using interchange::faults::includeRefused;

namespace {

QString withReason(const QString &sentence, const QString &reason)
{
    return reason.isEmpty() ? sentence : sentence + u' ' + reason;
}

} // namespace

EntryError emptyName()
{
    return EntryError(QObject::tr("A name cannot be empty."));
}

EntryError notADate(const QString &text)
{
    return EntryError(
        QObject::tr("'%1' is not a valid date; write one like 2026-03-31.").arg(text));
}

EntryError notAnAmount(const QString &text)
{
    if (text.isEmpty())
        return EntryError(
            QObject::tr("An amount is missing; write one like 1234.50 or '1234.50 USD'."));
    return EntryError(
        QObject::tr("'%1' is not an amount; write one like 1234.50 or '1234.50 USD'.").arg(text));
}

EntryError amountTooLarge(const QString &text)
{
    return EntryError(QObject::tr("The amount '%1' is too large.").arg(text));
}

EntryError splitTooShort()
{
    return EntryError(QObject::tr("A split has at least two parts."));
}

Refusal noOtherSide(const QString &text, QDate day)
{
    return Refusal(QObject::tr("It is not known what '%1' of %2 was for.")
                       .arg(text, foundation::presentationText(day)));
}

Refusal notKeptByBanks(const QString &account)
{
    return Refusal(QObject::tr("No bank's statement is of '%1': the account neither holds money "
                               "nor owes any.")
                       .arg(account));
}

ImportError otherCurrency(const Place &place, const numira::Currency &found,
                          const numira::Currency &wanted)
{
    return {place,
            QObject::tr("The amount is in %1, but the account is in %2.")
                .arg(foundation::presentationText(found), foundation::presentationText(wanted))};
}

EntryError emptyRule()
{
    return EntryError(QObject::tr("A rule needs a text that entries contain."));
}

EntryError brokenPattern(const QString &pattern, const QString &reason)
{
    return EntryError(QObject::tr("'%1' is not a regular expression: %2.").arg(pattern, reason));
}

EntryError emptyRuleSpan()
{
    return EntryError(QObject::tr("No amount lies between those of the rule."));
}

Refusal tooManyRules()
{
    return Refusal(QObject::tr("There are too many rules; remove some first."));
}

EntryError tooManyDigits(const QString &text, const QString &currency, unsigned digitsMax)
{
    return EntryError(
        digitsMax == 0
            ? QObject::tr("'%1' is not an amount in %2, which has no decimals.").arg(text, currency)
            : QObject::tr("'%1' has too many decimals; %3 allows %2.")
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

EntryError notARate(const QString &text)
{
    return EntryError(QObject::tr("'%1' is not a rate; write one like 0.92.").arg(text));
}

EntryError noCurrencies()
{
    return EntryError(QObject::tr("No currency is given; write codes such as USD, EUR."));
}

EntryError currencyGivenTwice(const QString &currency)
{
    return EntryError(QObject::tr("The currency '%1' is given twice.").arg(currency));
}

EntryError notAnAmountFilter(const QString &part)
{
    return EntryError(
        QObject::tr("'%1' names no amounts; write them like >50, <20, =12.30 or 50..80.")
            .arg(part));
}

EntryError notADayFilter(const QString &part)
{
    return EntryError(
        QObject::tr("'%1' names no days; write them like 2026-03-05, 2026-03 or 2026-03..2026-05.")
            .arg(part));
}

EntryError notAMarkFilter(const QString &part)
{
    return EntryError(
        QObject::tr("'%1' names no mark; the marks are reconciled, cleared and open.").arg(part));
}

EntryError filterEndsFirst(const QString &part)
{
    return EntryError(QObject::tr("'%1' ends before it begins.").arg(part));
}

EntryError filterLacksValue(const QString &part)
{
    return EntryError(QObject::tr("'%1' lacks a word behind the colon.").arg(part));
}

EntryError notAFilter(const QString &part, const QStringList &similar)
{
    return EntryError(didYouMean(QObject::tr("'%1' is not a filter").arg(part), similar));
}

EntryError twoCurrencies(const QString &sum)
{
    return EntryError(
        QObject::tr("'%1' has two currencies; enter amounts of one currency.").arg(sum));
}

EntryError notAnEvenDivision(const QString &sum)
{
    return EntryError(
        QObject::tr("'%1' does not come out even; enter the amount itself.").arg(sum));
}

EntryError notADay(const QString &text)
{
    return EntryError(
        QObject::tr("'%1' is not a day; write one like 2026-03-31, 3, 5-2, +7 or today.")
            .arg(text));
}

Refusal noSuchAccount(const QString &text, const QStringList &similar)
{
    return missed(QObject::tr("There is no account '%1'").arg(text), similar, Remedy::ListAccounts);
}

Refusal ambiguousAccount(const QString &name, const QStringList &ways)
{
    return Refusal(QObject::tr("Several accounts are named '%1'; write one of: %2.")
                       .arg(name, ways.join(QStringLiteral(", "))));
}

Refusal noSuchBank(const QString &name, const QStringList &similar)
{
    return missed(QObject::tr("There is no bank '%1'").arg(name), similar, Remedy::ListBanks);
}

Refusal releasesNotFetched(const QString &reason)
{
    return Refusal(
        withReason(QObject::tr("The releases could not be fetched; try again later."), reason));
}

Refusal noSuchTag(const QString &name, const QStringList &similar)
{
    return missed(QObject::tr("There is no tag '%1'").arg(name), similar, Remedy::ListTags);
}

Refusal notABankAccount(const QString &account)
{
    return Refusal(QObject::tr("The account '%1' is not assigned to a bank").arg(account),
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

Refusal shadowedItem(budgeting::BudgetItemTypes kind, budgeting::BudgetItemTypes firstKind,
                     const QString &name)
{
    return Refusal(QObject::tr("The %1 '%3' cannot be processed while there is a %2 of the same "
                               "name; rename one of them.")
                       .arg(kindText(kind), kindText(firstKind), name));
}

Refusal ambiguousItem(const QString &name, const QStringList &kinds)
{
    return Refusal(QObject::tr("Several budget items are named '%1'").arg(name), Remedy::ChooseKind,
                   kinds.join(QStringLiteral(", ")));
}

Refusal ambiguousTyped(const QString &name, const QStringList &ways)
{
    return Refusal(QObject::tr("Several budget items are named '%1'; write one of these: %2.")
                       .arg(name, ways.join(QStringLiteral(", "))));
}

Refusal noSuchTransaction(const QString &number)
{
    return missed(QObject::tr("There is no transaction %1").arg(number), {},
                  Remedy::ListTransactions);
}

Refusal notSpentOn(const QString &account)
{
    return Refusal(QObject::tr("Money is not spent on '%1'; name a budget item or an expense "
                               "account, or move it to '%1'.")
                       .arg(account));
}

Refusal notEarnedFrom(const QString &account)
{
    return Refusal(QObject::tr("Money is not earned from '%1'; name a wage or an income account, "
                               "or move it from '%1'.")
                       .arg(account));
}

Refusal keepsNoMoney(const QString &account)
{
    return Refusal(
        QObject::tr("'%1' keeps no money; name an account such as a bank account, a card or cash.")
            .arg(account));
}

Refusal noUsualAccount(const QString &item)
{
    return Refusal(QObject::tr("'%1' was never paid before, and no bank has a checking account; "
                               "name the account.")
                       .arg(item));
}

Refusal otherCurrency(const QString &account, const QString &own, const QString &typed)
{
    return Refusal(QObject::tr("'%1' is kept in %2; give its amount in %2 instead of %3.")
                       .arg(account, own, typed));
}

Refusal noExchange(const QString &giver, const QString &receiver, const QString &currency)
{
    return Refusal(QObject::tr("'%1' and '%2' are both kept in %3, so nothing is exchanged; "
                               "move one amount.")
                       .arg(giver, receiver, currency));
}

Refusal noCategory(const QString &entry)
{
    return Refusal(
        QObject::tr("“%1” has no category: it was neither spent nor earned.").arg(entry));
}

Refusal stillReconciled(const QString &entry)
{
    return Refusal(
        QObject::tr("“%1” is reconciled; take the reconciliation back first.").arg(entry));
}

Refusal noSuchVersion(const QString &name)
{
    return missed(QObject::tr("There is no version %1").arg(name), {}, Remedy::ListVersions);
}

Refusal alreadyPresent(const QString &version)
{
    return Refusal(QObject::tr("The file already is at version %1.").arg(version));
}

Refusal nothingToUndo(qsizetype possible)
{
    return Refusal(possible == 0 ? QObject::tr("There is nothing to undo.")
                                 : QObject::tr("Only %n change(s) can be undone.", nullptr,
                                               static_cast<int>(possible)));
}

Refusal nothingToRedo(qsizetype possible)
{
    return Refusal(possible == 0 ? QObject::tr("There is nothing to redo.")
                                 : QObject::tr("Only %n change(s) can be redone.", nullptr,
                                               static_cast<int>(possible)));
}

Refusal versionDamaged(const QString &path, const QString &reason)
{
    return Refusal(withReason(QObject::tr("The version in '%1' is damaged.").arg(path), reason));
}

Refusal noSuchFile(const QString &path)
{
    return Refusal(QObject::tr("There is no file '%1'.").arg(path));
}

Refusal fileGone(const QString &path)
{
    return Refusal(QObject::tr("The file '%1' is gone, but its former versions are kept").arg(path),
                   Remedy::BringBack);
}

Refusal notEncrypted(const QString &path)
{
    return Refusal(QObject::tr("The budget '%1' is not encrypted.").arg(path));
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

Refusal openedForReading()
{
    return Refusal(QObject::tr("The budget was opened for reading only."));
}

Refusal starterFailed(const QString &reason)
{
    return Refusal(withReason(QObject::tr("The budget could not be created."), reason));
}

Refusal starterItemFailed(budgeting::BudgetItemTypes kind, const QString &name,
                          const QString &reason)
{
    return Refusal(withReason(
        QObject::tr("The %1 '%2' could not be added.").arg(kindText(kind), name), reason));
}

Refusal demonstrationInFuture(const QString &day)
{
    return Refusal(
        QObject::tr("The demonstration ends today or on a day before, not on %1.").arg(day));
}

Refusal cannotRead(const QString &path, const QString &reason)
{
    return Refusal(QObject::tr("Cannot read '%1': %2.").arg(path, reason));
}

Refusal cannotWrite(const QString &path, const QString &reason)
{
    return Refusal(QObject::tr("Cannot write '%1': %2.").arg(path, reason));
}

Refusal fileTooLarge(const QString &path, qsizetype line)
{
    return cannotRead(path, QObject::tr("it is larger than 64 MiB (exceeded in line %1); split it "
                                        "into smaller files")
                                .arg(line));
}

EntryError notAProfileName(const QString &name)
{
    return EntryError(
        QObject::tr("'%1' is not a profile name; use letters, digits, '-' and '_'.").arg(name));
}

Refusal noSuchProfile(const QString &name, const QStringList &present)
{
    if (present.isEmpty())
        return missed(QObject::tr("There is no profile '%1'").arg(name), {}, Remedy::SaveProfile);
    return Refusal(QObject::tr("There is no profile '%1'; saved profiles: %2.")
                       .arg(name, present.join(QStringLiteral(", "))));
}

ImportError includesPattern(const Place &place, const QString &path)
{
    return includeRefused(place, path, QObject::tr("patterns are not supported; name each file"));
}

ImportError includesNoFile(const Place &place, const QString &path)
{
    return includeRefused(place, path, QObject::tr("the file does not exist"));
}

ImportError includesOutside(const Place &place, const QString &path)
{
    return includeRefused(place, path, QObject::tr("it is outside the folder of the journal"));
}

ImportError includesTooMuch(const Place &place, const QString &path)
{
    return includeRefused(place, path, QObject::tr("all files together are larger than 64 MiB"));
}

} // namespace kiv::workbench::internal

// SPDX-License-Identifier: GPL-3.0-or-later
// The errors of surveys, and of accounts that change or come to an end.
#include "workbench/internal/faults.h"

#include "workbench/entry/kind_words.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::workbench::internal {

Refusal neverReconciled(const QString &account)
{
    return Refusal(QObject::tr("%1 was never reconciled.").arg(account));
}

Refusal statementOlder(const QString &account, QDate day, QDate last)
{
    return Refusal(
        QObject::tr("%1 was reconciled on %2 already; the statement of %3 is older.")
            .arg(account, foundation::presentationText(last), foundation::presentationText(day)));
}

Refusal differenceNotAccepted()
{
    return Refusal(QObject::tr("The books differ from the statement; find what differs, or say "
                               "that the difference may stay."));
}

EntryError notOnSheet(const QString &numbers)
{
    return EntryError(QObject::tr("There is no transaction %1 on the sheet.").arg(numbers));
}

EntryError notTicks(const QString &text)
{
    return EntryError(QObject::tr("'%1' is not a list of transactions; write one like 1-5,9, "
                                  "'all', 'all but 3' or 'none'.")
                          .arg(text));
}

Refusal noStatement(const QString &file)
{
    return Refusal(QObject::tr("“%1” does not look like a statement of a bank.").arg(file));
}

Refusal fileTellsNoDay(const QString &file)
{
    return Refusal(QObject::tr("'%1' tells no day; give that of the statement.").arg(file));
}

Refusal fileOfOtherAccount(const QString &file, const QString &account)
{
    return Refusal(
        QObject::tr("'%1' is a statement of another account than %2.").arg(file, account));
}

EntryError staysInAccount()
{
    return EntryError(QObject::tr("What moves within the account is on no statement; move it "
                                  "without the survey."));
}

Refusal sheetTooLarge()
{
    return Refusal(QObject::tr("The survey has too many ticks to be put off."));
}

Refusal typeDoesNotFit(const QString &account, const QString &type, const QString &kind)
{
    return Refusal(QObject::tr("Correct the type of '%1' first: it is %2, and no bank keeps that "
                               "as %3")
                       .arg(account, type, kind),
                   Remedy::ConvertAccount);
}

EntryError kindDoesNotFit(const QString &kind, const QString &type)
{
    return EntryError(
        QObject::tr("A bank cannot keep an account of the type %2 as %1.").arg(kind, type));
}

Refusal atThatBank(const QString &account, const QString &bank)
{
    return Refusal(QObject::tr("'%1' is at the bank '%2' already.").arg(account, bank));
}

Refusal bankIsClosed(const QString &bank)
{
    return Refusal(QObject::tr("The bank '%1' is closed; open it again first.").arg(bank));
}

Refusal accountIsClosed(const QString &account)
{
    return Refusal(QObject::tr("The account '%1' is closed; open it again first.").arg(account));
}

Refusal liesUnder(const QString &account, const QString &above)
{
    return Refusal(
        QObject::tr("'%1' lies under '%2' and goes along with it; name '%2'.").arg(account, above));
}

Refusal replacedByItself(const QString &account)
{
    return Refusal(QObject::tr("'%1' cannot replace itself; add an account first.").arg(account));
}

Refusal differentNature(const QString &old, const QString &by)
{
    return Refusal(QObject::tr("'%1' and '%2' cannot replace each other: one is owned, and the "
                               "other is owed. Pay it off by a transfer, then close it.")
                       .arg(old, by));
}

Refusal differentCurrency(const QString &old, const QString &by)
{
    return Refusal(QObject::tr("'%1' and '%2' are kept in different currencies. Transfer the money "
                               "with both amounts, tie its goals to '%2', then close '%1'.")
                       .arg(old, by));
}

Refusal dayToCome(QDate day)
{
    return Refusal(QObject::tr("%1 is still to come; name a day until today.")
                       .arg(foundation::presentationText(day)));
}

Refusal isOfThatType(const QString &account, const QString &type)
{
    return Refusal(QObject::tr("'%1' is of the type %2 already.").arg(account, type));
}

Refusal typeOfItem(const QString &item)
{
    return Refusal(QObject::tr("The account of '%1' has the type that its item needs. Add an item "
                               "of the right kind, put the transactions under it, then remove "
                               "this one.")
                       .arg(item));
}

Refusal itemBelow(const QString &item)
{
    return Refusal(QObject::tr("The account of '%1' lies under it. Tie '%1' to another bank "
                               "account first, or to none.")
                       .arg(item));
}

Refusal typeOfOpenings(const QString &account)
{
    return Refusal(
        QObject::tr("'%1' holds the opening balances; its type cannot change.").arg(account));
}

Refusal itemLacksAccount(const QString &item)
{
    return Refusal(QObject::tr("'%1' has no account; save and open the budget once.").arg(item));
}

Refusal isFinished(const QString &item)
{
    return Refusal(QObject::tr("'%1' is finished already.").arg(item));
}

Refusal noPlaceFor(const QString &goal)
{
    return Refusal(QObject::tr("The goal '%1' lies under no bank account; say to which account its "
                               "money goes, or move it there first.")
                       .arg(goal));
}

Refusal stillOwed(const QString &debt, const QString &amount)
{
    return Refusal(
        QObject::tr("Of the debt '%1', %2 is still owed; pay it first.").arg(debt, amount));
}

Refusal paidTooMuch(const QString &debt, const QString &amount)
{
    return Refusal(QObject::tr("For the debt '%1', %2 more was paid than was owed; move it back "
                               "first.")
                       .arg(debt, amount));
}

} // namespace kiv::workbench::internal

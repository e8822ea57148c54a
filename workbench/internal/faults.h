// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/errors.h"

#include "budgeting/identifiers.h"
#include "interchange/errors.h"
#include "numira/currency.h"

/// The errors of the workbench, one function for each.
namespace kiv::workbench::internal {

// ---- typed values -----------------------------------------------------------

[[nodiscard]] EntryError emptyName();
[[nodiscard]] EntryError notADate(const QString &text);
[[nodiscard]] EntryError notAnAmount(const QString &text);
[[nodiscard]] EntryError amountTooLarge(const QString &text);
[[nodiscard]] EntryError tooManyDigits(const QString &text, const QString &currency,
                                       unsigned digitsMax);
[[nodiscard]] EntryError notACurrency(const QString &text, const QStringList &similar);
[[nodiscard]] EntryError notAPercentage(const QString &text);
[[nodiscard]] EntryError notARate(const QString &text);
/// A list of currencies that is empty.
[[nodiscard]] EntryError noCurrencies();
[[nodiscard]] EntryError currencyGivenTwice(const QString &currency);
[[nodiscard]] EntryError splitTooShort();
/// A sum of amounts in two currencies.
[[nodiscard]] EntryError twoCurrencies(const QString &sum);
[[nodiscard]] EntryError notAnEvenDivision(const QString &sum);
/// As notADate(), where short forms are read, too.
[[nodiscard]] EntryError notADay(const QString &text);

// ---- searches: `part` is the part as typed -----------------------------------

[[nodiscard]] EntryError notAnAmountFilter(const QString &part);
[[nodiscard]] EntryError notADayFilter(const QString &part);
[[nodiscard]] EntryError notAMarkFilter(const QString &part);
/// The last day or amount is below the first.
[[nodiscard]] EntryError filterEndsFirst(const QString &part);
[[nodiscard]] EntryError filterLacksValue(const QString &part);
/// With similar keys.
[[nodiscard]] EntryError notAFilter(const QString &part, const QStringList &similar);

// ---- statements of banks -------------------------------------------------------

/// `text` is what the bank says of the entry.
[[nodiscard]] Refusal noOtherSide(const QString &text, QDate day);
/// No bank keeps accounts of its type.
[[nodiscard]] Refusal notKeptByBanks(const QString &account);
[[nodiscard]] interchange::ImportError otherCurrency(const interchange::Place &place,
                                                     const numira::Currency &found,
                                                     const numira::Currency &wanted);

// ---- surveys ---------------------------------------------------------------------

[[nodiscard]] Refusal neverReconciled(const QString &account);
/// `last` is the day of the last statement.
[[nodiscard]] Refusal statementOlder(const QString &account, QDate day, QDate last);
[[nodiscard]] Refusal differenceNotAccepted();
/// Numbers that are not on the sheet: "9".
[[nodiscard]] EntryError notOnSheet(const QString &numbers);
[[nodiscard]] EntryError notTicks(const QString &text);
[[nodiscard]] Refusal sheetTooLarge();
[[nodiscard]] EntryError staysInAccount();
[[nodiscard]] Refusal noStatement(const QString &file);
[[nodiscard]] Refusal fileTellsNoDay(const QString &file);
[[nodiscard]] Refusal fileOfOtherAccount(const QString &file, const QString &account);

// ---- rules of imports ---------------------------------------------------------

[[nodiscard]] EntryError emptyRule();
/// `reason` says what is wrong with the regular expression.
[[nodiscard]] EntryError brokenPattern(const QString &pattern, const QString &reason);
/// No amount lies within those of the rule.
[[nodiscard]] EntryError emptyRuleSpan();
[[nodiscard]] Refusal tooManyRules();

// ---- what is not in the budget -----------------------------------------------
// `similar` are names to offer, see similarTo().

[[nodiscard]] Refusal noSuchAccount(const QString &text, const QStringList &similar);
/// `ways` are what to write for each of them.
[[nodiscard]] Refusal ambiguousAccount(const QString &name, const QStringList &ways);
/// `reason` can be empty.
[[nodiscard]] Refusal releasesNotFetched(const QString &reason);
[[nodiscard]] Refusal noSuchTag(const QString &name, const QStringList &similar);
[[nodiscard]] Refusal noSuchBank(const QString &name, const QStringList &similar);
[[nodiscard]] Refusal notABankAccount(const QString &account);
[[nodiscard]] Refusal noSuchItem(budgeting::BudgetItemTypes kind, const QString &name,
                                 const QStringList &similar);
/// An item of the kind `firstKind` has the same name.
[[nodiscard]] Refusal shadowedItem(budgeting::BudgetItemTypes kind,
                                   budgeting::BudgetItemTypes firstKind, const QString &name);
/// There is no item with this name, of any kind.
[[nodiscard]] Refusal noSuchItem(const QString &name, const QStringList &similar);
[[nodiscard]] Refusal ambiguousItem(const QString &name, const QStringList &kinds);
/// The same where a kind is typed before the name; `ways` are what can be typed.
[[nodiscard]] Refusal ambiguousTyped(const QString &name, const QStringList &ways);
[[nodiscard]] Refusal noSuchTransaction(const QString &number);
[[nodiscard]] Refusal notSpentOn(const QString &account);
[[nodiscard]] Refusal notEarnedFrom(const QString &account);
/// Money is spent from an account and earned to it only if it keeps money.
[[nodiscard]] Refusal keepsNoMoney(const QString &account);
/// The user must name the account with which the item is paid.
[[nodiscard]] Refusal noUsualAccount(const QString &item);
/// The amount is in `typed`, and the account is kept in `own`.
[[nodiscard]] Refusal otherCurrency(const QString &account, const QString &own,
                                    const QString &typed);
/// Both accounts are kept in the same currency.
[[nodiscard]] Refusal noExchange(const QString &giver, const QString &receiver,
                                 const QString &currency);
/// `entry` names the transaction: both of its accounts, or none, are the household's own.
[[nodiscard]] Refusal noCategory(const QString &entry);
/// Its reconciliation must be taken back first.
[[nodiscard]] Refusal stillReconciled(const QString &entry);
[[nodiscard]] Refusal noSuchVersion(const QString &name);
[[nodiscard]] Refusal alreadyPresent(const QString &version);
/// `possible` is how many steps there are.
[[nodiscard]] Refusal nothingToUndo(qsizetype possible);
[[nodiscard]] Refusal nothingToRedo(qsizetype possible);
[[nodiscard]] Refusal versionDamaged(const QString &path, const QString &reason);

// ---- accounts that change their bank, their type or come to an end ---------------

/// A bank cannot keep an account of this type as that kind.
[[nodiscard]] Refusal typeDoesNotFit(const QString &account, const QString &type,
                                     const QString &kind);
[[nodiscard]] EntryError kindDoesNotFit(const QString &kind, const QString &type);
[[nodiscard]] Refusal atThatBank(const QString &account, const QString &bank);
[[nodiscard]] Refusal bankIsClosed(const QString &bank);
[[nodiscard]] Refusal accountIsClosed(const QString &account);
/// `above` is the account to name instead.
[[nodiscard]] Refusal liesUnder(const QString &account, const QString &above);
[[nodiscard]] Refusal replacedByItself(const QString &account);
/// One is owned, the other owed.
[[nodiscard]] Refusal differentNature(const QString &old, const QString &by);
[[nodiscard]] Refusal differentCurrency(const QString &old, const QString &by);
[[nodiscard]] Refusal dayToCome(QDate day);
[[nodiscard]] Refusal isOfThatType(const QString &account, const QString &type);
[[nodiscard]] Refusal typeOfItem(const QString &item);
[[nodiscard]] Refusal itemBelow(const QString &item);
[[nodiscard]] Refusal typeOfOpenings(const QString &account);
[[nodiscard]] Refusal itemLacksAccount(const QString &item);
[[nodiscard]] Refusal isFinished(const QString &item);
[[nodiscard]] Refusal noPlaceFor(const QString &goal);
[[nodiscard]] Refusal stillOwed(const QString &debt, const QString &amount);
[[nodiscard]] Refusal paidTooMuch(const QString &debt, const QString &amount);

// ---- files -------------------------------------------------------------------

[[nodiscard]] Refusal noSuchFile(const QString &path);
/// Former versions of the file are kept.
[[nodiscard]] Refusal fileGone(const QString &path);
[[nodiscard]] Refusal fileExists(const QString &path);
[[nodiscard]] Refusal notEncrypted(const QString &path);
[[nodiscard]] Refusal unsavedChanges(const QString &path);
[[nodiscard]] Refusal openedForReading();
/// With the reason, if one is known.
[[nodiscard]] Refusal starterFailed(const QString &reason);
[[nodiscard]] Refusal starterItemFailed(budgeting::BudgetItemTypes kind, const QString &name,
                                        const QString &reason);

[[nodiscard]] Refusal demonstrationInFuture(const QString &day);

[[nodiscard]] Refusal cannotRead(const QString &path, const QString &reason);
[[nodiscard]] Refusal cannotWrite(const QString &path, const QString &reason);
/// `line` is the one that exceeds the limit.
[[nodiscard]] Refusal fileTooLarge(const QString &path, qsizetype line);

// ---- imports -------------------------------------------------------------------

[[nodiscard]] EntryError notAProfileName(const QString &name);
/// `present` are the names of all profiles.
[[nodiscard]] Refusal noSuchProfile(const QString &name, const QStringList &present);
[[nodiscard]] interchange::ImportError includesPattern(const interchange::Place &place,
                                                       const QString &path);
[[nodiscard]] interchange::ImportError includesNoFile(const interchange::Place &place,
                                                      const QString &path);
[[nodiscard]] interchange::ImportError includesOutside(const interchange::Place &place,
                                                       const QString &path);
[[nodiscard]] interchange::ImportError includesTooMuch(const interchange::Place &place,
                                                       const QString &path);

} // namespace kiv::workbench::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/error.h"

#include <QtCore/QStringList>

/// Everything with which the command itself refuses a call. The sentences of
/// the budget's own refusals come from the libraries.
namespace kiv::app {

/// The call is not one that the command understands: exit status 2.
class UsageError final : public foundation::Error {
public:
    using foundation::Error::Error;
    ~UsageError() override;
};

/// The call is understood, and refused: exit status 1.
class Refusal final : public foundation::Error {
public:
    using foundation::Error::Error;
    ~Refusal() override;
};

// ---- values on the command line --------------------------------------------

[[nodiscard]] UsageError notUtf8();
[[nodiscard]] UsageError emptyName();
[[nodiscard]] UsageError notADate(const QString &text);
[[nodiscard]] UsageError notAnAmount(const QString &text);
[[nodiscard]] UsageError amountTooLarge(const QString &text);
[[nodiscard]] UsageError tooManyDigits(const QString &text, const QString &currency,
                                       unsigned digitsMax);
[[nodiscard]] UsageError notACurrency(const QString &text, const QStringList &similar);
[[nodiscard]] UsageError notANumber(const QString &text, qint64 lowest, qint64 highest);
[[nodiscard]] UsageError notAPercentage(const QString &text);
/// None of the words that are allowed there; the most similar is offered.
[[nodiscard]] UsageError notAChoice(const QString &text, const QStringList &choices);
[[nodiscard]] UsageError contradiction(const QString &one, const QString &other);
[[nodiscard]] UsageError missing(const QString &what);
[[nodiscard]] UsageError nothingToChange();
[[nodiscard]] UsageError notAFormerVersion();
[[nodiscard]] UsageError noFileNamed();
[[nodiscard]] UsageError noSuchCommand(const QString &word, const QStringList &similar);
[[nodiscard]] UsageError noSuchOption(const QString &word, const QStringList &similar);
[[nodiscard]] UsageError openQuote();
[[nodiscard]] UsageError notAnAssignment(const QString &text);
[[nodiscard]] UsageError notARate(const QString &text);
[[nodiscard]] UsageError notAProfileName(const QString &name);

// ---- what the budget does not hold -----------------------------------------
// `similar` are names that may be meant, see similarTo().

[[nodiscard]] Refusal noSuchAccount(const QString &text, const QStringList &similar);
[[nodiscard]] Refusal ambiguousAccount(const QString &name, const QStringList &numbers);
[[nodiscard]] Refusal noSuchBank(const QString &name, const QStringList &similar);
[[nodiscard]] Refusal notABankAccount(const QString &account);
[[nodiscard]] Refusal noSuchItem(const QString &kind, const QString &name,
                                 const QStringList &similar);
/// Of no kind at all.
[[nodiscard]] Refusal noSuchItem(const QString &name, const QStringList &similar);
[[nodiscard]] Refusal ambiguousItem(const QString &name, const QStringList &kinds);
[[nodiscard]] Refusal answersEnded();
[[nodiscard]] Refusal surveyGivenUp();
/// Each with the reason, if one is known.
[[nodiscard]] Refusal ratesNotFetched(const QString &reason);
[[nodiscard]] Refusal releasesNotFetched(const QString &reason);
[[nodiscard]] Refusal wizardFailed(const QString &reason);
[[nodiscard]] Refusal noSuchTag(const QString &name, const QStringList &similar);
[[nodiscard]] Refusal shadowedItem(const QString &kind, const QString &firstKind,
                                   const QString &name);
[[nodiscard]] Refusal noTransferFrom(const QString &account);
[[nodiscard]] Refusal noTransferTo(const QString &account);
[[nodiscard]] Refusal noSuchTransaction(const QString &number);
[[nodiscard]] Refusal noSuchVersion(const QString &number, qsizetype count);
[[nodiscard]] Refusal versionDamaged(const QString &path, const QString &reason);

/// Of the saved import profiles.
[[nodiscard]] Refusal noSuchProfile(const QString &name, const QStringList &present);
/// Neither the file's name nor its first bytes tell what it is.
[[nodiscard]] UsageError unknownFormat(const QString &file);
/// A statement does not say which of the budget's accounts it is about.
[[nodiscard]] UsageError noAccountInto();
/// No rule or category tells where the entry's money went or came from.
[[nodiscard]] Refusal noOtherAccount(const QString &entry);

// ---- files -----------------------------------------------------------------

[[nodiscard]] Refusal fileExists(const QString &path);
[[nodiscard]] Refusal unsavedChanges(const QString &path);
/// What is said of a damaged file, and what to do with its backups.
[[nodiscard]] QString withBackups(const QString &sentence, const QString &backup);
[[nodiscard]] Refusal cannotWriteOutput(const QString &reason);
[[nodiscard]] Refusal cannotWrite(const QString &path, const QString &reason);
[[nodiscard]] Refusal cannotRead(const QString &path, const QString &reason);
/// It was read, and does not say what it should.
[[nodiscard]] Refusal unreadableInput(const QString &name, const QString &reason);

} // namespace kiv::app

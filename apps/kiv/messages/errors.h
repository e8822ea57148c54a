// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/errors.h"

#include <QtCore/QStringList>

/// Everything with which the command itself refuses a call, in the user's language.
/// The sentences of the budget's own refusals come from the libraries.
namespace kiv::app {

using workbench::EntryError;
using workbench::Refusal;

/// The call is not one that the command understands: exit status 2, as for every
/// EntryError.
class UsageError final : public EntryError {
public:
    using EntryError::EntryError;
    ~UsageError() override;
};

/// What went wrong in the user's language, with its causes, and with what the user
/// can do about it where there is a command for that.
[[nodiscard]] QString told(const std::exception &error);

// ---- values on the command line --------------------------------------------

[[nodiscard]] UsageError contradiction(const QString &one, const QString &other);
[[nodiscard]] UsageError onlyWith(const QString &name, const QString &base);
[[nodiscard]] UsageError missing(const QString &what);
[[nodiscard]] UsageError nothingToChange();
[[nodiscard]] UsageError notAFormerVersion();
[[nodiscard]] UsageError noFileNamed();
[[nodiscard]] UsageError noSuchCommand(const QString &word, const QStringList &similar);
[[nodiscard]] UsageError noSuchOption(const QString &word, const QStringList &similar);
[[nodiscard]] UsageError openQuote();
[[nodiscard]] UsageError notUtf8();
[[nodiscard]] UsageError notARate(const QString &text);

// ---- what the budget does not hold -----------------------------------------
// `similar` are names that may be meant, see similarTo().

[[nodiscard]] Refusal answersEnded();
[[nodiscard]] Refusal surveyGivenUp();
/// Each with the reason, if one is known.
[[nodiscard]] Refusal ratesNotFetched(const QString &reason);
[[nodiscard]] Refusal releasesNotFetched(const QString &reason);
[[nodiscard]] Refusal noSuchTag(const QString &name, const QStringList &similar);
[[nodiscard]] Refusal noTransferFrom(const QString &account);
[[nodiscard]] Refusal noTransferTo(const QString &account);

/// Neither the file's name nor its first bytes tell what it is.
[[nodiscard]] UsageError unknownFormat(const QString &file);
/// A statement does not say which of the budget's accounts it is about.
[[nodiscard]] UsageError noAccountInto();
/// No rule or category tells where the entry's money went or came from.
[[nodiscard]] Refusal noOtherAccount(const QString &entry);

// ---- files -----------------------------------------------------------------

/// What is said of a damaged file, and what to do with its backups.
[[nodiscard]] QString withBackups(const QString &sentence, const QString &backup);
[[nodiscard]] Refusal cannotWriteOutput(const QString &reason);
/// It was read, and does not say what it should.
[[nodiscard]] Refusal unreadableInput(const QString &name, const QString &reason);

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/errors.h"

#include "numira/money.h"

#include <QtCore/QStringList>

/// The errors of the command itself, with sentences in the user's language. The errors
/// of the budget are in the libraries.
namespace kiv::app {

using workbench::EntryError;
using workbench::Refusal;

/// A call that the command does not understand. The exit status is 2, as for every
/// EntryError.
class UsageError final : public EntryError {
public:
    using EntryError::EntryError;
    ~UsageError() override;
};

/// The sentence for the user: the message with its causes, and the command that can help
/// if there is one.
[[nodiscard]] QString told(const std::exception &error);

// ---- values on the command line --------------------------------------------

[[nodiscard]] UsageError contradiction(const QString &one, const QString &other);
[[nodiscard]] UsageError onlyWith(const QString &name, const QString &base);
[[nodiscard]] UsageError missing(const QString &what);
[[nodiscard]] UsageError nothingToChange();
[[nodiscard]] UsageError noFileNamed();
// `help` is the command that shows the help.
[[nodiscard]] UsageError noSuchCommand(const QString &word, const QStringList &similar,
                                       const QString &help);
[[nodiscard]] UsageError noSuchOption(const QString &word, const QStringList &similar,
                                      const QString &help);
/// `what` is a sentence without its end.
[[nodiscard]] UsageError wrongCall(const QString &what, const QString &help);
[[nodiscard]] UsageError openQuote();
[[nodiscard]] UsageError notUtf8();
[[nodiscard]] UsageError notARate(const QString &text);
[[nodiscard]] UsageError givenTwice(const QString &what);
[[nodiscard]] UsageError notAGoal(const QString &item);

// ---- templates ---------------------------------------------------------------

/// `similar` are names to offer, see similarTo().
[[nodiscard]] UsageError noSuchStarterItem(const QString &name, const QStringList &similar);
/// `ways` are what to write for each of them.
[[nodiscard]] UsageError ambiguousStarterItem(const QString &name, const QStringList &ways);

// ---- what is not in the budget ---------------------------------------------
// `similar` are names to offer, see similarTo().

[[nodiscard]] Refusal answersEnded();
[[nodiscard]] Refusal surveyGivenUp();
/// `reason` can be empty.
[[nodiscard]] Refusal ratesNotFetched(const QString &reason);

/// The name of the file and its first bytes do not show its format.
[[nodiscard]] UsageError unknownFormat(const QString &file);
/// A statement needs the account that it belongs to: one of these.
[[nodiscard]] UsageError noAccountInto(const QStringList &accounts);
/// `said` tells of which account the file is.
[[nodiscard]] Refusal ofOtherAccount(const QString &said);
[[nodiscard]] Refusal importGivenUp();
/// No free transaction of this amount has the number.
[[nodiscard]] Refusal notTheSame(const numira::Money &amount, const QString &number);
/// No rule or category gives the counter-account of the entry.
[[nodiscard]] Refusal noOtherAccount(const QString &entry);

// ---- files -----------------------------------------------------------------

/// Nobody gave the passphrase of the file; `option` names where it can stand.
[[nodiscard]] UsageError noPassphrase(const QString &file, const QString &option);
/// Terminals give no more of a line than so many bytes.
[[nodiscard]] UsageError typedTooLong(qsizetype bytes);
/// The passphrase that was typed twice is not the same.
[[nodiscard]] UsageError otherPassphrase();
/// The sentence on a file that is gone or damaged, with how to bring it back.
[[nodiscard]] QString withFormerVersions(const QString &sentence);
[[nodiscard]] Refusal cannotWriteOutput(const QString &reason);
/// The input was read, but its content is wrong.
[[nodiscard]] Refusal unreadableInput(const QString &name, const QString &reason);

} // namespace kiv::app

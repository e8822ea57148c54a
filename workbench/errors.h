// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "foundation/error.h"

#include <QtCore/QStringList>

/// The errors of the workbench itself, with sentences in the user's language. The errors
/// of the budget are in the libraries below.
namespace kiv::workbench {

/// The input cannot be understood; no request was made.
class KIV_WORKBENCH_EXPORT EntryError : public foundation::Error {
public:
    using foundation::Error::Error;
    ~EntryError() override;
};

/// What the user can do about a refusal. Front ends word it in their own way: as a
/// command, a page or a button.
enum class Remedy : std::uint8_t {
    None = 0,
    ListAccounts = 1,
    ListBanks = 2,
    ListItems = 3, ///< of one kind or all, see Refusal::subject
    ListTags = 4,
    ListTransactions = 5,
    ListVersions = 6,
    AttachBankAccount = 7, ///< assign the account to a bank
    ChooseKind = 8,        ///< one of the kinds in Refusal::subject
    SaveElsewhere = 9,     ///< save under another name
    SaveProfile = 10,      ///< save the way of reading a file as a profile
    BringBack = 11,        ///< bring the newest former version back by undo
    TryAgain = 12,         ///< do the same once more
    LookAtVersions = 13,   ///< look at the former versions of the file
    Reload = 14,           ///< open the file as it is now; the budget in memory is given up
    OpenForReading = 15,   ///< open the file without being able to change it
    ConvertAccount = 16,   ///< give the account another type
};

/// A request that was understood and refused.
class KIV_WORKBENCH_EXPORT Refusal : public foundation::Error {
public:
    /// A complete sentence, without a remedy.
    explicit Refusal(const QString &message);
    /// `statement` is a sentence without its end; a front end can append the remedy.
    /// message() is the sentence alone.
    Refusal(const QString &statement, Remedy remedy, const QString &subject = {});
    ~Refusal() override;

    /// What the user can do.
    [[nodiscard]] Remedy remedy() const noexcept { return m_remedy; }
    /// The sentence without its end; empty without a remedy.
    [[nodiscard]] const QString &statement() const noexcept { return m_statement; }
    /// A detail of the remedy, see Remedy.
    [[nodiscard]] const QString &subject() const noexcept { return m_subject; }

private:
    QString m_statement;
    QString m_subject;
    Remedy m_remedy = Remedy::None;
};

/// A refusal about something that does not exist. It offers similar names, or has the
/// remedy if there are none.
[[nodiscard]] KIV_WORKBENCH_EXPORT Refusal missed(const QString &statement,
                                                  const QStringList &similar, Remedy remedy,
                                                  const QString &subject = {});
/// "%1; did you mean %2?"
[[nodiscard]] KIV_WORKBENCH_EXPORT QString didYouMean(const QString &statement,
                                                      const QStringList &similar);
/// The text is not one of the choices; the most similar one is offered.
[[nodiscard]] KIV_WORKBENCH_EXPORT EntryError notAChoice(const QString &text,
                                                         const QStringList &choices);
/// The text is not of the form NAME=VALUE.
[[nodiscard]] KIV_WORKBENCH_EXPORT EntryError notAnAssignment(const QString &text);
/// The text is not a whole number within these bounds.
[[nodiscard]] KIV_WORKBENCH_EXPORT EntryError notANumber(const QString &text, qint64 lowest,
                                                         qint64 highest);

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "foundation/error.h"

#include <QtCore/QStringList>

/// Everything with which the workbench itself refuses. The sentences of the budget's
/// own refusals come from the libraries below. All texts are in the user's language.
namespace kiv::workbench {

/// What a person typed cannot be understood; nothing was asked of the budget.
class KIV_WORKBENCH_EXPORT EntryError : public foundation::Error {
public:
    using foundation::Error::Error;
    ~EntryError() override;
};

/// What a person can do about a refusal. Front ends word it by their own means: a
/// command, a page, a button.
enum class Remedy : std::uint8_t {
    None = 0,
    ListAccounts = 1,
    ListBanks = 2,
    ListItems = 3, ///< of one kind or of all, see Refusal::subject
    ListTags = 4,
    ListTransactions = 5,
    ListVersions = 6,
    AttachBankAccount = 7, ///< let a bank keep the account
    ChooseKind = 8,        ///< among the kinds in Refusal::subject
    SaveElsewhere = 9,     ///< save under another name
    SaveProfile = 10,      ///< save the way of reading a file as a profile
};

/// The request is understood, and refused.
class KIV_WORKBENCH_EXPORT Refusal : public foundation::Error {
public:
    /// A whole sentence, which needs nothing added.
    explicit Refusal(const QString &message);
    /// `statement` is a sentence without its end, behind which a front end may say
    /// what can be done. message() is the sentence alone.
    Refusal(const QString &statement, Remedy remedy, const QString &subject = {});
    ~Refusal() override;

    /// What can be done.
    [[nodiscard]] Remedy remedy() const noexcept { return m_remedy; }
    /// The sentence without its end; empty where there is no remedy.
    [[nodiscard]] const QString &statement() const noexcept { return m_statement; }
    /// What the remedy is about, as its kind says.
    [[nodiscard]] const QString &subject() const noexcept { return m_subject; }

private:
    QString m_statement;
    QString m_subject;
    Remedy m_remedy = Remedy::None;
};

/// The message of a refusal about what is not there, with the names that may have
/// been meant; without any it has the remedy.
[[nodiscard]] KIV_WORKBENCH_EXPORT Refusal missed(const QString &statement,
                                                  const QStringList &similar, Remedy remedy,
                                                  const QString &subject = {});
/// "%1; did you mean %2?"
[[nodiscard]] KIV_WORKBENCH_EXPORT QString didYouMean(const QString &statement,
                                                      const QStringList &similar);
/// None of the words that are allowed there; the most similar is offered.
[[nodiscard]] KIV_WORKBENCH_EXPORT EntryError notAChoice(const QString &text,
                                                         const QStringList &choices);
/// Not of the form NAME=VALUE.
[[nodiscard]] KIV_WORKBENCH_EXPORT EntryError notAnAssignment(const QString &text);
/// A whole number outside of these bounds, or none.
[[nodiscard]] KIV_WORKBENCH_EXPORT EntryError notANumber(const QString &text, qint64 lowest,
                                                         qint64 highest);

} // namespace kiv::workbench

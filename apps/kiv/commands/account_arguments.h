// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/command_group.h"

/// Arguments that several commands about accounts share.
namespace kiv::app {

/// A new number, name or parent for an account.
struct CodeChange {
    QString account;
    std::optional<accounting::AccountNumber> number;
    std::optional<NewName> name;
    std::optional<QString> parent;
    bool isTopLevel = false;

    void declare(Arguments &arguments);
    /// The present code of the account.
    [[nodiscard]] accounting::AccountCode from(const AccountIndex &index) const;
    /// The new code of the account. Throws a UsageError if nothing changes.
    [[nodiscard]] accounting::AccountCode to(const AccountIndex &index) const;
};

/// The account with this number as JSON, with a sentence about it.
[[nodiscard]] Report accountReport(Requests &requests, accounting::AccountNumber number,
                                   const QString &sentence);

/// A command that changes the code of an account. `outcome` is the pair of signals that
/// answer; the sentence has places for the old and the new code.
template <typename Answers>
struct Recode {
    Answers outcome;
    void (navigation::Navigator::*slot)(const accounting::AccountCode &,
                                        const accounting::AccountCode &);
    QString sentence;
    CodeChange change = {};

    void declare(Arguments &arguments) { change.declare(arguments); }
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        const accounting::AccountCode from = change.from(index);
        const accounting::AccountCode to = change.to(index);
        call.requests.change(outcome, slot, from, to);
        // With their paths, since only the parent may have changed.
        const auto told = [](const AccountIndex &accounts, accounting::AccountNumber number) {
            return accounting::presentationText(number) + u' ' + accounts.plainPath(number);
        };
        return accountReport(
            call.requests, to.number(),
            sentence.arg(told(index, from.number()), told(call.requests.accounts(), to.number())));
    }
};

// Needed by clang before version 17, which does not deduce the arguments of aggregates.
template <typename Answers, typename Slot>
Recode(Answers, Slot, QString) -> Recode<Answers>;

/// A command with an account as its only argument. The sentence has a place for its
/// code.
template <typename Answers>
struct AccountVerb {
    Answers outcome;
    void (navigation::Navigator::*slot)(const accounting::AccountCode &);
    QString sentence;
    QString account = {};

    void declare(Arguments &arguments)
    {
        arguments.required("ACCOUNT", account, QObject::tr("Account: number, name or path"));
    }
    Report run(Call &call) const
    {
        const AccountIndex index = call.requests.accounts();
        const accounting::AccountCode code = index.find(account).code();
        call.requests.change(outcome, slot, code);
        return accountReport(call.requests, code.number(),
                             sentence.arg(index.label(code.number())));
    }
};
template <typename Answers, typename Slot>
AccountVerb(Answers, Slot, QString) -> AccountVerb<Answers>;

} // namespace kiv::app

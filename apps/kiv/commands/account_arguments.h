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
    /// The account's present code.
    [[nodiscard]] accounting::AccountCode from(const AccountIndex &index) const;
    /// The code that it is to have. Throws a UsageError when that is the
    /// present one.
    [[nodiscard]] accounting::AccountCode to(const AccountIndex &index) const;
};

/// The account with this number as JSON, with a sentence about it.
[[nodiscard]] Report accountReport(Requests &requests, accounting::AccountNumber number,
                                   const QString &sentence);

/// A command that gives an account another code, for one family of answers.
/// The sentence tells the old code and the new one.
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
        // By their paths, since it may be the parent alone that is another.
        const auto told = [](const AccountIndex &accounts, accounting::AccountNumber number) {
            return accounting::presentationText(number) + u' ' + accounts.path(number);
        };
        return accountReport(
            call.requests, to.number(),
            sentence.arg(told(index, from.number()), told(call.requests.accounts(), to.number())));
    }
};

// clang deduces the arguments of aggregates only from 17 on.
template <typename Answers, typename Slot>
Recode(Answers, Slot, QString) -> Recode<Answers>;

/// A command that asks one thing of an account. The sentence tells its code.
template <typename Answers>
struct AccountVerb {
    Answers outcome;
    void (navigation::Navigator::*slot)(const accounting::AccountCode &);
    QString sentence;
    QString account = {};

    void declare(Arguments &arguments)
    {
        arguments.required("ACCOUNT", account, QObject::tr("The account's number, name or path"));
    }
    Report run(Call &call) const
    {
        const accounting::AccountCode code = call.requests.accounts().find(account).code();
        call.requests.change(outcome, slot, code);
        return accountReport(call.requests, code.number(),
                             sentence.arg(accounting::presentationText(code)));
    }
};
template <typename Answers, typename Slot>
AccountVerb(Answers, Slot, QString) -> AccountVerb<Answers>;

} // namespace kiv::app

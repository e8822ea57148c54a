// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command_line/command_group.h"

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

/// Moves the transaction that opened the account to another day than today, on
/// which it was posted.
void openOn(Session &session, accounting::AccountNumber account, const std::optional<QDate> &date);

/// Moves a transaction that was posted today to another day.
void moveTo(Session &session, accounting::TransactionNumber number,
            const std::optional<QDate> &date);

/// The account with this number as JSON, with a sentence about it.
[[nodiscard]] Report accountReport(Session &session, accounting::AccountNumber number,
                                   const QString &sentence);

/// "1200 Checking"
[[nodiscard]] QString accountText(const AccountIndex &index, accounting::AccountNumber number);

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/document/document.h"

/// Accounts that change their bank. The accounts under them go along, and so does what their
/// last surveys recorded. Each change is made completely, or throws a Refusal or an error of
/// the domain; within Document::perform() the budget is then as before.
namespace kiv::workbench {

/// Gives the account to another bank. Refused: an account of no bank, a bank that has it
/// already, a closed one, and an account that lies under another one of its bank.
KIV_WORKBENCH_EXPORT void moveBankAccount(Document &document, accounting::AccountNumber account,
                                          const banking::BankName &to);

/// An account whose place another one takes.
struct Replacement {
    accounting::AccountNumber old; ///< at a bank
    accounting::AccountNumber by;  ///< at a bank, too
    QDate day;                     ///< on which the money goes over
    /// Whether the old one stays open, since a statement of it is still to come.
    bool isKeptOpen = false;
};

/// What replaceBankAccount() did.
struct Replaced {
    numira::Money moved; ///< the balance that went over; negative for an overdraft
    std::optional<accounting::TransactionNumber> number; ///< that moved it; none for zero
    std::vector<accounting::AccountNumber> under; ///< the accounts that lay under the old one
    std::vector<budgeting::BudgetItemIdentifier> setAside; ///< the items whose money went along
};

/// Moves the balance, the accounts under the old one with their money, and what is set aside
/// there to the new one, and closes the old one. A new one that was never surveyed counts as
/// reconciled at zero on that day. Refused: accounts of no bank, of different nature or currency,
/// closed ones, one that lies under another account, and a day to come.
KIV_WORKBENCH_EXPORT Replaced replaceBankAccount(Document &document,
                                                 const Replacement &replacement);

/// "Checking is at the bank Second now."
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed moveDeed(Requests &requests,
                                                 accounting::AccountNumber account,
                                                 const banking::BankName &to);
/// "Replaced Checking by Giro."
[[nodiscard]] KIV_WORKBENCH_EXPORT Deed replaceDeed(Requests &requests,
                                                    const Replacement &replacement);
/// What was done, a sentence for each thing.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList toldOf(Requests &requests, const Replaced &done,
                                                      const Replacement &replacement);

} // namespace kiv::workbench

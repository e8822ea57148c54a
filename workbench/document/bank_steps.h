// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/document/document.h"

/// Changes of banks that need several requests to the Navigator. Each is made
/// completely, or throws a Refusal with the Navigator's reason and leaves the budget
/// unchanged.
namespace kiv::workbench {

/// Adds a bank without accounts.
KIV_WORKBENCH_EXPORT void addBank(Requests &requests, const banking::BankName &name);

/// Gives a bank another name.
KIV_WORKBENCH_EXPORT void renameBank(Requests &requests, const banking::BankName &name,
                                     const banking::BankName &to);

/// Removes a bank and its accounts.
KIV_WORKBENCH_EXPORT void removeBank(Requests &requests, const banking::BankName &name);

/// Closes a bank and its accounts; some of them may be closed already.
KIV_WORKBENCH_EXPORT void closeBank(Requests &requests, const banking::BankName &name);

/// Opens a closed bank and its accounts; some of them may be open already.
KIV_WORKBENCH_EXPORT void openBank(Requests &requests, const banking::BankName &name);

/// An account that a bank is to keep.
struct NewBankAccount {
    QString name;                       ///< of the account
    banking::BankName bank;             ///< that keeps it
    banking::BankAccountTypes kind{};   ///< what it is to the bank
    numira::Money opening;              ///< its first balance
    std::optional<QDate> openedOn = {}; ///< the day of that balance; today if missing
};
/// Opens an account in the ledger, assigns it to the bank, and returns its number. If
/// assigning is refused, the account stays, so revert the document.
KIV_WORKBENCH_EXPORT accounting::AccountNumber addBankAccount(Document &document,
                                                              const NewBankAccount &account);

/// Assigns the account to the bank with this type, or corrects its type. The last survey
/// of the account is kept.
KIV_WORKBENCH_EXPORT void attachBankAccount(Document &document, const banking::BankName &bank,
                                            accounting::AccountNumber account,
                                            banking::BankAccountTypes kind);

/// Separates the account from its bank; it stays in the ledger.
KIV_WORKBENCH_EXPORT void detachBankAccount(Requests &requests,
                                            const banking::BankAccount &account);

} // namespace kiv::workbench

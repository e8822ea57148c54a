// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/document/document.h"

/// Changes of banks that need several requests to the Navigator. Each is made
/// completely, or throws a Refusal with the Navigator's reason and leaves the budget
/// unchanged.
namespace kiv::workbench {

/// Closes a bank and its accounts; some of them may be closed already.
KIV_WORKBENCH_EXPORT void closeBank(Requests &requests, const banking::BankName &name);

/// Opens a closed bank and its accounts; some of them may be open already.
KIV_WORKBENCH_EXPORT void openBank(Requests &requests, const banking::BankName &name);

/// Assigns the account to the bank with this type, or corrects its type. The last survey
/// of the account is kept.
KIV_WORKBENCH_EXPORT void attachBankAccount(Document &document, const banking::BankName &bank,
                                            accounting::AccountNumber account,
                                            banking::BankAccountTypes kind);

/// Separates the account from its bank; it stays in the ledger.
KIV_WORKBENCH_EXPORT void detachBankAccount(Requests &requests,
                                            const banking::BankAccount &account);

} // namespace kiv::workbench

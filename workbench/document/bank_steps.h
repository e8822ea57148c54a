// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/document/document.h"

/// Changes of banks that take the Navigator several requests, each as one step: it
/// is done whole, or throws a Refusal with the Navigator's reason and leaves the
/// budget as it was.
namespace kiv::workbench {

/// Closes a bank with its accounts, also when some of them are closed already.
KIV_WORKBENCH_EXPORT void closeBank(Requests &requests, const banking::BankName &name);

/// Opens a closed bank with its accounts, also when some of them are open already.
KIV_WORKBENCH_EXPORT void openBank(Requests &requests, const banking::BankName &name);

/// Lets the bank keep the account under this kind, or correct the kind under which it
/// keeps it. A former survey of the account is carried along.
KIV_WORKBENCH_EXPORT void attachBankAccount(Document &document, const banking::BankName &bank,
                                            accounting::AccountNumber account,
                                            banking::BankAccountTypes kind);

/// Takes the account from its bank; it stays in the ledger.
KIV_WORKBENCH_EXPORT void detachBankAccount(Requests &requests,
                                            const banking::BankAccount &account);

} // namespace kiv::workbench

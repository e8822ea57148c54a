// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "banking/errors.h"

/// Every sentence with which this library refuses something: one function each, which gives the
/// exception to throw.
namespace kiv::banking::internal {

[[nodiscard]] BankError emptyBankName(const BankName &name);
[[nodiscard]] BankError bankExists(const BankName &name);
[[nodiscard]] BankError bankNotFound(const BankName &name);
[[nodiscard]] BankError bankAccountNotFound(const BankName &name, accounting::AccountNumber number);
[[nodiscard]] BankError bankAlreadyOpen(const BankName &name);
[[nodiscard]] BankError bankAlreadyClosed(const BankName &name);

} // namespace kiv::banking::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "banking/export.h"

#include "accounting/account_types.h"
#include "foundation/debug_stream.h"

namespace kiv::banking {

/// What kind of account a bank keeps for the household.
enum class BankAccountTypes : std::uint8_t {
    Unknown = 0,
    Checking = 1,
    Savings = 2,
    CreditCard = 3,
    Loan = 4,
    GoalSubAccount = 5, ///< a goal's own account, held below another account of the bank
    LineOfCredit = 6,
    MoneyMarket = 7,
    Cash = 8,
};

/// The kind of ledger account that it must be: liability for a credit card, a
/// loan and a line of credit, unknown for Unknown, asset for the rest. Throws
/// std::logic_error for a value above the known ones.
[[nodiscard]] KIV_BANKING_EXPORT accounting::AccountTypes toAccountTypes(BankAccountTypes type);
/// Whether such an account is an asset in the ledger.
[[nodiscard]] KIV_BANKING_EXPORT bool isAssetAccount(BankAccountTypes type);
/// Whether such an account is a liability in the ledger.
[[nodiscard]] KIV_BANKING_EXPORT bool isLiabilityAccount(BankAccountTypes type);

/// The English name in lower case: "credit card". Throws std::logic_error for a
/// value above the known ones.
[[nodiscard]] KIV_BANKING_EXPORT QString toQString(BankAccountTypes type);
/// The name for the user.
[[nodiscard]] KIV_BANKING_EXPORT QString presentationText(BankAccountTypes type);
KIV_BANKING_EXPORT std::ostream &operator<<(std::ostream &out, BankAccountTypes type);
using foundation::operator<<;

} // namespace kiv::banking

Q_DECLARE_METATYPE(kiv::banking::BankAccountTypes)

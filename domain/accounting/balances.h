// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/transaction.h"

#include "foundation/percentage.h"
#include "foundation/strong_bool.h"

namespace kiv::accounting {

/// Whether the transaction raises the asset account: it is debited.
[[nodiscard]] KIV_ACCOUNTING_EXPORT bool shouldIncreaseAsset(const Transaction &transaction,
                                                             AccountNumber account) noexcept;
/// Whether the transaction raises the liability account: it is credited.
[[nodiscard]] KIV_ACCOUNTING_EXPORT bool shouldIncreaseLiability(const Transaction &transaction,
                                                                 AccountNumber account) noexcept;

/// The balance of the asset account after the transaction, with the amount on
/// the account's own side; unchanged by a transaction between other accounts.
/// Throws AccountError when the balance gets out of range or has another
/// currency to which there is no rate.
[[nodiscard]] KIV_ACCOUNTING_EXPORT numira::Money
adjustAssetBalance(const AccountCode &account, const numira::Money &balance,
                   const Transaction &transaction);
/// The same for a liability account.
[[nodiscard]] KIV_ACCOUNTING_EXPORT numira::Money
adjustLiabilityBalance(const AccountCode &account, const numira::Money &balance,
                       const Transaction &transaction);

struct ByMajorUnitTag {};
/// Whether amounts are compared in major units (dollars) or in minor units
/// (cents). The relative test gives the same answer in both.
using ByMajorUnit = foundation::StrongBool<ByMajorUnitTag>;

/// Whether |calculated − reference| ≤ |reference| × window, in exact decimals;
/// a window of 2.75 means 2.75 %. The calculated amount is converted into the
/// reference's currency first when they differ. Throws foundation::Error when
/// there is no rate, or the window is not a number.
[[nodiscard]] KIV_ACCOUNTING_EXPORT bool isWithinWindow(const numira::Money &calculated,
                                                        const foundation::Percentage &window,
                                                        const numira::Money &reference,
                                                        ByMajorUnit byMajorUnit);

} // namespace kiv::accounting

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "storage/budget_storage.h"

#include <functional>
#include <optional>

namespace kiv::workbench {

/// The account of the item; nothing if it has none.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<accounting::AccountNumber>
accountOf(const storage::BudgetStorage::Data &data, const budgeting::BudgetItemIdentifier &item);

/// The account with which the item's account was last posted, else the first checking
/// account that a bank keeps, of those that `canPay`. Nothing if there is none.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<accounting::AccountNumber>
usualPayer(const accounting::Account *item, const banking::BankMap &banks,
           const std::function<bool(accounting::AccountNumber)> &canPay);

/// The account from which an item is paid, or to which a wage is paid: the one that was
/// said for it; else usualPayer(). Closed accounts do not count. Nothing if there is none of
/// these.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<accounting::AccountNumber>
payingAccount(const storage::BudgetStorage::Data &data, const budgeting::BudgetItemIdentifier &item,
              std::optional<accounting::AccountNumber> said = std::nullopt);

} // namespace kiv::workbench

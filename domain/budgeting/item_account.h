// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/item_traits.h"

namespace kiv::budgeting {

/// "[Budget Item]": what the name of a budget item's own account ends in.
[[nodiscard]] KIV_BUDGETING_EXPORT const QString &itemAccountSuffix();

/// The name of the account of an item: the source's name, a blank, the suffix.
[[nodiscard]] KIV_BUDGETING_EXPORT QString itemAccountName(const BudgetSource &source);

/// The opening balance of the item's account: what was borrowed for a debt, zero in
/// the item's currency for all others.
[[nodiscard]] KIV_BUDGETING_EXPORT numira::Money openingMoney(const BudgetedMoney &item);

} // namespace kiv::budgeting

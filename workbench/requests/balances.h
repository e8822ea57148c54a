// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "accounting/general_ledger.h"

#include <map>
#include <optional>
#include <vector>

/// What accounts hold, on any day, alone and together.
namespace kiv::workbench {

/// What the transaction adds to the balance of the account, which is one of its two: positive
/// on the own side of the account's type.
[[nodiscard]] KIV_WORKBENCH_EXPORT numira::Money
changeOf(const accounting::Transaction &transaction, const accounting::Account &account);
/// The balance of the account at the end of the day.
[[nodiscard]] KIV_WORKBENCH_EXPORT numira::Money balanceOn(const accounting::Account &account,
                                                           QDate day);

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "surveying/export.h"

#include "budgeting/event_frequency.h"
#include "budgeting/identifiers.h"

namespace kiv::surveying {

/// Whether money is set aside for such items: for every goal, and for the
/// bills, debts and non-tracked items that recur less often than monthly. What
/// comes each month is paid from the month's own income. Never for wages, nor
/// for the kind None. Throws std::logic_error for a kind or a frequency above
/// the known ones.
[[nodiscard]] KIV_SURVEYING_EXPORT bool isDistributable(budgeting::BudgetItemTypes type,
                                                        budgeting::EventFrequency period);

} // namespace kiv::surveying

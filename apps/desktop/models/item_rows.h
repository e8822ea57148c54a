// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/overview_rows.h"

namespace kiv::desktop {

/// The section of the items of one kind.
[[nodiscard]] OverviewSection itemSection(budgeting::BudgetItemTypes kind);

} // namespace kiv::desktop

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/commands.h"

namespace kiv::app {

/// Adds `schedule` to the commands of debts or goals.
void addScheduleCommand(CommandGroup &group, budgeting::BudgetItemTypes kind);

} // namespace kiv::app

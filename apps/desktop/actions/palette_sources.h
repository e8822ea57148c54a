// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "actions/command_palette.h"

namespace kiv::desktop {

class Desk;

/// The accounts of the budget, whose registers can be opened.
[[nodiscard]] CommandPalette::Source accountSource(Desk &desk);
/// The items of the budget.
[[nodiscard]] CommandPalette::Source itemSource(Desk &desk);

} // namespace kiv::desktop

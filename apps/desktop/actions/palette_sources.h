// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "actions/command_palette.h"

namespace kiv::desktop {

class ActionCollection;
class Desk;

/// All actions.
[[nodiscard]] CommandPalette::Source actionSource(const ActionCollection &actions);
/// All keys: of the actions, then those that only parts of the window take; and the actions
/// without keys.
[[nodiscard]] CommandPalette::Source keySource(const ActionCollection &actions);
/// The accounts of the budget, whose registers can be opened.
[[nodiscard]] CommandPalette::Source accountSource(Desk &desk);
/// The items of the budget.
[[nodiscard]] CommandPalette::Source itemSource(Desk &desk);

} // namespace kiv::desktop

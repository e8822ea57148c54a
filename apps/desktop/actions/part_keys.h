// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "actions/command_palette.h"

namespace kiv::desktop {

/// The keys that no action has, since only a part of the window takes them. Each tells the
/// part, and what the key does there.
[[nodiscard]] std::vector<PaletteEntry> partKeys();

} // namespace kiv::desktop

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command_line/selection.h"

#include <memory>
#include <optional>

namespace kiv::app {

/// The root of all commands with what it has of its own, its help so wide; `declare`
/// adds the commands.
[[nodiscard]] std::unique_ptr<CLI::App>
commandTree(std::optional<int> width, const Declaring &declaring, const DeclareCommands &declare);

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command_line/selection.h"

#include <memory>
#include <optional>

namespace kiv::app {

/// Creates the root command with its options; `declare` adds the commands. The help is
/// at most `width` columns wide.
[[nodiscard]] std::unique_ptr<CLI::App>
commandTree(std::optional<int> width, const Declaring &declaring, const DeclareCommands &declare);

} // namespace kiv::app

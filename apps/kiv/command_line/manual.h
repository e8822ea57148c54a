// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>

namespace CLI {
class App;
}

namespace kiv::app {

/// All commands with their arguments in the notation of manual pages (the man
/// macros), one subsection each; what stands around them is written by hand.
/// Options that nearly every command has are left out.
[[nodiscard]] QByteArray manualOfCommands(const CLI::App &commands);

} // namespace kiv::app

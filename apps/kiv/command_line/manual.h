// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>

namespace CLI {
class App;
}

namespace kiv::app {

/// The sections of the manual page on all commands, in man macros: a section for each
/// heading, a subsection for each command. The other sections are in packaging/man.
/// Options that nearly every command has are left out.
[[nodiscard]] QByteArray manualOfCommands(const CLI::App &commands);

} // namespace kiv::app

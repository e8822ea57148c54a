// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command_line/arguments.h"
#include "output/report.h"

#include <memory>

namespace kiv::app {

class Program;

/// What a command does with the budget file.
enum class CommandKind {
    Standalone, ///< nothing, or all by itself
    Query,      ///< it reads it
    Change,     ///< it reads it, and it is saved afterwards
};

/// The command that a command line chose, which is what parsing it comes to.
struct Selection {
    CommandKind kind = CommandKind::Standalone;
    std::function<Report(Program &, const Options &)> run = {};
};

/// What the commands are declared with.
struct Declaring {
    Options &options;
    Selection &selection; ///< set by the command that is chosen
    /// Only commands among these words get their arguments, since a call reaches no
    /// other; without any words all do.
    std::vector<std::string> words;

    [[nodiscard]] bool needsArguments(std::string_view command) const
    {
        return words.empty() || std::ranges::find(words, command) != words.end();
    }
};

/// Adds all commands below the root. Their arguments are written to what the second
/// one refers to, so it must outlive the tree.
using DeclareCommands = std::function<void(CLI::App &root, const Declaring &declaring)>;

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command_line/arguments.h"
#include "output/report.h"

#include <memory>

namespace kiv::app {

class Program;

/// What a command does with the budget file.
enum class CommandKind {
    Standalone, ///< opens no file itself, or does it in its own way
    Query,      ///< reads it
    Change,     ///< reads it; it is saved afterwards
    Entry,      ///< as Change, and tells what the user may not have meant
    Restore,    ///< as Change, also where the file is gone or damaged
};

/// Whether the budget is saved after commands of this kind.
[[nodiscard]] inline bool isSaving(CommandKind kind) noexcept
{
    return kind == CommandKind::Change || kind == CommandKind::Entry ||
           kind == CommandKind::Restore;
}

/// The command that was chosen by parsing a command line.
struct Selection {
    CommandKind kind = CommandKind::Standalone;
    std::function<Report(Program &, const Options &)> run = {};
};

/// What is needed to declare the commands.
struct Declaring {
    Options &options;
    Selection &selection; ///< set by the chosen command
    /// Only commands named here get their arguments, which saves time. If empty, all do.
    std::vector<std::string> words;

    [[nodiscard]] bool needsArguments(std::string_view command) const
    {
        return words.empty() || std::ranges::find(words, command) != words.end();
    }
};

/// Adds all commands to the root. Parsing writes to what `declaring` refers to, which
/// must outlive the tree.
using DeclareCommands = std::function<void(CLI::App &root, const Declaring &declaring)>;

} // namespace kiv::app

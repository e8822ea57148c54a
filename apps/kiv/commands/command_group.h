// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command_line/selection.h"
#include "commands/call.h"

#include <memory>

namespace kiv::app {

/// A place in the tree of commands where commands are added. A command is a
/// value with two members: `void declare(Arguments &)`, which ties its
/// arguments to its fields, and `Report run(Call &) const`.
class CommandGroup {
public:
    CommandGroup(CLI::App &app, const Declaring &declaring) : m_app(app), m_declaring(declaring) {}

    [[nodiscard]] CommandGroup group(const char *name, const QString &help);

    /// Gives the command's own place, where it may get commands below it.
    template <typename Command>
    CommandGroup add(const char *name, const QString &help, CommandKind kind, Command command)
    {
        const auto held = std::make_shared<Command>(std::move(command));
        return addCommand(
            name, help, kind, [held](Arguments &arguments) { held->declare(arguments); },
            [held](Program &program, const Options &options) {
                Call call(program, options);
                return std::as_const(*held).run(call);
            });
    }

private:
    CommandGroup addCommand(const char *name, const QString &help, CommandKind kind,
                            const std::function<void(Arguments &)> &declare,
                            const std::function<Report(Program &, const Options &)> &run);

    CLI::App &m_app;
    Declaring m_declaring;
};

} // namespace kiv::app

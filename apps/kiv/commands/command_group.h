// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command_line/selection.h"
#include "commands/call.h"

#include <memory>

namespace kiv::app {

/// A node of the command tree, to which commands are added. A command is a value
/// with two members: `void declare(Arguments &)`, which ties its arguments to its
/// fields, and `Report run(Call &) const`.
class CommandGroup {
public:
    CommandGroup(CLI::App &app, const Declaring &declaring) : m_app(app), m_declaring(declaring) {}

    /// The help lists the commands that follow under this heading.
    void setHeading(const QString &heading) { m_heading = heading; }

    /// Adds a command that only has commands below it.
    [[nodiscard]] CommandGroup group(const char *name, const QString &help);

    /// Adds a command, and returns its node for commands below it.
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

    CLI::App *addNode(const char *name, const QString &help);

    CLI::App &m_app;
    Declaring m_declaring;
    QString m_heading = QObject::tr("Commands");
};

} // namespace kiv::app

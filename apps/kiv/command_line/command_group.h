// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command_line/arguments.h"
#include "errors.h"
#include "output/report.h"

#include "workbench/document/document.h"
#include "workbench/entry/similar.h"
#include "workbench/requests/budget_view.h"

#include "foundation/clock.h"

#include <memory>

namespace kiv::app {

using workbench::AccountIndex;
using workbench::BudgetView;
using workbench::Document;
using workbench::identify;
using workbench::notAChoice;
using workbench::Requests;
using workbench::similarTo;

class Program;

/// What a command does with the budget file.
enum class CommandKind {
    Standalone, ///< nothing, or all by itself
    Query,      ///< it reads it
    Change,     ///< it reads it, and it is saved afterwards
};

/// One call of a command.
struct Call {
    workbench::Document &document;
    workbench::Requests &requests;
    const Options &options;
    Program &program;

    /// The day that stands for today.
    [[nodiscard]] QDate date() const { return options.date.value_or(foundation::today()); }
    /// The budget file that is named, open, or in the variable, in this order, for
    /// commands that open none. Throws a UsageError when there is none.
    [[nodiscard]] QString fileNamed() const;
    /// The file to be made: `given` by its place, named, or in the variable. Throws a
    /// UsageError when there is none.
    [[nodiscard]] QString fileToMake(const QString &given) const;
};

/// A place in the tree of commands where commands are added. A command is a
/// value with two members: `void declare(Arguments &)`, which ties its
/// arguments to its fields, and `Report run(Call &) const`.
class CommandGroup {
public:
    CommandGroup(CLI::App &app, Program &program) : m_app(app), m_program(program) {}

    [[nodiscard]] CommandGroup group(const char *name, const QString &help);

    /// Gives the command's own place, where it may get commands below it.
    template <typename Command>
    CommandGroup add(const char *name, const QString &help, CommandKind kind, Command command)
    {
        const auto held = std::make_shared<Command>(std::move(command));
        return addCommand(
            name, help, kind, [held](Arguments &arguments) { held->declare(arguments); },
            [held](Call &call) { return std::as_const(*held).run(call); });
    }

private:
    CommandGroup addCommand(const char *name, const QString &help, CommandKind kind,
                            const std::function<void(Arguments &)> &declare,
                            const std::function<Report(Call &)> &run);

    CLI::App &m_app;
    Program &m_program;
};

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "command_line/arguments.h"
#include "messages/errors.h"

#include "workbench/document/document.h"
#include "workbench/entry/similar.h"
#include "workbench/requests/budget_view.h"

#include "foundation/clock.h"

namespace kiv::app {

using workbench::AccountIndex;
using workbench::BudgetView;
using workbench::Document;
using workbench::identify;
using workbench::notAChoice;
using workbench::Requests;
using workbench::similarTo;

class Program;

/// One call of a command.
struct Call {
    Call(Program &program, const Options &options);

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

} // namespace kiv::app

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

    /// The value of --date, or today.
    [[nodiscard]] QDate date() const { return options.date.value_or(foundation::today()); }
    /// The budget file for commands that do not open one: from --file, the open document
    /// or KIV_FILE, in this order. Throws a UsageError if there is none.
    [[nodiscard]] QString fileNamed() const;
    /// Warns that the output of an encrypted budget is not encrypted.
    void tellReadable() const;
    /// The file to create: `given`, or from --file or KIV_FILE. Throws a UsageError if
    /// there is none.
    [[nodiscard]] QString fileToMake(const QString &given) const;
};

} // namespace kiv::app

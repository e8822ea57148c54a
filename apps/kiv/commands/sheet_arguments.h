// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/call.h"

#include "workbench/surveys/sheet_statement.h"

namespace kiv::app {

using workbench::SheetBooks;
using workbench::SheetStatement;
using workbench::SurveySheet;

/// The bank account to survey, and what is known of its statement.
struct SheetArguments {
    std::optional<QString> bank;
    std::optional<QString> account;
    std::optional<QString> bankFile;
    bool isAsProposed = false;

    void declare(Arguments &arguments);
    /// The sheet of a day, with what its bank's file says.
    struct Begun {
        SurveySheet sheet;
        SheetBooks books;
        std::optional<SheetStatement> statement;
    };
    /// `day` counts before the day of the file, and `otherwise` is for a file without one.
    [[nodiscard]] Begun begin(Call &call, std::optional<QDate> day, QDate otherwise) const;
    /// The account. Throws a Refusal if there is none.
    [[nodiscard]] banking::BankAccount bankAccount(Call &call) const;
};

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "commands/call.h"
#include "output/report.h"

#include "workbench/statements/import_preview.h"
#include "workbench/statements/posted_import.h"

namespace kiv::app {

/// What a journal comes to; its preview in a dry run.
[[nodiscard]] Report importReport(Call &call, workbench::PostedImport import);

/// The rows of a statement's preview as a table, in their order: "New", "Already there" …
void addRows(Report &report, const std::shared_ptr<const workbench::ImportPreview> &preview,
             const std::shared_ptr<const AccountIndex> &index);

/// What a statement came to. `done` is missing as long as nothing is posted.
[[nodiscard]] Report importReport(Call &call,
                                  const std::shared_ptr<const workbench::ImportPreview> &preview,
                                  const workbench::ImportPreview::Done &done);

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/statements/import_preview.h"
#include "workbench/statements/posted_import.h"

namespace kiv::desktop {

/// Which rows of a preview are shown.
enum class DraftFilter : std::uint8_t { All, New, Matched, Doubtful };

/// The columns of a table of what an import would do.
[[nodiscard]] QStringList draftColumns();
/// The rows that the filter shows, in the order of the file. The key of a row is its place in
/// the preview.
[[nodiscard]] std::vector<Row> draftRows(const workbench::ImportPreview &preview,
                                         DraftFilter filter,
                                         const workbench::AccountIndex &accounts,
                                         navigation::CurrencyDisplayOptions displayAs);
/// The row of the entry at this place.
[[nodiscard]] Row draftRow(const workbench::ImportPreview &preview, std::size_t place,
                           const workbench::AccountIndex &accounts,
                           navigation::CurrencyDisplayOptions displayAs);
/// Whether the filter shows the entry.
[[nodiscard]] bool isShown(const workbench::ImportRow &row, DraftFilter filter);
/// Whether both look the same.
[[nodiscard]] bool areSame(const workbench::ImportRow &one, const workbench::ImportRow &other);

/// "12 new, 30 already there, 2 to look at"
[[nodiscard]] QString draftSummary(const workbench::ImportCounts &counts);
/// Whether the import would change the books.
[[nodiscard]] bool hasWork(const workbench::ImportCounts &counts);

/// The same for a journal: its transactions, each between two accounts.
[[nodiscard]] QStringList journalColumns();
[[nodiscard]] std::vector<Row> journalRows(const workbench::PostedImport &planned,
                                           const workbench::AccountIndex &accounts,
                                           navigation::CurrencyDisplayOptions displayAs);
/// "12 new, 30 already there"
[[nodiscard]] QString journalSummary(const workbench::PostedImport &planned);
/// The same, with the accounts that are to be opened.
[[nodiscard]] QString journalPlan(const workbench::PostedImport &planned);

} // namespace kiv::desktop

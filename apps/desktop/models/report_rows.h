// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/reports/report_lines.h"

namespace kiv::desktop {

/// The columns of a report's lines, by a grouping or without one, and their rows. A row's key is
/// its line's.
[[nodiscard]] QStringList lineColumns(bool isGrouped);
[[nodiscard]] std::vector<Row> lineRows(const std::vector<workbench::ReportLine> &lines,
                                        bool isGrouped,
                                        navigation::CurrencyDisplayOptions displayAs);

/// The columns of a line's values, which are those of its chart, and their rows. A row's key is the
/// place of its label.
[[nodiscard]] QStringList valueColumns(const workbench::ReportLine &line);
[[nodiscard]] std::vector<Row> valueRows(const workbench::ReportLine &line,
                                         navigation::CurrencyDisplayOptions displayAs);

/// The columns of the entries behind a value, and their rows, at most entriesMax. A row's key is
/// the entry's place.
[[nodiscard]] QStringList entryColumns();
constexpr std::size_t entriesMax = 1000;
[[nodiscard]] std::vector<Row> entryRows(const std::vector<workbench::ReportEntry> &entries,
                                         const workbench::AccountIndex &index,
                                         navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::desktop

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/csv_layout.h"

/// What shows that a statement is cut off, damaged, or would be read wrongly. Each check
/// throws ImportError.
namespace kiv::interchange::internal {

/// Refuses a heading line that holds an entry, and lines above the table that hold one.
void requireHeadings(const CsvSheet &sheet, const CsvLayout &layout);

/// Refuses to skip a last row that has a date: it is an entry.
void requireNoEntry(const CsvRecord &skipped, const CsvLayout &layout);

/// Refuses further entries inside quotes: a quote that closes too late swallows them.
void requireOneEntry(const CsvRecord &row, const CsvLayout &layout);

/// Refuses cells without a heading. `shortest` is the number of cells of the shortest
/// row: some banks end each line with a delimiter.
void requireWidth(const CsvRecord &row, const CsvLayout &layout, qsizetype shortest);

/// Refuses a row without the needed cells, and an amount that a comma may have divided
/// into two cells.
void requireWholeAmounts(const CsvRecord &row, const CsvLayout &layout);

} // namespace kiv::interchange::internal

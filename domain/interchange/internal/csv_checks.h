// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/csv_columns.h"

/// What shows that a statement is cut off, damaged, or would be read wrongly. Each check
/// throws ImportError.
namespace kiv::interchange::internal {

/// Refuses a heading line that holds an entry.
void requireHeadings(const CsvRecord &first, const CsvLayout &layout);

/// Refuses to skip a last row that has a date: it is an entry.
void requireNoEntry(const CsvRecord &skipped, const CsvLayout &layout);

/// Refuses a last row with fewer cells than the one before: without a line break behind
/// it, it may be cut off.
void requireWholeLastRow(const std::vector<CsvRecord> &rows);

/// Refuses further entries inside quotes: a quote that closes too late swallows them.
void requireOneEntry(const CsvRecord &row, const CsvLayout &layout);

/// Refuses cells without a heading. `shortest` is the number of cells of the shortest
/// row: some banks end each line with a delimiter.
void requireWidth(const CsvRecord &row, const CsvLayout &layout, qsizetype shortest);

/// Refuses a row without the needed cells, and an amount that a comma may have divided
/// into two cells.
void requireWholeAmounts(const CsvRecord &row, const CsvLayout &layout);

/// Refuses amounts without a minus beside a column of signs that the profile does not
/// name: all money would come in.
void requireSignsNamed(const std::vector<CsvRecord> &rows, const CsvLayout &layout);

} // namespace kiv::interchange::internal

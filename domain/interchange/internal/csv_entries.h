// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/csv_columns.h"
#include "interchange/statement.h"

/// What the rows of a statement say.
namespace kiv::interchange::internal {

/// The date in the cells; nothing when they have none.
[[nodiscard]] std::optional<QDate> dayOf(const QStringList &cells, const CsvLayout &layout);

/// Whether the bank has not booked the entry yet.
[[nodiscard]] bool isPending(const CsvRecord &row, const CsvLayout &layout);

/// The balance after the entry. Nothing where the row has none, or where a column that
/// the profile does not name holds no number.
[[nodiscard]] std::optional<numira::Money> balanceOf(const CsvRecord &row, const CsvLayout &layout);

/// An entry, and what only all entries together can tell.
struct CsvEntry {
    StatementEntry entry;
    /// Whether the column of what went out has a minus; nothing where it has no amount.
    std::optional<bool> hasMinusOut;
};

/// Reads a row that has all needed cells. Throws ImportError for a cell that it cannot
/// read, and for amounts that contradict each other.
[[nodiscard]] CsvEntry entryOf(const CsvRecord &row, const CsvLayout &layout);

} // namespace kiv::interchange::internal

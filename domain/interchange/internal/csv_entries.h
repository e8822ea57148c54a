// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/csv_layout.h"
#include "interchange/statement.h"

/// What the rows of a statement say.
namespace kiv::interchange::internal {

/// The date in the cells; nothing when they have none.
[[nodiscard]] std::optional<QDate> dayOf(const QStringList &cells, const CsvLayout &layout);

/// What became of an entry.
enum class EntryState {
    Booked,
    Pending, ///< the bank has not booked it yet, and may still change it
    Undone,  ///< declined, or taken back before it was booked
};
[[nodiscard]] EntryState stateOf(const CsvRecord &row, const CsvLayout &layout);

/// The text of the row's cells.
[[nodiscard]] QString textOf(const CsvRecord &row, const CsvLayout &layout);

/// The balance after the entry. Nothing where the row has no number there.
[[nodiscard]] std::optional<numira::Money> balanceOf(const CsvRecord &row, const CsvLayout &layout);

/// An entry, and what only all entries together can tell.
struct CsvEntry {
    StatementEntry entry;
    /// Whether the column of what went out has a minus; nothing where it has no amount.
    std::optional<bool> hasMinusOut;
    numira::Money fee; ///< that stands beside the amount
};

/// Reads a row that has all needed cells. Throws ImportError for a cell that it cannot
/// read, and for amounts that contradict each other.
[[nodiscard]] CsvEntry entryOf(const CsvRecord &row, const CsvLayout &layout);

} // namespace kiv::interchange::internal

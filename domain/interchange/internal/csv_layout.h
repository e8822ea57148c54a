// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/csv_columns.h"

namespace kiv::interchange::internal {

/// How the rows of a statement are understood.
struct CsvLayout {
    CsvProfile profile;        ///< with all that was found
    numira::Currency currency; ///< of the account
    QStringList currencyNames; ///< texts that stand for it beside a number
    CsvColumns columns;
    /// How days may be written; several where the file leaves the order of day and month open.
    std::vector<DateFormat> dayForms;
    /// Whether an amount went out unless it has "CR" behind it.
    bool isMarkedIn = false;
    QStringList notices; ///< sentences for the user
};

/// Finds what the profile of the sheet leaves open. `currency` is that of the account. Throws
/// ImportError for a column that is missing or ambiguous, and for signs of amounts and decimal
/// marks that can be read in two ways.
[[nodiscard]] CsvLayout layoutOf(const CsvSheet &sheet, const numira::Currency &currency);

/// Texts that stand for the currency beside a number.
[[nodiscard]] QStringList namesOf(const numira::Currency &currency);

/// Whether the row only goes on with the text of the one before.
[[nodiscard]] bool isContinued(const CsvRecord &row, const CsvColumns &columns);

/// The number of the account in the lines above the headings; empty where they have none.
[[nodiscard]] QString accountIn(const std::vector<CsvRecord> &above);

} // namespace kiv::interchange::internal

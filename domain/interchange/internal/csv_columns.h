// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/csv_profile.h"
#include "interchange/csv_table.h"

namespace kiv::interchange::internal {

/// The columns of a statement, by their index.
struct CsvColumns {
    QStringList headings; ///< or numbers where there are none
    qsizetype date = 0;
    std::optional<qsizetype> amount;
    std::optional<qsizetype> in;
    std::optional<qsizetype> out;
    std::optional<qsizetype> sign;
    std::optional<qsizetype> id;
    std::optional<qsizetype> currency;
    std::optional<qsizetype> status;
    std::optional<qsizetype> balance;
    std::vector<qsizetype> texts;
    qsizetype needed = 1; ///< number of cells that an entry must have
    qsizetype named = 0;  ///< number of columns up to the last heading
};

/// How the rows of a statement are understood. The profile must outlive it.
struct CsvLayout {
    const CsvProfile &profile;
    numira::Currency currency; ///< of the account
    QChar delimiter;           ///< between cells
    CsvColumns columns;
};

/// Finds the columns that the profile names, and others by common headings. Throws
/// ImportError, which names an option, for a column that is missing or ambiguous.
[[nodiscard]] CsvColumns columnsOf(const CsvRecord &first, const CsvProfile &profile,
                                   const numira::Currency &currency);

} // namespace kiv::interchange::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/csv_profile.h"
#include "interchange/csv_table.h"

namespace kiv::interchange::internal {

/// Where the columns of a statement stand, counted from 0.
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
    qsizetype needed = 1; ///< cells that an entry must have
    qsizetype named = 0;  ///< up to the last column with a heading
};

/// How the rows of a statement are understood. The profile must outlive it.
struct CsvLayout {
    const CsvProfile &profile;
    numira::Currency currency; ///< of the account
    QChar delimiter;           ///< between cells
    CsvColumns columns;
};

/// Finds the columns that the profile names, and others by common headings. Throws
/// ImportError, with the option that helps, for those that are missing or there twice.
[[nodiscard]] CsvColumns columnsOf(const CsvRecord &first, const CsvProfile &profile,
                                   const numira::Currency &currency);

} // namespace kiv::interchange::internal

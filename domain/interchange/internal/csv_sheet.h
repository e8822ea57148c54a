// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/csv_profile.h"
#include "interchange/csv_table.h"

namespace kiv::interchange::internal {

/// A file as a table.
struct CsvSheet {
    /// As it was given, with the encoding, the delimiter and the place of the headings.
    CsvProfile profile;
    CsvRecord headings;           ///< or the numbers of the columns where there are none
    std::vector<CsvRecord> rows;  ///< below the headings
    std::vector<CsvRecord> above; ///< what was found above the headings
    std::vector<CsvRecord> below; ///< what the profile skips at the end
    QStringList notices = {};     ///< sentences for the user
};

/// The file as a table. What the profile leaves open is found: the headings stand in the
/// first rows, below addresses and the like, under common names or those that the profile
/// names; where no row has any, they stand above the first entry or are missing.
///
/// `currency` is that of the account. Throws ImportError for a file that is no such table.
[[nodiscard]] CsvSheet sheetOf(const QByteArray &bytes, const QString &file,
                               const CsvProfile &profile, const numira::Currency &currency);

} // namespace kiv::interchange::internal

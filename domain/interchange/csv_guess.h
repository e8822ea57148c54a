// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/csv_reader.h"
#include "interchange/csv_table.h"

namespace kiv::interchange {

/// A way to read the days of a file.
struct DayReading {
    DateFormat format; ///< for the profile
    QString written;   ///< a day of the file that the ways read differently
    QDate day;         ///< what it would be
};

/// How a bank's table would be read, for front ends that show it before they import.
struct CsvGuess {
    /// The given profile, completed. Reading with it gives the same entries as without.
    CsvProfile profile;
    /// All of it in a line, such as "Read as: UTF-8, semicolons, headings on line 5, date …".
    QString summary;
    /// What readCsv() would refuse: a column that must be named, or an order of days that
    /// must be chosen. Empty when nothing is missing; entries can still be wrong.
    QString missing;
    QStringList headings;        ///< or the numbers of columns where the table has no headings
    std::vector<CsvRecord> rows; ///< the first ones below the headings, for a preview
    /// More than one where the order of day and month is open: a question to the user. The
    /// answer goes into the profile.
    std::vector<DayReading> dayReadings;
};

/// Finds how the table can be read. Throws ImportError only for what is no table at all.
[[nodiscard]] KIV_INTERCHANGE_EXPORT CsvGuess guessCsv(const QByteArray &bytes, const QString &file,
                                                       const CsvOptions &options);

} // namespace kiv::interchange

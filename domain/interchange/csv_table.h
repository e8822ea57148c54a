// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/text_decoding.h"

#include <QtCore/QStringList>

#include <vector>

namespace kiv::interchange {

/// One record of a CSV table, and the line on which it begins.
struct CsvRecord {
    Place place;       ///< its first line
    QStringList cells; ///< without quotes
};

/// Reads a table as RFC 4180 writes it: cells between delimiters, in quotes
/// where they hold delimiters, line ends or doubled quotes. A quote within a
/// cell that began without one stands for itself. Empty lines are passed over.
///
/// Throws ImportError for a quote that is not closed, for text behind a closing
/// one, for more records than `recordsMax`, the most that may be, and for longer
/// cells and larger tables than there are of as many entries.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::vector<CsvRecord>
readCsvTable(const QString &text, const QString &file, QChar delimiter, qsizetype recordsMax);

/// The delimiter that the line has most of outside of quotes: a comma, a
/// semicolon, a tab or a bar.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QChar guessDelimiter(QStringView line);

/// One record of a table that a spreadsheet may open: all cells in quotes,
/// control characters escaped, and an apostrophe before what would be taken for
/// a formula.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString csvLine(const QStringList &cells);

} // namespace kiv::interchange

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/text_decoding.h"

#include <QtCore/QStringList>

#include <vector>

namespace kiv::interchange {

/// One row of a CSV table.
struct CsvRecord {
    Place place;       ///< where it begins
    QStringList cells; ///< without quotes
};

/// Reads a table in the form of RFC 4180. Cells that contain delimiters, line breaks or
/// doubled quotes stand in quotes. A quote inside an unquoted cell is an ordinary
/// character. Empty lines are skipped.
///
/// Throws ImportError for a quote that is never closed, for text after a closing quote, for
/// more than `recordsMax` rows, and for cells or tables that are too large.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::vector<CsvRecord>
readCsvTable(const QString &text, const QString &file, QChar delimiter, qsizetype recordsMax);

/// The first rows of such a table, at most `rowsMax`. Throws ImportError as readCsvTable()
/// does for what it reads.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::vector<CsvRecord>
readCsvHead(const QString &text, const QString &file, QChar delimiter, qsizetype rowsMax);

/// The most frequent delimiter of the line outside quotes: a comma, semicolon, tab or bar.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QChar guessDelimiter(QStringView line);

/// One row of a table that is safe to open in a spreadsheet: all cells are quoted, control
/// characters escaped, and cells that look like formulas begin with an apostrophe.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString csvLine(const QStringList &cells);

} // namespace kiv::interchange

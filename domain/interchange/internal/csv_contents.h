// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/csv_columns.h"
#include "interchange/internal/day_forms.h"

/// What only all cells of a column together show.
namespace kiv::interchange::internal {

/// The forms that fit all days. Where they leave the order of day and month open, that one
/// in which the days rise or fall from line to line, with a notice.
[[nodiscard]] DayForms dayFormsOf(const std::vector<CsvRecord> &rows, const CsvColumns &columns,
                                  QStringList &notices);

/// The decimal mark of the amounts; nothing where none shows it. Throws ImportError for two.
[[nodiscard]] std::optional<DecimalMark> decimalMarkOf(const std::vector<CsvRecord> &rows,
                                                       const CsvColumns &columns);

/// Whether a cell of the column has a minus or stands in brackets.
[[nodiscard]] bool hasMinus(const std::vector<CsvRecord> &rows, qsizetype column);

/// A column that tells the signs of amounts.
struct SignColumn {
    qsizetype column = 0;
    /// The words for what went out; an empty one where only what came in is marked.
    QStringList negative;
};

/// The column that tells the signs of amounts, which have none. Throws ImportError for a
/// column that tells some of them only.
[[nodiscard]] std::optional<SignColumn> signColumnOf(const std::vector<CsvRecord> &rows,
                                                     const CsvColumns &columns);

} // namespace kiv::interchange::internal

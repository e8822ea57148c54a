// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/csv_sheet.h"
#include "interchange/internal/statement_words.h"

namespace kiv::interchange::internal {

/// The columns of a statement, by their index.
struct CsvColumns {
    QStringList headings; ///< or numbers where there are none
    qsizetype date = 0;
    std::optional<qsizetype> valueDate = std::nullopt;
    std::optional<qsizetype> amount = std::nullopt;
    std::optional<qsizetype> in = std::nullopt;
    std::optional<qsizetype> out = std::nullopt;
    std::optional<qsizetype> sign = std::nullopt;
    std::optional<qsizetype> fee = std::nullopt;
    std::optional<qsizetype> payee = std::nullopt;
    std::optional<qsizetype> id = std::nullopt;
    std::optional<qsizetype> currency = std::nullopt;
    std::optional<qsizetype> status = std::nullopt;
    std::optional<qsizetype> balance = std::nullopt;
    std::optional<qsizetype> account = std::nullopt;
    std::vector<qsizetype> texts = {};
    qsizetype needed = 1; ///< number of cells that an entry must have
    qsizetype named = 0;  ///< number of columns up to the last heading
};

/// Finds the columns that the profile names, others by common headings, and where these do
/// not tell by what stands below them. Throws ImportError, which names an option, for a
/// column that is missing or ambiguous.
[[nodiscard]] CsvColumns columnsOf(const CsvSheet &sheet, const numira::Currency &currency);

/// The profile with the columns by name, as columnsOf() would find them again.
[[nodiscard]] CsvProfile withColumns(CsvProfile profile, const CsvColumns &columns);

} // namespace kiv::interchange::internal

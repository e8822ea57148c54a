// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/csv_reader.h"

#include "interchange/draft.h"
#include "interchange/internal/csv_checks.h"
#include "interchange/internal/csv_entries.h"
#include "interchange/internal/description_count.h"
#include "interchange/internal/running_balance.h"
#include "interchange/internal/statement_faults.h"

#include <algorithm>
#include <ranges>

namespace kiv::interchange {

namespace {

using internal::CsvLayout;

int headingLines(const CsvProfile &profile)
{
    return profile.hasHeadings ? 1 : 0;
}

/// A file as a table, from the headings on.
struct Table {
    QChar delimiter;
    std::vector<CsvRecord> rows;
};

Table tableOf(const QString &text, const QString &file, const CsvProfile &profile)
{
    LineCursor lines(text, file);
    qsizetype skipped = 0;
    int skippedLines = 0;
    for (; skippedLines < profile.skippedLines && lines.next(); ++skippedLines)
        skipped = lines.offset();
    const QStringView first = lines.next() ? lines.line() : QStringView();
    QChar guessed = guessDelimiter(first);
    if (first.size() == 5 && first.startsWith(u"sep=")) { // as spreadsheets write it
        guessed = first.back();
        skipped = lines.offset();
        ++skippedLines;
    }
    const QChar delimiter = profile.delimiter.value_or(guessed);
    std::vector<CsvRecord> rows =
        readCsvTable(text.mid(skipped), file, delimiter, transactionsMax + headingLines(profile));
    for (CsvRecord &row : rows)
        row.place.line += skippedLines;
    return {delimiter, std::move(rows)};
}

/// The rows of entries, without headings, totals below and blank rows.
std::vector<CsvRecord> entryRows(std::vector<CsvRecord> rows, bool endsWithLine,
                                 const CsvLayout &layout)
{
    const int headings = headingLines(layout.profile);
    const int entries = static_cast<int>(rows.size()) - headings;
    for (int left = std::min(layout.profile.skippedLast, entries); left > 0; --left) {
        internal::requireNoEntry(rows.back(), layout);
        rows.pop_back();
    }
    if (!endsWithLine)
        internal::requireWholeLastRow(rows);
    rows.erase(rows.begin(), rows.begin() + headings);
    std::erase_if(rows, [](const CsvRecord &row) { // delimiters alone
        return std::ranges::all_of(row.cells,
                                   [](const QString &cell) { return cell.trimmed().isEmpty(); });
    });
    return rows;
}

Statement statementOf(const std::vector<CsvRecord> &rows, const CsvLayout &layout)
{
    const auto cellsOf = [](const CsvRecord &row) { return row.cells.size(); };
    const qsizetype shortest =
        rows.empty() ? 0 : std::ranges::min(rows | std::views::transform(cellsOf));
    Statement statement{{}, layout.currency, {}};
    std::vector<internal::BalanceStep> steps;
    internal::DescriptionCount descriptions;
    std::optional<bool> hasMinusOut;
    for (const CsvRecord &row : rows) {
        internal::requireOneEntry(row, layout);
        internal::requireWidth(row, layout, shortest);
        internal::BalanceStep step{row.place, {}, balanceOf(row, layout)};
        if (internal::isPending(row, layout)) {
            ++statement.pending;
        } else {
            internal::requireWholeAmounts(row, layout);
            internal::CsvEntry read = entryOf(row, layout);
            // In one column, an amount of the other sign would be what was given back.
            if (read.hasMinusOut && hasMinusOut.value_or(*read.hasMinusOut) != *read.hasMinusOut)
                throw faults::mixedSigns(row.place);
            hasMinusOut = read.hasMinusOut ? read.hasMinusOut : hasMinusOut;
            descriptions.add(read.entry.text, row.place);
            if (read.entry.amount.code() == layout.currency)
                step.amount = read.entry.amount;
            statement.entries.push_back(std::move(read.entry));
        }
        steps.push_back(std::move(step));
    }
    internal::requireRunningBalance(std::move(steps), layout.profile.isNegated);
    return statement;
}

} // namespace

Statement readCsv(const QByteArray &bytes, const QString &file, const CsvOptions &options)
{
    const QString text = decoded(bytes, file, options.profile.encoding);
    auto [delimiter, table] = tableOf(text, file, options.profile);
    if (table.empty())
        throw faults::emptyTable({file, 0});
    const CsvLayout layout{options.profile, options.currency, delimiter,
                           internal::columnsOf(table.front(), options.profile, options.currency)};
    internal::requireHeadings(table.front(), layout);
    const std::vector<CsvRecord> rows =
        entryRows(std::move(table), text.endsWith(u'\n') || text.endsWith(u'\r'), layout);
    Statement statement = statementOf(rows, layout);
    if (std::ranges::none_of(statement.entries, &numira::Money::isNegative,
                             &StatementEntry::amount))
        internal::requireSignsNamed(rows, layout);
    return statement;
}

} // namespace kiv::interchange

// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/csv_checks.h"

#include "interchange/internal/csv_entries.h"
#include "interchange/internal/statement_faults.h"
#include "interchange/internal/statement_words.h"

#include <QtCore/QRegularExpression>

namespace kiv::interchange::internal {

namespace {

/// The first row whose cell says that money went out, in a column that tells the sign of
/// each amount; null where the column tells something else.
const CsvRecord *signOut(const std::vector<CsvRecord> &rows, qsizetype column)
{
    const auto sign = [column](const CsvRecord &row) { return row.cells.value(column).trimmed(); };
    const auto isOut = [](const QString &text) {
        return words::wentOut.contains(text, Qt::CaseInsensitive);
    };
    const auto isIn = [](const QString &text) {
        return words::cameIn.contains(text, Qt::CaseInsensitive);
    };
    const auto isSign = [&](const QString &text) {
        return isOut(text) || isIn(text) || text.isEmpty();
    };
    const auto found = std::ranges::find_if(rows, isOut, sign);
    // Other kinds of entries, such as checks, may stand among both; "-" alone often
    // stands for nothing.
    const bool isColumnOfSigns =
        found != rows.end() && (std::ranges::any_of(rows, isIn, sign) ||
                                (sign(*found) != u"-" && std::ranges::all_of(rows, isSign, sign)));
    return isColumnOfSigns ? &*found : nullptr;
}

} // namespace

void requireHeadings(const CsvRecord &first, const CsvLayout &layout)
{
    if (!layout.profile.hasHeadings)
        return;
    // The entry may stand behind the headings, where their line break is lost.
    static const QRegularExpression delimiters(QStringLiteral("[,;|\t\"]"));
    const QStringList parts = first.cells.join(u'\t').split(delimiters);
    const auto isDay = [&layout](const QString &part) {
        return layout.profile.dateFormat.read(part.trimmed()).has_value();
    };
    if (std::ranges::any_of(parts, isDay))
        throw faults::headingsAreEntry(first.place);
}

void requireNoEntry(const CsvRecord &skipped, const CsvLayout &layout)
{
    if (dayOf(skipped.cells, layout))
        throw faults::entryLeftOut(skipped.place);
}

void requireWholeLastRow(const std::vector<CsvRecord> &rows)
{
    if (rows.size() < 2)
        return;
    const CsvRecord &last = rows.back();
    if (last.cells.size() < rows[rows.size() - 2].cells.size())
        throw faults::rowCutOff(last.place);
}

void requireOneEntry(const CsvRecord &row, const CsvLayout &layout)
{
    Place place = row.place;
    for (const QString &cell : row.cells) {
        const QStringList lines = cell.split(u'\n');
        for (const QString &line : lines.mid(1)) {
            ++place.line;
            const QStringList cells = line.split(layout.delimiter);
            if (cells.size() > layout.columns.date + 1 && dayOf(cells, layout))
                throw faults::entryWithinQuotes(place);
        }
    }
}

void requireWidth(const CsvRecord &row, const CsvLayout &layout, qsizetype shortest)
{
    const qsizetype size = row.cells.size();
    const qsizetype headings = layout.columns.headings.size();
    // A part of an amount may have pushed out cells that are empty.
    const auto isCell = [](const QString &cell) { return !cell.trimmed().isEmpty(); };
    if (size > headings &&
        (size > shortest || std::any_of(row.cells.begin() + headings, row.cells.end(), isCell)))
        throw faults::tooManyCells(row.place, size, headings);
    // Where the headings end with a delimiter too, an amount that a comma divides has
    // digits behind the last of them.
    for (qsizetype column = layout.columns.named; column < size; ++column) {
        if (!row.cells[column].isEmpty() && row.cells[column].front().isDigit())
            throw faults::tooManyCells(row.place, size, layout.columns.named);
    }
}

void requireWholeAmounts(const CsvRecord &row, const CsvLayout &layout)
{
    static const QRegularExpression grouped(
        QStringLiteral("^[^0-9.,]*[0-9]{1,3},[0-9]{3}\\.[0-9]+[^0-9]*$"));
    static const QRegularExpression parted(QStringLiteral("^[^0-9.,]*[0-9]+,[0-9]{2,3}[^0-9,]*$"));
    const CsvColumns &columns = layout.columns;
    if (row.cells.size() < columns.needed)
        throw faults::tooFewCells(row.place, row.cells.size(), columns.needed);
    for (const auto &column : {columns.amount, columns.in, columns.out}) {
        if (!column || layout.delimiter != u',' || column.value() + 1 == columns.balance)
            continue;
        const QString both = row.cells[*column] + u',' + row.cells.value(*column + 1);
        if (both.contains(grouped) ||
            (row.cells.size() > columns.headings.size() && both.contains(parted)))
            throw faults::amountDivided(row.place, both);
    }
}

void requireSignsNamed(const std::vector<CsvRecord> &rows, const CsvLayout &layout)
{
    const CsvColumns &columns = layout.columns;
    if (!columns.amount || columns.sign || layout.profile.isNegated)
        return;
    for (qsizetype column = 0; column < columns.headings.size(); ++column) {
        if (const CsvRecord *row = signOut(rows, column))
            throw faults::signsNotNamed(row->place, column + 1, row->cells.value(column).trimmed());
    }
}

} // namespace kiv::interchange::internal

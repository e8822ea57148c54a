// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/csv_checks.h"

#include "interchange/internal/csv_entries.h"
#include "interchange/internal/day_forms.h"
#include "interchange/internal/statement_faults.h"

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace kiv::interchange::internal {

namespace {

/// Whether the row has an amount, or a day in any column, among other cells.
bool isLikeEntry(const CsvRecord &row, const CsvLayout &layout)
{
    constexpr qsizetype cellsMin = 3; // a day, an amount and a text
    const auto isFilled = [](const QString &cell) { return !cell.trimmed().isEmpty(); };
    const qsizetype filled = std::ranges::count_if(row.cells, isFilled);
    if (filled < cellsMin)
        return false;
    const CsvColumns &columns = layout.columns;
    const auto hasDigit = [&row](const std::optional<qsizetype> &column) {
        const QString cell = column ? row.cells.value(*column) : QString();
        return std::ranges::any_of(cell, [](QChar unit) { return unit.isDigit(); });
    };
    return hasDigit(columns.amount) || hasDigit(columns.in) || hasDigit(columns.out) ||
           std::ranges::any_of(row.cells, &DayForms::isDay);
}

} // namespace

void requireHeadings(const CsvSheet &sheet, const CsvLayout &layout)
{
    const bool hasHeadings = layout.profile.hasHeadings.value_or(true);
    for (const CsvRecord &row : sheet.above) {
        // Tables without headings have no lines above: it is an entry that cannot be read.
        const bool isEntry = row.cells.size() > 1 &&
                             (!hasHeadings || dayOf(row.cells, layout) || isLikeEntry(row, layout));
        if (isEntry)
            throw faults::entryAbove(row.place);
    }
    if (!hasHeadings)
        return;
    // The entry may stand behind the headings, where their line break is lost.
    static const QRegularExpression delimiters(QStringLiteral("[,;|\t\"]"));
    const QStringList parts = sheet.headings.cells.join(u'\t').split(delimiters);
    const auto isDay = [&layout](const QString &part) {
        return DayForms::isDayLike(part) || layout.dayForms.front().read(part.trimmed());
    };
    if (std::ranges::any_of(parts, isDay))
        throw faults::headingsAreEntry(sheet.headings.place);
}

void requireNoEntry(const CsvRecord &skipped, const CsvLayout &layout)
{
    const QString day = skipped.cells.value(layout.columns.date).trimmed();
    // Of a day that is damaged, the rest is still there; "Balance of 05.01." is no day.
    if (dayOf(skipped.cells, layout) ||
        (!day.isEmpty() && day[0].isDigit() && DayForms::isDayLike(day)))
        throw faults::entryLeftOut(skipped.place);
}

void requireOneEntry(const CsvRecord &row, const CsvLayout &layout)
{
    Place place = row.place;
    for (const QString &cell : row.cells) {
        if (!cell.contains(u'\n'))
            continue;
        const QStringList lines = cell.split(u'\n');
        for (const QString &line : lines.mid(1)) {
            ++place.line;
            const QStringList cells = line.split(*layout.profile.delimiter);
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
        if (!column || layout.profile.delimiter != u',' || column.value() + 1 == columns.balance)
            continue;
        const QString next = row.cells.value(*column + 1);
        // A comma within the cell stands in quotes.
        if (next.isEmpty() || !next[0].isDigit() || row.cells[*column].contains(u','))
            continue;
        const QString both = row.cells[*column] + u',' + next;
        if (both.contains(grouped) ||
            (row.cells.size() > columns.headings.size() && both.contains(parted)))
            throw faults::amountDivided(row.place, both);
    }
}

} // namespace kiv::interchange::internal

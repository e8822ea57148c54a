// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/csv_sheet.h"

#include "interchange/draft.h"
#include "interchange/internal/csv_headings.h"
#include "interchange/internal/csv_notices.h"
#include "interchange/internal/day_forms.h"
#include "interchange/internal/digits.h"
#include "interchange/internal/statement_faults.h"

#include <algorithm>

namespace kiv::interchange::internal {

namespace {

using words::Column;

/// No bank has more lines above its headings.
constexpr qsizetype headMax = 100;

/// The headings that the profile names; "-" and numbers are none.
QStringList namedHeadings(const CsvProfile &profile)
{
    QStringList named{profile.dateColumn,     profile.valueDateColumn, profile.amountColumn,
                      profile.inColumn,       profile.outColumn,       profile.signColumn,
                      profile.feeColumn,      profile.payeeColumn,     profile.idColumn,
                      profile.currencyColumn, profile.statusColumn,    profile.balanceColumn,
                      profile.accountColumn};
    named += profile.textColumns;
    named.removeIf([](const QString &name) {
        bool isNumber = false;
        name.toInt(&isNumber);
        return name.isEmpty() || name == u"-" || isNumber;
    });
    return named;
}

/// What stands from there on, as long as the text lives: a copy could need much memory.
QString restOf(const QString &text, qsizetype offset)
{
    return QString::fromRawData(text.constData() + offset, text.size() - offset);
}

bool isNumber(const QString &cell)
{
    constexpr qsizetype lettersMax = 25;
    return cell.size() <= lettersMax && std::ranges::any_of(cell, isDigit) &&
           std::ranges::count_if(cell, [](QChar unit) { return unit.isLetter(); }) <= 3;
}

/// Whether the row has a day and a number beside it.
bool isEntry(const CsvRecord &row)
{
    const auto day = std::ranges::find_if(row.cells, &DayForms::isDay);
    return day != row.cells.end() &&
           std::any_of(row.cells.begin(), row.cells.end(), [&day](const QString &cell) {
               return &cell != &*day && isNumber(cell) && !DayForms::isDay(cell);
           });
}

/// Whether the row can be the headings of entries, in words that nobody knows.
bool canHead(const CsvRecord &row, const CsvRecord &entry)
{
    return row.cells.size() == entry.cells.size() && std::ranges::none_of(row.cells, &isNumber) &&
           std::ranges::any_of(row.cells, [](const QString &cell) { return !cell.isEmpty(); });
}

struct Start {
    QChar delimiter = u',';
    qsizetype line = 1; ///< of the first row of the table
    bool hasHeadings = true;
    qsizetype score = 0; ///< how sure that is
    std::vector<CsvRecord> above = {};
};

class StartFinder {
public:
    StartFinder(const QString &text, const QString &file, const CsvProfile &profile,
                const numira::Currency &currency)
        : m_text(text),
          m_file(file),
          m_profile(profile),
          m_currency(currency),
          m_named(namedHeadings(profile))
    {
    }

    Start find()
    {
        LineCursor lines(m_text, m_file);
        for (int skipped = 0; skipped < m_profile.skippedLines.value_or(0) && lines.next();)
            m_first = ++skipped + 1;
        qsizetype offset = lines.offset();
        const QStringView line = lines.next() ? lines.line() : QStringView();
        QList<QChar> delimiters{u',', u';', u'\t', u'|'};
        if (line.size() == 5 && line.startsWith(u"sep=")) { // as spreadsheets write it
            delimiters = {line.back()};
            offset = lines.offset();
            ++m_first;
        }
        if (m_profile.delimiter)
            delimiters = {*m_profile.delimiter};
        Start best{delimiters.size() > 1 ? guessDelimiter(line) : delimiters[0], m_first,
                   m_profile.hasHeadings.value_or(true)};
        const QString text = restOf(m_text, offset);
        for (const QChar delimiter : delimiters) {
            const Start found = startIn(headOf(text, delimiter), delimiter);
            if (found.score > best.score)
                best = found;
        }
        return best;
    }

private:
    /// Nothing where it is no table with this delimiter; reading all of it will tell why.
    [[nodiscard]] std::vector<CsvRecord> headOf(const QString &text, QChar delimiter) const
    {
        try {
            std::vector<CsvRecord> rows =
                readCsvHead(text, m_file, delimiter, m_profile.skippedLines ? 2 : headMax);
            for (CsvRecord &row : rows)
                row.place.line += m_first - 1;
            return rows;
        } catch (const ImportError &) {
            return {};
        }
    }

    [[nodiscard]] Start startIn(std::vector<CsvRecord> rows, QChar delimiter) const
    {
        Start best{delimiter};
        std::size_t at = 0;
        const auto consider = [&](std::size_t row, bool hasHeadings, qsizetype score) {
            if (score <= best.score)
                return;
            best = {delimiter, rows[row].place.line, hasHeadings, score};
            at = row;
        };
        // A table whose first row is told has it there.
        const std::size_t last =
            m_profile.skippedLines ? std::min<std::size_t>(rows.size(), 1) : rows.size();
        if (m_profile.hasHeadings.value_or(true)) {
            for (std::size_t row = 0; row < last; ++row)
                consider(row, true, scoreOf(rows[row]));
        }
        if (best.score == 0)
            considerEntries(rows, last, consider);
        if (best.score > 0) {
            if (m_profile.skippedLines)
                best.line = m_first;
            rows.resize(at);
            best.above = std::move(rows);
        }
        return best;
    }

    /// The first entry, and the row above it, where no row has common headings.
    void considerEntries(const std::vector<CsvRecord> &rows, std::size_t last,
                         const auto &consider) const
    {
        const auto entry = std::ranges::find_if(rows, &isEntry);
        if (entry == rows.end())
            return;
        const auto row = static_cast<std::size_t>(entry - rows.begin());
        // The delimiter that makes more cells is the one.
        const auto score = std::min<qsizetype>(entry->cells.size(), knownMin - 1);
        if (m_profile.hasHeadings.value_or(true) && row > 0 && row - 1 < last &&
            canHead(rows[row - 1], *entry))
            consider(row - 1, true, score);
        else if (!m_profile.hasHeadings.value_or(false) && row < last)
            consider(row, false, score);
    }

    /// How much looks like headings; 0 where the row does not.
    [[nodiscard]] qsizetype scoreOf(const CsvRecord &row) const
    {
        qsizetype named = 0;
        qsizetype known = 0;
        bool hasDate = false;
        bool hasAmount = false;
        for (const QString &cell : row.cells) {
            constexpr qsizetype lettersMax = 60;
            if (cell.isEmpty() || cell.size() > lettersMax)
                continue;
            const CsvHeading heading = headingOf(cell, m_currency);
            const auto is = [&heading](std::initializer_list<Column> columns) {
                return words::isHeading(heading.plain, columns) ||
                       words::isHeading(heading.base, columns);
            };
            named += m_named.contains(cell.trimmed()) ? 1 : 0;
            known += words::isHeading(heading.plain) || words::isHeading(heading.base) ? 1 : 0;
            hasDate = hasDate || is({Column::Date});
            hasAmount = hasAmount || is({Column::Amount, Column::In, Column::Out});
        }
        const bool isWhole = hasDate && hasAmount;
        const bool isHeading = named > 0 || isWhole || known > 1;
        return isHeading ? named * 10000 + (isWhole ? 1000 : 0) + known + knownMin : 0;
    }

    /// More than any score of entries.
    static constexpr qsizetype knownMin = 100;

    const QString &m_text;
    const QString &m_file;
    const CsvProfile &m_profile;
    const numira::Currency &m_currency;
    QStringList m_named;
    qsizetype m_first = 1; ///< the line that may be the first of the table
};

/// The text, and its encoding in the profile of the sheet.
QString textOf(const QByteArray &bytes, const QString &file, CsvSheet &sheet)
{
    const QString found = guessedEncoding(bytes);
    QString &named = sheet.profile.encoding;
    if (named.isEmpty())
        named = found;
    // Only an encoding with one byte a letter reads UTF-8 wrongly without an error.
    const bool isNarrow = named.startsWith(u"ISO-8859", Qt::CaseInsensitive) ||
                          named.startsWith(u"windows-125", Qt::CaseInsensitive);
    const auto isTelling = [](char byte) { return (byte & 0x80) != 0; };
    if (isNarrow && found == utf8Name && std::ranges::any_of(bytes, isTelling)) {
        sheet.notices += notices::otherEncoding(named, found);
        named = found;
    }
    return decoded(bytes, file, named);
}

/// Refuses a last row with fewer cells than the one before: without a line break behind
/// it, it may be cut off.
void requireWholeLastRow(const std::vector<CsvRecord> &rows)
{
    if (rows.size() > 1 && rows.back().cells.size() < rows[rows.size() - 2].cells.size())
        throw faults::rowCutOff(rows.back().place);
}

/// Takes rows from the end that stand below an empty line and have no day: they are sums, or
/// the balance.
void leaveTotals(CsvSheet &sheet)
{
    std::vector<CsvRecord> &rows = sheet.rows;
    for (std::size_t at = rows.size(); at > 1; --at) {
        const CsvRecord &row = rows[at - 1];
        if (row.cells.size() < 2 || std::ranges::any_of(row.cells, &DayForms::isDayLike))
            return;
        qsizetype end = rows[at - 2].place.line; // of the row above
        for (const QString &cell : rows[at - 2].cells)
            end += cell.count(u'\n');
        const bool isCell = std::ranges::any_of(row.cells, &isNumber);
        if (row.place.line > end + 1 && isCell && !row.cells.front().trimmed().isEmpty()) {
            sheet.notices += notices::belowSkipped(row.place.line);
            rows.resize(at - 1);
            return;
        }
    }
}

/// Takes what is no entry from the rows: the headings, what the profile skips at the end,
/// rows of delimiters alone, and headings that stand there again.
void leaveEntries(CsvSheet &sheet, bool hasHeadings, bool endsWithinLine)
{
    std::vector<CsvRecord> &rows = sheet.rows;
    const std::size_t first = hasHeadings ? 1 : 0;
    for (int left = sheet.profile.skippedLast; left > 0 && rows.size() > first; --left) {
        sheet.below.push_back(std::move(rows.back()));
        rows.pop_back();
    }
    if (endsWithinLine)
        requireWholeLastRow(rows);
    if (hasHeadings)
        rows.erase(rows.begin());
    std::erase_if(rows, [&](const CsvRecord &row) {
        const auto isBlank = [](const QString &cell) { return cell.trimmed().isEmpty(); };
        const auto isSame = [](const QString &cell, const QString &heading) {
            return cell.trimmed() == heading;
        };
        if (std::ranges::equal(row.cells, sheet.headings.cells, isSame)) {
            sheet.notices += notices::headingsAgain(row.place.line);
            return true;
        }
        return std::ranges::all_of(row.cells, isBlank);
    });
    leaveTotals(sheet);
}

} // namespace

CsvSheet sheetOf(const QByteArray &bytes, const QString &file, const CsvProfile &profile,
                 const numira::Currency &currency)
{
    CsvSheet sheet{profile, {}, {}, {}, {}};
    const QString text = textOf(bytes, file, sheet);
    Start start = StartFinder(text, file, profile, currency).find();
    sheet.profile.delimiter = start.delimiter;
    sheet.profile.hasHeadings = start.hasHeadings;
    sheet.profile.skippedLines = static_cast<int>(start.line) - 1;
    sheet.above = std::move(start.above);
    LineCursor lines(text, file);
    while (lines.place().line + 1 < start.line && lines.next()) {
    }
    sheet.rows = readCsvTable(restOf(text, lines.offset()), file, start.delimiter,
                              transactionsMax + (start.hasHeadings ? 1 : 0));
    for (CsvRecord &row : sheet.rows)
        row.place.line += start.line - 1;
    if (sheet.rows.empty())
        throw faults::emptyTable({file, 0});
    sheet.headings = sheet.rows.front();
    for (qsizetype column = 0; column < sheet.headings.cells.size(); ++column) {
        QString &cell = sheet.headings.cells[column];
        cell = start.hasHeadings ? cell.trimmed() : QString::number(column + 1);
    }
    leaveEntries(sheet, start.hasHeadings, !text.endsWith(u'\n') && !text.endsWith(u'\r'));
    return sheet;
}

} // namespace kiv::interchange::internal

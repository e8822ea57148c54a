// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/csv_table.h"

#include "interchange/internal/faults.h"
#include "interchange/internal/limits.h"
#include "interchange/internal/statement_faults.h"

#include "interchange/draft.h"

#include "foundation/streams.h"

namespace kiv::interchange {

namespace {

/// No bank has so many. The limit keeps a file of delimiters from filling the memory.
constexpr qsizetype cellsMax = 1000;

class CsvReader {
public:
    CsvReader(const QString &text, const QString &file, QChar delimiter, qsizetype recordsMax)
        : m_text(text), m_file(file), m_delimiter(delimiter), m_recordsMax(recordsMax)
    {
    }

    std::vector<CsvRecord> read()
    {
        std::vector<CsvRecord> records = readHead(m_recordsMax + 1);
        if (static_cast<qsizetype>(records.size()) > m_recordsMax)
            throw faults::tooManyTransactions(records.back().place, transactionsMax);
        return records;
    }

    std::vector<CsvRecord> readHead(qsizetype count)
    {
        std::vector<CsvRecord> records;
        while (m_at < m_text.size() && static_cast<qsizetype>(records.size()) < count) {
            CsvRecord record{{m_file, m_line}, {}};
            do {
                if (record.cells.size() >= cellsMax)
                    throw faults::tooManyCells(record.place, cellsMax);
                record.cells += m_at < m_text.size() && m_text[m_at] == u'"' ? quoted() : plain();
                m_characters += std::max(record.cells.back().size(), limits::cellTextMin);
                if (m_characters > limits::tableTextMax)
                    throw faults::tableTooLarge(record.place, limits::tableTextMax,
                                                limits::cellTextMin);
            } while (takeDelimiter());
            takeLineEnd();
            if (record.cells != QStringList{QString()})
                records.push_back(std::move(record));
        }
        return records;
    }

private:
    [[nodiscard]] bool isAtEnd() const
    {
        return m_at >= m_text.size() || m_text[m_at] == u'\n' || m_text[m_at] == u'\r';
    }

    static void requireShort(qsizetype characters, const Place &place)
    {
        if (characters > lineMax)
            throw faults::textTooLong(place, lineMax);
    }

    QString plain()
    {
        const qsizetype begin = m_at;
        while (!isAtEnd() && m_text[m_at] != m_delimiter)
            ++m_at;
        requireShort(m_at - begin, {m_file, m_line});
        // Always a copy: the text may be gone before the cell, even where it is all of it.
        return QStringView(m_text).sliced(begin, m_at - begin).toString();
    }

    QString quoted()
    {
        const Place opened{m_file, m_line};
        QString cell;
        bool isClosed = false;
        for (++m_at; m_at < m_text.size(); ++m_at) {
            if (m_text[m_at] == u'"') {
                ++m_at;
                isClosed = m_at >= m_text.size() || m_text[m_at] != u'"';
                if (isClosed)
                    break;
            } else if (m_text[m_at] == u'\n') {
                ++m_line;
            }
            cell += m_text[m_at];
            requireShort(cell.size(), opened);
        }
        if (!isClosed)
            throw faults::quoteNotClosed(opened);
        if (!isAtEnd() && m_text[m_at] != m_delimiter)
            throw faults::textBehindQuote({m_file, m_line});
        return cell;
    }

    bool takeDelimiter()
    {
        if (isAtEnd())
            return false;
        ++m_at; // a cell ends nowhere else
        return true;
    }

    void takeLineEnd()
    {
        if (m_at < m_text.size() && m_text[m_at] == u'\r')
            ++m_at;
        if (m_at < m_text.size() && m_text[m_at] == u'\n')
            ++m_at;
        ++m_line;
    }

    const QString &m_text;
    const QString &m_file;
    QChar m_delimiter;
    qsizetype m_recordsMax;
    qsizetype m_at = 0;
    qsizetype m_line = 1;
    qsizetype m_characters = 0;
};

} // namespace

std::vector<CsvRecord> readCsvTable(const QString &text, const QString &file, QChar delimiter,
                                    qsizetype recordsMax)
{
    return CsvReader(text, file, delimiter, recordsMax).read();
}

std::vector<CsvRecord> readCsvHead(const QString &text, const QString &file, QChar delimiter,
                                   qsizetype rowsMax)
{
    return CsvReader(text, file, delimiter, rowsMax).readHead(rowsMax);
}

QChar guessDelimiter(QStringView line)
{
    QChar best = u',';
    qsizetype most = 0;
    for (const QChar candidate : QStringLiteral(",;\t|")) {
        qsizetype count = 0;
        bool isQuoted = false;
        for (const QChar character : line) {
            if (character == u'"')
                isQuoted = !isQuoted;
            count += !isQuoted && character == candidate ? 1 : 0;
        }
        if (count > most) {
            most = count;
            best = candidate;
        }
    }
    return best;
}

QString csvLine(const QStringList &cells)
{
    QStringList quoted;
    for (const QString &text : cells) {
        QString safe = foundation::escaped(text);
        if (!safe.isEmpty() && QStringLiteral("=+-@").contains(safe.front()))
            safe.prepend(u'\'');
        quoted += u'"' + safe.replace(u'"', QStringLiteral("\"\"")) + u'"';
    }
    return quoted.join(u',') + QStringLiteral("\r\n");
}

} // namespace kiv::interchange

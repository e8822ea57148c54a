// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/csv_profile.h"

#include "interchange/draft.h"
#include "interchange/internal/csv_columns.h"
#include "interchange/internal/description_count.h"
#include "interchange/internal/running_balance.h"
#include "interchange/internal/statement_words.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>

namespace kiv::interchange {

namespace {

namespace words = internal::words;

bool isBlank(const QString &cell)
{
    return cell.trimmed().isEmpty();
}

class StatementReader {
public:
    StatementReader(const CsvProfile &profile, numira::Currency currency)
        : m_profile(profile), m_currency(currency)
    {
    }

    Statement read(const QString &text, const QString &file)
    {
        std::vector<CsvRecord> records = recordsOf(text, file);
        if (records.empty())
            throw faults::emptyTable({file, 0});
        m_columns = internal::columnsOf(records.front(), m_profile, m_currency);
        if (m_profile.hasHeadings && hasDay(records.front().cells))
            throw faults::headingsAreEntry(records.front().place);
        leaveOutLast(records);
        if (!text.endsWith(u'\n') && !text.endsWith(u'\r'))
            refuseCutOff(records);
        records.erase(records.begin(), records.begin() + headingLines());
        std::erase_if(records, [](const CsvRecord &record) { // delimiters alone
            return std::ranges::all_of(record.cells, isBlank);
        });
        Statement statement = statementOf(records);
        if (std::ranges::none_of(statement.entries, &numira::Money::isNegative,
                                 &StatementEntry::amount))
            refuseSigns(records);
        return statement;
    }

private:
    [[nodiscard]] Statement statementOf(const std::vector<CsvRecord> &records)
    {
        // Some banks end each line with a delimiter, but then they do so throughout.
        for (const CsvRecord &record : records)
            m_width = std::min(m_width.value_or(record.cells.size()), record.cells.size());
        Statement statement{{}, m_currency, {}};
        std::vector<internal::BalanceStep> steps;
        for (const CsvRecord &record : records) {
            requireOneEntry(record);
            requireWidth(record);
            internal::BalanceStep step{record.place, {}, balanceOf(record)};
            if (isPending(record)) {
                ++statement.pending;
            } else {
                statement.entries.push_back(entryOf(record));
                const numira::Money &amount = statement.entries.back().amount;
                if (amount.code() == m_currency)
                    step.amount = amount;
            }
            steps.push_back(std::move(step));
        }
        internal::requireRunningBalance(std::move(steps), m_profile.isNegated);
        return statement;
    }

    [[nodiscard]] int headingLines() const { return m_profile.hasHeadings ? 1 : 0; }

    [[nodiscard]] std::vector<CsvRecord> recordsOf(const QString &text, const QString &file)
    {
        LineCursor lines(text, file);
        qsizetype skipped = 0;
        int skippedLines = 0;
        for (; skippedLines < m_profile.skippedLines && lines.next(); ++skippedLines)
            skipped = lines.offset();
        const QStringView first = lines.next() ? lines.line() : QStringView();
        QChar guessed = guessDelimiter(first);
        if (first.size() == 5 && first.startsWith(u"sep=")) { // as spreadsheets write it
            guessed = first.back();
            skipped = lines.offset();
            ++skippedLines;
        }
        m_delimiter = m_profile.delimiter.value_or(guessed);
        std::vector<CsvRecord> records =
            readCsvTable(text.mid(skipped), file, m_delimiter, transactionsMax + headingLines());
        for (CsvRecord &record : records)
            record.place.line += skippedLines;
        return records;
    }

    /// A line with a day is an entry, of which none is left out in silence.
    void leaveOutLast(std::vector<CsvRecord> &records) const
    {
        const auto entries = static_cast<int>(records.size()) - headingLines();
        for (int left = std::min(m_profile.skippedLast, entries); left > 0; --left) {
            if (dayOf(records.back().cells))
                throw faults::entryLeftOut(records.back().place);
            records.pop_back();
        }
    }

    /// A shorter line than the one before, without an end, lacks what we cannot know.
    static void refuseCutOff(const std::vector<CsvRecord> &records)
    {
        if (records.size() < 2)
            return;
        const CsvRecord &last = records.back();
        if (last.cells.size() < records[records.size() - 2].cells.size())
            throw faults::rowCutOff(last.place);
    }

    /// Amounts without signs, beside a column of signs that was not named, would all come in.
    void refuseSigns(const std::vector<CsvRecord> &records) const
    {
        if (!m_columns.amount || m_columns.sign || m_profile.isNegated)
            return;
        for (qsizetype column = 0; column < m_columns.headings.size(); ++column) {
            const auto sign = [column](const CsvRecord &record) {
                return record.cells.value(column).trimmed();
            };
            const auto isOut = [](const QString &text) {
                return words::wentOut.contains(text, Qt::CaseInsensitive);
            };
            const auto isIn = [](const QString &text) {
                return words::cameIn.contains(text, Qt::CaseInsensitive);
            };
            const auto isSign = [&](const QString &text) {
                return isOut(text) || isIn(text) || text.isEmpty();
            };
            const auto found = std::ranges::find_if(records, isOut, sign);
            // Other kinds of entries, such as checks, may stand among both; "-" alone
            // often stands for nothing.
            if (found != records.end() &&
                (std::ranges::any_of(records, isIn, sign) ||
                 (sign(*found) != u"-" && std::ranges::all_of(records, isSign, sign))))
                throw faults::signsNotNamed(found->place, column + 1, sign(*found));
        }
    }

    [[nodiscard]] bool isPending(const CsvRecord &record) const
    {
        const QStringList said =
            m_columns.status ? record.cells.value(*m_columns.status).simplified().split(u' ')
                             : QStringList();
        return std::ranges::any_of(said, [](const QString &word) {
            return words::pending.contains(word, Qt::CaseInsensitive);
        });
    }

    [[nodiscard]] std::optional<QDate> dayOf(const QStringList &cells) const
    {
        QString date = cells.value(m_columns.date).trimmed();
        // The time of the day stands behind it in some.
        if (!m_profile.dateFormat.text().contains(u' '))
            date = date.section(QRegularExpression(QStringLiteral("[ T]")), 0, 0);
        return m_profile.dateFormat.read(date);
    }

    /// An entry stands where the headings should, or behind them where its line end is lost.
    [[nodiscard]] bool hasDay(const QStringList &headings) const
    {
        static const QRegularExpression delimiters(QStringLiteral("[,;|\t\"]"));
        const QStringList parts = headings.join(u'\t').split(delimiters);
        return std::ranges::any_of(parts, [this](const QString &part) {
            return m_profile.dateFormat.read(part.trimmed()).has_value();
        });
    }

    /// A quote that is closed too late holds the lines of further entries.
    void requireOneEntry(const CsvRecord &record) const
    {
        Place place = record.place;
        for (const QString &cell : record.cells) {
            const QStringList lines = cell.split(u'\n');
            for (const QString &line : lines.mid(1)) {
                ++place.line;
                const QStringList cells = line.split(m_delimiter);
                if (cells.size() > m_columns.date + 1 && dayOf(cells))
                    throw faults::entryWithinQuotes(place);
            }
        }
    }

    void requireWidth(const CsvRecord &record) const
    {
        const qsizetype size = record.cells.size();
        const qsizetype headings = m_columns.headings.size();
        // Cells that are empty may have been pushed out by a part of an amount.
        const auto isCell = [](const QString &cell) { return !isBlank(cell); };
        if (size > headings && (size > m_width || std::any_of(record.cells.begin() + headings,
                                                              record.cells.end(), isCell)))
            throw faults::tooManyCells(record.place, size, headings);
        // Where the headings end with a delimiter too, an amount that a comma divides has
        // digits behind the last of them.
        for (qsizetype column = m_columns.named; column < size; ++column) {
            if (!record.cells[column].isEmpty() && record.cells[column].front().isDigit())
                throw faults::tooManyCells(record.place, size, m_columns.named);
        }
    }

    void requireWholeAmounts(const CsvRecord &record) const
    {
        static const QRegularExpression grouped(
            QStringLiteral("^[^0-9.,]*[0-9]{1,3},[0-9]{3}\\.[0-9]+[^0-9]*$"));
        static const QRegularExpression parted(
            QStringLiteral("^[^0-9.,]*[0-9]+,[0-9]{2,3}[^0-9,]*$"));
        for (const auto &column : {m_columns.amount, m_columns.in, m_columns.out}) {
            if (!column || m_delimiter != u',' || column.value() + 1 == m_columns.balance)
                continue;
            const QString both = record.cells[*column] + u',' + record.cells.value(*column + 1);
            if (both.contains(grouped) ||
                (record.cells.size() > m_columns.headings.size() && both.contains(parted)))
                throw faults::amountDivided(record.place, both);
        }
    }

    [[nodiscard]] StatementEntry entryOf(const CsvRecord &record)
    {
        if (record.cells.size() < m_columns.needed)
            throw faults::tooFewCells(record.place, record.cells.size(), m_columns.needed);
        requireWholeAmounts(record);
        StatementEntry entry{record.place};
        const auto day = dayOf(record.cells);
        if (!day)
            throw faults::notInDateFormat(record.place, record.cells[m_columns.date].trimmed(),
                                          m_profile.dateFormat.text());
        entry.date = *day;
        entry.amount = amountOf(record);
        QStringList texts;
        for (const qsizetype column : m_columns.texts)
            texts += record.cells.value(column).simplified();
        texts.removeAll(QString());
        entry.text = texts.join(u' ');
        m_descriptions.add(entry.text, record.place);
        if (m_columns.id)
            entry.bankId = record.cells.value(*m_columns.id).simplified();
        return entry;
    }

    [[nodiscard]] numira::Money amountOf(const CsvRecord &record)
    {
        const Place &place = record.place;
        numira::Currency currency = m_currency;
        if (m_columns.currency) {
            const QString code = record.cells[*m_columns.currency].trimmed();
            const auto read = code.isEmpty() || isOwnSign(code)
                                  ? std::optional(m_currency)
                                  : readCurrency(code.toUpper(), m_currency);
            if (!read)
                throw faults::notACurrency(place, code);
            currency = *read;
        }
        const auto cell = [&](const std::optional<qsizetype> &column) {
            return column ? record.cells[*column].trimmed() : QString();
        };
        const auto read = [&](const QString &text) { return moneyOf(text, currency, place); };
        numira::Money amount;
        if (m_columns.amount) {
            amount = read(cell(m_columns.amount));
        } else {
            const QString cameIn = cell(m_columns.in);
            const QString wentOut = cell(m_columns.out);
            const numira::Money none(currency);
            const numira::Money in = cameIn.isEmpty() ? none : read(cameIn);
            const numira::Money out = wentOut.isEmpty() ? none : outgoing(read(wentOut), place);
            if (in.isNegative())
                throw faults::negativeIn(place);
            if (!in.isZero() && !out.isZero())
                throw faults::bothWays(place);
            if (cameIn.isEmpty() && wentOut.isEmpty())
                throw faults::missingAmount(place);
            amount = out.isZero() ? in : -out;
        }
        if (m_columns.sign && isOut(cell(m_columns.sign), place))
            amount = -amount.abs();
        return m_profile.isNegated ? -amount : amount;
    }

    [[nodiscard]] numira::Money moneyOf(const QString &text, const numira::Currency &currency,
                                        const Place &place) const
    {
        return statementAmount(withoutCurrency(text, currency), currency, m_profile.decimalMark,
                               place);
    }

    /// Nothing where none is told, or no number stands in a column that nobody named.
    [[nodiscard]] std::optional<numira::Money> balanceOf(const CsvRecord &record) const
    {
        const QString text =
            m_columns.balance ? record.cells.value(*m_columns.balance).trimmed() : QString();
        if (text.isEmpty())
            return std::nullopt;
        try {
            return moneyOf(text, m_currency, record.place);
        } catch (const ImportError &) {
            if (!m_profile.balanceColumn.isEmpty())
                throw;
            return std::nullopt;
        }
    }

    /// By the signs that were named, or by the common ones.
    [[nodiscard]] bool isOut(const QString &sign, const Place &place) const
    {
        if (!m_profile.negativeSigns.isEmpty())
            return m_profile.negativeSigns.contains(sign, Qt::CaseInsensitive);
        const bool isOut = words::wentOut.contains(sign, Qt::CaseInsensitive);
        // A deposit is a D as well as a debit.
        if ((!isOut && !words::cameIn.contains(sign, Qt::CaseInsensitive) && !sign.isEmpty()) ||
            sign.compare(u"D", Qt::CaseInsensitive) == 0)
            throw faults::signUnknown(place, sign);
        return isOut;
    }

    /// Some write what went out with a minus, some without; in one column, one of both
    /// would be what was given back.
    [[nodiscard]] numira::Money outgoing(const numira::Money &amount, const Place &place)
    {
        if (amount.isZero())
            return amount;
        if (m_isOutNegative.value_or(amount.isNegative()) != amount.isNegative())
            throw faults::mixedSigns(place);
        m_isOutNegative = amount.isNegative();
        return amount.abs();
    }

    /// "$" where Australian dollars are used, whose full sign is "A$".
    [[nodiscard]] bool isOwnSign(const QString &text) const
    {
        const auto symbol = numira::currencySymbol(m_currency);
        return text == u"$" && symbol && symbol->ends_with('$');
    }

    /// The number alone, where its own currency stands beside it.
    static QString withoutCurrency(QString text, const numira::Currency &currency)
    {
        const QString code = foundation::toQString(currency);
        QStringList names{code};
        if (const auto symbol = numira::currencySymbol(currency)) {
            // "A$" is "AU$" and "$" as well, where Australian dollars are used.
            const QString sign = QString::fromStdString(*symbol);
            if (sign.endsWith(u'$'))
                names += {code.left(2) + u'$', sign, QStringLiteral("$")};
            else
                names += sign;
        }
        static const QRegularExpression digit(QStringLiteral("[0-9]"));
        for (const QString &name : names) {
            const qsizetype at = text.indexOf(name);
            if (at >= 0 &&
                (!text.left(at).contains(digit) || !text.mid(at + name.size()).contains(digit)))
                text.remove(at, name.size());
        }
        return text.trimmed();
    }

    const CsvProfile &m_profile;
    numira::Currency m_currency;
    QChar m_delimiter;
    internal::CsvColumns m_columns;
    internal::DescriptionCount m_descriptions;
    std::optional<qsizetype> m_width; ///< of the shortest entry
    std::optional<bool> m_isOutNegative;
};

} // namespace

Statement readCsvStatement(const QByteArray &bytes, const QString &file, const CsvProfile &profile,
                           const numira::Currency &currency)
{
    return StatementReader(profile, currency).read(decoded(bytes, file, profile.encoding), file);
}

} // namespace kiv::interchange

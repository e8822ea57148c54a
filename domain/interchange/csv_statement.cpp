// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/csv_profile.h"

#include "interchange/csv_table.h"
#include "interchange/draft.h"
#include "interchange/internal/faults.h"
#include "interchange/internal/statement_words.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>

namespace kiv::interchange {

namespace {

namespace words = internal::words;

/// "wahrung" of "Währung": in lower case and without the marks that banks often leave out.
QString plainHeading(const QString &heading)
{
    QString plain = heading.toLower().normalized(QString::NormalizationForm_D);
    plain.removeIf([](QChar letter) { return letter.isMark(); });
    return plain;
}

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
        setHeadings(records.front());
        leaveOutLast(records);
        Statement statement{{}, m_currency, {}};
        for (auto record = records.begin() + headingLines(); record != records.end(); ++record) {
            if (std::ranges::all_of(record->cells, isBlank)) // delimiters alone
                continue;
            if (isPending(*record))
                statement.hasPending = true;
            else
                statement.entries.push_back(entryOf(*record));
        }
        if (!text.endsWith(u'\n') && !text.endsWith(u'\r'))
            refuseCutOff(records);
        records.erase(records.begin(), records.begin() + headingLines());
        if (std::ranges::none_of(statement.entries, &numira::Money::isNegative,
                                 &StatementEntry::amount))
            refuseSigns(records);
        return statement;
    }

private:
    [[nodiscard]] int headingLines() const { return m_profile.hasHeadings ? 1 : 0; }

    [[nodiscard]] std::vector<CsvRecord> recordsOf(const QString &text, const QString &file) const
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
        std::vector<CsvRecord> records =
            readCsvTable(text.mid(skipped), file, m_profile.delimiter.value_or(guessed),
                         transactionsMax + headingLines());
        for (CsvRecord &record : records)
            record.place.line += skippedLines;
        return records;
    }

    /// A line with a day is an entry, of which none is left out in silence.
    void leaveOutLast(std::vector<CsvRecord> &records) const
    {
        const auto entries = static_cast<int>(records.size()) - headingLines();
        for (int left = std::min(m_profile.skippedLast, entries); left > 0; --left) {
            if (dayOf(records.back()))
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
        if (!m_amount || m_sign || m_profile.isNegated)
            return;
        for (qsizetype column = 0; column < m_headings.size(); ++column) {
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

    void setHeadings(const CsvRecord &first)
    {
        for (const QString &cell : first.cells)
            m_headings +=
                m_profile.hasHeadings ? cell.trimmed() : QString::number(m_headings.size() + 1);
        if (m_headings.contains(QStringLiteral("debitAccount")))
            throw faults::ownTable(first.place);
        const Place &place = first.place;
        m_date = need(m_profile.dateColumn, words::date, "--date-column", place);
        setAmounts(place);
        m_sign = find(m_profile.signColumn, {}, place);
        m_id = find(m_profile.idColumn, words::id, place);
        m_currencyAt = find(m_profile.currencyColumn, words::currency, place);
        // "Amount in GBP" beside an amount abroad, whose currency that column tells.
        if (m_profile.currencyColumn.isEmpty() && m_amount &&
            m_headings[*m_amount].contains(QRegularExpression(
                QStringLiteral("\\b%1\\b").arg(foundation::toQString(m_currency)))))
            m_currencyAt = std::nullopt;
        for (const QString &column : m_profile.textColumns)
            m_texts.push_back(need(column, {}, "--text-column", place));
        if (m_texts.empty())
            m_texts.push_back(need({}, words::text, "--text-column", place));
        for (const auto &column : {m_amount, m_in, m_out, m_sign, m_currencyAt})
            m_needed = std::max(m_needed, column.value_or(0) + 1);
        m_needed = std::max(m_needed, m_date + 1);
        m_named = m_headings.size();
        while (m_named > m_needed && m_headings[m_named - 1].isEmpty())
            --m_named;
    }

    void setAmounts(const Place &place)
    {
        // Who names one of two means the other as well, where it is plain.
        const bool hasIn = !m_profile.inColumn.isEmpty();
        const bool hasOut = !m_profile.outColumn.isEmpty();
        m_in = find(m_profile.inColumn, hasOut ? words::in : QStringList(), place);
        m_out = find(m_profile.outColumn, hasIn ? words::out : QStringList(), place);
        if (m_in || m_out) {
            for (const auto &column : {m_in, m_out})
                requireOwnCurrency(column ? m_headings[*column] : QString(), place);
            return;
        }
        m_amount = find(m_profile.amountColumn, words::amount, place);
        if (m_amount) {
            requireOwnCurrency(m_headings[*m_amount], place);
            return;
        }
        // Half of a pair would leave out what went the other way.
        m_in = find({}, words::in, place);
        m_out = find({}, words::out, place);
        if (!m_in || !m_out)
            throw faults::columnNotNamed(
                place, QLatin1String("--amount-column (or --in-column and --out-column)"),
                m_headings);
    }

    [[nodiscard]] std::optional<qsizetype> find(const QString &column, const QStringList &headings,
                                                const Place &place) const
    {
        if (column.isEmpty()) {
            for (const QString &heading : headings) {
                const auto same = [&heading, this](const QString &present) {
                    const QString plain = plainHeading(present);
                    return plain == heading || (plain.startsWith(heading + QStringLiteral(" (")) &&
                                                namesCurrency(plain.sliced(heading.size() + 2)));
                };
                const auto at = std::ranges::find_if(m_headings, same);
                if (at != m_headings.end())
                    return at - m_headings.begin();
            }
            return std::nullopt;
        }
        const qsizetype number = column.toInt(); // 0 when it is none
        qsizetype at = m_headings.indexOf(column);
        if (at < 0 && number >= 1 && number <= m_headings.size())
            at = number - 1;
        if (at < 0)
            throw faults::noSuchColumn(place, column, m_headings);
        return at;
    }
    /// A column of "Amount (EUR)" or "Amount in EUR" holds nothing else.
    void requireOwnCurrency(const QString &heading, const Place &place) const
    {
        static const QRegularExpression pattern(
            QStringLiteral("\\(([^()]+)\\)$|\\bin ([A-Za-z]{3})$"));
        const auto match = pattern.match(heading);
        const QString name = match.captured(1) + match.captured(2);
        const auto named = readCurrency(name.toUpper(), m_currency);
        if (named && *named != m_currency)
            throw faults::otherCurrency(place, foundation::toQString(*named),
                                        foundation::toQString(m_currency));
    }
    /// Whether it is the account's currency in brackets, as in "Betrag (EUR)".
    [[nodiscard]] bool namesCurrency(const QString &rest) const
    {
        const auto named = rest.endsWith(u')') ? readCurrency(rest.chopped(1).toUpper(), m_currency)
                                               : std::nullopt;
        return named == m_currency;
    }
    [[nodiscard]] qsizetype need(const QString &column, const QStringList &headings,
                                 const char *option, const Place &place) const
    {
        const auto found = find(column, headings, place);
        if (!found)
            throw faults::columnNotNamed(place, QLatin1String(option), m_headings);
        return *found;
    }

    [[nodiscard]] bool isPending(const CsvRecord &record) const
    {
        for (qsizetype column = 0; column < record.cells.size(); ++column) {
            if (std::ranges::find(m_texts, column) != m_texts.end())
                continue;
            for (const QString &word : record.cells[column].simplified().split(u' ')) {
                if (words::pending.contains(word, Qt::CaseInsensitive))
                    return true;
            }
        }
        return false;
    }

    [[nodiscard]] std::optional<QDate> dayOf(const CsvRecord &record) const
    {
        QString date = record.cells.value(m_date).trimmed();
        // The time of the day stands behind it in some.
        if (!m_profile.dateFormat.text().contains(u' '))
            date = date.section(QRegularExpression(QStringLiteral("[ T]")), 0, 0);
        return m_profile.dateFormat.read(date);
    }

    [[nodiscard]] StatementEntry entryOf(const CsvRecord &record)
    {
        if (record.cells.size() < m_needed)
            throw faults::tooFewCells(record.place, record.cells.size(), m_needed);
        // Some banks end each line with a delimiter.
        if (record.cells.size() > m_headings.size() &&
            !std::all_of(record.cells.begin() + m_headings.size(), record.cells.end(), isBlank))
            throw faults::tooManyCells(record.place, record.cells.size(), m_headings.size());
        // Where the headings end with a delimiter too, an amount that a comma divides has
        // digits behind the last of them.
        for (qsizetype column = m_named; column < record.cells.size(); ++column) {
            if (!record.cells[column].isEmpty() && record.cells[column].front().isDigit())
                throw faults::tooManyCells(record.place, record.cells.size(), m_named);
        }
        StatementEntry entry{record.place};
        const auto day = dayOf(record);
        if (!day)
            throw faults::notInDateFormat(record.place, record.cells[m_date].trimmed(),
                                          m_profile.dateFormat.text());
        entry.date = *day;
        entry.amount = amountOf(record);
        QStringList texts;
        for (const qsizetype column : m_texts)
            texts += record.cells.value(column).simplified();
        texts.removeAll(QString());
        entry.text = texts.join(u' ');
        if (m_id)
            entry.bankId = record.cells.value(*m_id).simplified();
        return entry;
    }

    [[nodiscard]] numira::Money amountOf(const CsvRecord &record)
    {
        const Place &place = record.place;
        numira::Currency currency = m_currency;
        if (m_currencyAt) {
            const QString code = record.cells[*m_currencyAt].trimmed();
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
        const auto read = [&](const QString &text) {
            return statementAmount(withoutCurrency(text, currency), currency, m_profile.decimalMark,
                                   place);
        };
        numira::Money amount;
        if (m_amount) {
            amount = read(cell(m_amount));
        } else {
            const numira::Money in =
                cell(m_in).isEmpty() ? numira::Money(currency) : read(cell(m_in));
            const numira::Money out = cell(m_out).isEmpty() ? numira::Money(currency)
                                                            : outgoing(read(cell(m_out)), place);
            if (in.isNegative())
                throw faults::negativeIn(place);
            if (!in.isZero() && !out.isZero())
                throw faults::bothWays(place);
            if (cell(m_in).isEmpty() && cell(m_out).isEmpty())
                throw faults::missingValue(place, QObject::tr("amount"));
            amount = out.isZero() ? in : -out;
        }
        if (m_sign && isOut(cell(m_sign), place))
            amount = -amount.abs();
        return m_profile.isNegated ? -amount : amount;
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
        for (const QString &name : names)
            text.remove(name);
        return text.trimmed();
    }

    const CsvProfile &m_profile;
    numira::Currency m_currency;
    QStringList m_headings;
    qsizetype m_date = 0;
    qsizetype m_needed = 1;
    qsizetype m_named = 0; ///< up to the last column with a heading
    std::optional<qsizetype> m_amount;
    std::optional<qsizetype> m_in;
    std::optional<qsizetype> m_out;
    std::optional<qsizetype> m_sign;
    std::optional<qsizetype> m_id;
    std::optional<qsizetype> m_currencyAt;
    std::optional<bool> m_isOutNegative;
    std::vector<qsizetype> m_texts;
};

} // namespace

Statement readCsvStatement(const QByteArray &bytes, const QString &file, const CsvProfile &profile,
                           const numira::Currency &currency)
{
    return StatementReader(profile, currency).read(decoded(bytes, file, profile.encoding), file);
}

} // namespace kiv::interchange

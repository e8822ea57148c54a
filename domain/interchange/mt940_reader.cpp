// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/mt940_reader.h"

#include "interchange/internal/faults.h"
#include "interchange/internal/mt940_fields.h"
#include "interchange/internal/mt940_text.h"
#include "interchange/internal/statement_faults.h"
#include "interchange/text_decoding.h"
#include "interchange/written_values.h"

namespace kiv::interchange {

namespace {

using internal::Mt940Text;
using internal::StatementPart;

/// A tag such as ":61:"; empty for other lines. A text may also contain colons.
QStringView tagOf(QStringView line)
{
    const qsizetype end = line.startsWith(u':') ? line.indexOf(u':', 1) : -1;
    const QStringView tag = end > 0 ? line.sliced(1, end - 1) : QStringView();
    const bool isField = (tag.size() == 2 || tag.size() == 3) && tag[0].isDigit() &&
                         tag[1].isDigit() && (tag.size() == 2 || tag[2].isLetterOrNumber());
    return isField || tag == u"NS" ? tag : QStringView();
}

/// Whether a line ends a message: a hyphen, or the blocks around it.
bool isEnd(QStringView line)
{
    return line == u"-" || line == u"-XXX" || line.startsWith(u"-}") ||
           (line.size() > 2 && line[0] == u'{' && line[1].isDigit() && line[2] == u':');
}

/// The code at the end of an account's number, as "NL91ABNA0417164300EUR" has it, is no part
/// of an IBAN.
QString accountNumber(const QString &text, const numira::Currency &currency)
{
    const QString code = QString::fromStdString(numira::toStdString(currency));
    const bool isIban = text.size() > 12 && text[0].isLetter() && text[1].isLetter() &&
                        text[2].isDigit() && text[3].isDigit();
    return isIban && text.endsWith(code) ? text.chopped(code.size()).trimmed() : text;
}

class Mt940Reader {
public:
    Mt940Reader(const QString &text, const QString &file, const BankFileOptions &options)
        : m_lines(text, file),
          m_options(options),
          m_endsWithinLine(!text.endsWith(u'\n') && !text.endsWith(u'\r'))
    {
    }

    std::vector<StatementPart> read()
    {
        while (m_lines.next()) {
            const QStringView line = m_lines.line();
            if (isEnd(line.trimmed())) {
                finish();
                const qsizetype text = line.indexOf(u"{4:");
                takeLine(text < 0 ? QStringView() : line.sliced(text + 3));
            } else {
                takeLine(line);
            }
        }
        if (m_isOpen && m_endsWithinLine && !m_part.closing)
            throw faults::statementCutOff(m_lines.place(), m_begin.line);
        finish();
        if (m_parts.empty())
            throw faults::notMt940({m_lines.place().file, 0});
        return std::move(m_parts);
    }

private:
    enum class Field { Other, Entry, Text, Notes };

    void takeLine(QStringView line)
    {
        const QStringView tag = tagOf(line);
        if (tag.isEmpty())
            goOn(line);
        else
            takeField(tag, line.sliced(tag.size() + 2));
    }

    /// A field's further lines.
    void goOn(QStringView line)
    {
        if (line.contains(u":61:"))
            throw faults::entryOutside(m_lines.place());
        if (line.trimmed().isEmpty() || !m_hasEntry)
            return;
        QStringList &lines = m_field == Field::Text    ? m_text
                             : m_field == Field::Notes ? m_notes
                                                       : m_supplement;
        m_length += line.size();
        if (m_length > lineMax)
            throw faults::textTooLong(m_entry.place, lineMax);
        if (m_field != Field::Other)
            lines += line.toString();
    }

    void takeField(QStringView tag, QStringView value)
    {
        m_field = Field::Other;
        if (tag == u"86" || tag == u"NS") {
            m_field = tag == u"86" ? Field::Text : Field::Notes;
            return goOn(value);
        }
        finishEntry();
        const QStringView text = value.trimmed();
        if (tag == u"20") {
            finish();
        } else if (tag == u"25") {
            begin();
            m_part.account = text.toString();
        } else if (tag == u"60F" || tag == u"60M") {
            begin();
            m_part.opening = balance(text);
        } else if (tag == u"62F" || tag == u"62M") {
            takeClosing(text, tag == u"62M");
        } else if (tag == u"61") {
            takeEntry(text);
        } else if (tag == u"34F") {
            takeCurrency(text.left(3).toString());
        } else if (!isIgnored(tag)) {
            throw faults::unknownField(m_lines.place(), u':' + tag.toString() + u':');
        }
    }

    static bool isIgnored(QStringView tag)
    {
        static const QStringList tags{
            QStringLiteral("11"),  QStringLiteral("11S"), QStringLiteral("12"),
            QStringLiteral("13"),  QStringLiteral("13C"), QStringLiteral("13D"),
            QStringLiteral("21"),  QStringLiteral("28"),  QStringLiteral("28C"),
            QStringLiteral("64"),  QStringLiteral("65"),  QStringLiteral("90C"),
            QStringLiteral("90D"), QStringLiteral("940"), QStringLiteral("942")};
        return tags.contains(tag);
    }

    /// The account or the opening balance of a further statement may come without :20:.
    void begin()
    {
        if (m_part.opening || m_part.closing || !m_part.entries.empty())
            finish();
        if (!m_isOpen) {
            m_begin = m_lines.place();
            m_count.addPart(m_begin);
        }
        m_isOpen = true;
    }

    void finish()
    {
        finishEntry();
        // The last line of what was cut off may have lost digits.
        if (m_part.opening && !m_part.closing)
            throw faults::statementCutOff(m_lines.place(), m_begin.line);
        if (m_isOpen) {
            if (m_part.currency == numira::Currency())
                m_part.currency = m_options.currency;
            m_part.account = accountNumber(m_part.account, m_part.currency);
            m_parts.push_back(std::move(m_part));
        }
        m_part = {};
        m_isOpen = false;
    }

    internal::ToldBalance balance(QStringView text)
    {
        const auto told = internal::readMt940Balance(text, m_part.currency, m_lines.place());
        m_part.currency = told.amount.code();
        return told;
    }

    void takeClosing(QStringView text, bool goesOn)
    {
        if (!m_isOpen || m_part.closing)
            throw faults::unknownField(m_lines.place(), text.toString());
        m_part.closing = balance(text);
        if (goesOn)
            m_part.goesOn = m_lines.place();
    }

    void takeCurrency(const QString &code)
    {
        const auto currency = readCurrency(code, numira::Currency());
        if (!currency)
            throw faults::notACurrency(m_lines.place(), code);
        m_part.currency = *currency;
    }

    void takeEntry(QStringView text)
    {
        if (!m_isOpen || m_part.closing)
            throw faults::entryOutside(m_lines.place());
        if (m_part.currency == numira::Currency())
            m_part.currency = m_options.currency;
        if (m_part.currency == numira::Currency())
            throw faults::withoutCurrency(m_lines.place(), text.toString());
        const auto line = internal::readMt940Entry(text, m_part.currency, m_lines.place());
        m_entry = {m_lines.place(), line.booked, line.amount};
        m_entry.valueDate = line.valueDate;
        m_entry.text = line.reference;
        if (internal::identifies(line.bankReference))
            m_entry.bankId = line.bankReference;
        else if (!line.bankReference.isEmpty())
            m_entry.text += line.bankReference;
        m_part.pending += line.isExpected ? 1 : 0;
        m_isExpected = line.isExpected;
        m_hasEntry = true;
        m_field = Field::Entry;
    }

    /// References stand for the text where the bank gives none.
    void finishEntry()
    {
        if (!std::exchange(m_hasEntry, false))
            return;
        Mt940Text read =
            m_notes.isEmpty() ? internal::readMt940Text(m_text) : internal::readMt940Notes(m_notes);
        if (read.text.isEmpty() && read.payee.isEmpty())
            read.text = (m_entry.text + u' ' + m_supplement.join(u' ')).simplified();
        m_entry.payee = read.payee;
        m_entry.text = read.text;
        if (!m_isExpected) {
            m_count.add(m_entry);
            m_part.entries.push_back(std::move(m_entry));
        }
        m_text.clear();
        m_notes.clear();
        m_supplement.clear();
        m_length = 0;
    }

    LineCursor m_lines;
    const BankFileOptions &m_options;
    bool m_endsWithinLine;
    internal::EntryCount m_count;
    std::vector<StatementPart> m_parts;
    StatementPart m_part;
    bool m_isOpen = false;
    Place m_begin; ///< of the present statement
    Field m_field = Field::Other;
    StatementEntry m_entry;
    bool m_hasEntry = false;
    bool m_isExpected = false;
    QStringList m_text;
    QStringList m_notes;
    QStringList m_supplement;
    qsizetype m_length = 0; ///< of the entry's lines
};

} // namespace

std::vector<Statement> readMt940(const QByteArray &bytes, const QString &file,
                                 const BankFileOptions &options)
{
    const QString encoding = options.encoding ? *options.encoding : guessedEncoding(bytes);
    const QString text = decoded(bytes, file, encoding);
    return internal::joinedStatements(Mt940Reader(text, file, options).read());
}

} // namespace kiv::interchange

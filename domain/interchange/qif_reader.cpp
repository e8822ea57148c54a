// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/qif_reader.h"

#include "interchange/internal/description_count.h"
#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"

#include "interchange/draft.h"
#include "interchange/text_decoding.h"

#include "foundation/presentation.h"
#include "numira/error.h"

#include <QtCore/QRegularExpression>

namespace kiv::interchange {

namespace {

struct Part {
    QString category;
    QString memo;
    QString amount;
    Place place;
};

/// The fields of one record, as they are written.
struct Record {
    Place place;
    QString date = {};
    QString amount = {};
    QString sameAmount = {}; ///< some programs write the amount twice
    QString payee = {};
    QString memo = {};
    QString number = {};
    QString category = {};
    std::vector<Part> parts = {};
    QString fields = {}; ///< letters of the fields read so far, of the last part if there are parts
};

/// "1/31'26" is how some write 1/31/2026.
QString plainDate(QString text)
{
    text.remove(u' ');
    return text.replace(u'\'', u'/');
}

class QifReader {
public:
    QifReader(const QString &text, const QString &file)
        : m_lines(text, file), m_endsWithinLine(!text.endsWith(u'\n') && !text.endsWith(u'\r'))
    {
    }

    std::vector<Record> read()
    {
        while (m_lines.next()) {
            const QString line = m_lines.line().trimmed().toString();
            if (line.startsWith(u'!'))
                enter(line);
            else if (!line.isEmpty() && m_section == Section::None)
                throw faults::notQif(m_lines.place());
            else if (line == u"^")
                finish();
            else if (m_isInAccount && line.startsWith(u'N'))
                m_named = line.mid(1).trimmed();
            else if (!line.isEmpty() && m_section == Section::Transactions)
                takeField(line.front(), line.mid(1).trimmed());
            else if (isOfEntry(line))
                throw faults::entryOutside(m_lines.place());
        }
        // The last ^ may be missing, but a file that ends inside a line was cut off.
        if (!m_record.fields.isEmpty() && m_endsWithinLine)
            throw faults::entryCutOff(m_lines.place());
        finish();
        if (m_section == Section::None)
            throw faults::notQif({m_lines.place().file, 0});
        if (!m_hasStatement)
            throw faults::noStatement({m_lines.place().file, 0});
        return std::move(m_records);
    }

private:
    enum class Section { None, Transactions, Skipped };

    /// Whether the line can only belong to an entry. Lists of accounts and categories have
    /// no payees, no parts, and no number after T.
    static bool isOfEntry(const QString &line)
    {
        static const QRegularExpression pattern(QStringLiteral("^(?:[TU]\\s*[-+(]?[.,0-9]|[PS].)"));
        return pattern.match(line).hasMatch();
    }

    void enter(const QString &header)
    {
        const QString kind = header.mid(1).toLower().simplified();
        // Options for importing lists; the present section continues.
        if (kind.startsWith(u"option:") || kind.startsWith(u"clear:"))
            return;
        finish();
        if (QStringList{QStringLiteral("type:bank"), QStringLiteral("type:ccard"),
                        QStringLiteral("type:cash"), QStringLiteral("type:oth a"),
                        QStringLiteral("type:oth l")}
                .contains(kind))
            enterAccount(kind);
        else if (kind == u"account" || kind == u"type:cat" || kind == u"type:class")
            m_section = Section::Skipped;
        else
            throw faults::unsupported(m_lines.place(), header);
        m_isInAccount = kind == u"account";
        m_hasStatement = m_hasStatement || m_section == Section::Transactions;
    }

    void enterAccount(const QString &kind)
    {
        const QString account = kind + u'\n' + m_named;
        if (!m_records.empty() && account != m_account)
            throw faults::severalAccounts(m_lines.place());
        m_account = account;
        m_section = Section::Transactions;
    }

    void takeField(QChar field, const QString &value)
    {
        Record &record = m_record;
        if (record.fields.isEmpty())
            record.place = m_lines.place();
        // A repeated field means two entries without a ^ between them.
        if (!record.fields.contains(field))
            record.fields += field;
        else if (QStringLiteral("DTUPMNLE$").contains(field))
            throw faults::repeatedField(m_lines.place(), field + value);
        const auto part = [&]() -> Part & {
            if (record.parts.empty())
                throw faults::unknownField(m_lines.place(), field + value);
            return record.parts.back();
        };
        switch (field.unicode()) {
        case u'D':
            record.date = value;
            break;
        case u'T':
            record.amount = value;
            break;
        case u'U':
            record.sameAmount = value;
            break;
        case u'P':
            record.payee = value;
            break;
        case u'M':
            record.memo = value;
            break;
        case u'N':
            record.number = value;
            break;
        case u'L':
            record.category = value;
            break;
        case u'S':
            if (!record.parts.empty()) // the first one is the record's
                countEntry();
            record.parts.push_back({value, {}, {}, m_lines.place()});
            record.fields.remove(u'E').remove(u'$');
            break;
        case u'E':
            part().memo = value;
            break;
        case u'$':
            part().amount = value;
            break;
        case u'C': // its status
        case u'A': // an address
        case u'F': // to be paid back
        case u'%': // the share of a split
            break;
        default:
            throw faults::unknownField(m_lines.place(), field + value);
        }
    }

    void finish()
    {
        if (m_record.fields.isEmpty())
            return;
        countEntry();
        m_records.push_back(std::exchange(m_record, {}));
    }

    void countEntry()
    {
        if (++m_entries > transactionsMax)
            throw faults::tooManyTransactions(m_lines.place(), transactionsMax);
    }

    LineCursor m_lines;
    bool m_endsWithinLine;
    Section m_section = Section::None;
    bool m_hasStatement = false;
    bool m_isInAccount = false;
    QString m_named;   ///< name in the last !Account record
    QString m_account; ///< whose entries are read, by kind and name
    Record m_record;
    qsizetype m_entries = 0; ///< of the statement: records, and parts of them
    std::vector<Record> m_records;
};

/// The only format that fits all dates.
DateFormat formatOf(const std::vector<Record> &records, const Place &place)
{
    std::vector<DateFormat> fitting;
    for (const char *order : {"M/D/YYYY", "M/D/YY", "D/M/YYYY", "D/M/YY", "D.M.YYYY", "D.M.YY",
                              "YYYY-MM-DD", "D-M-YYYY", "YYYY/M/D"}) {
        const DateFormat format(QLatin1String(order), place);
        if (std::ranges::all_of(records, [&format](const Record &record) {
                return format.read(plainDate(record.date)).has_value();
            }))
            fitting.push_back(format);
    }
    // Two formats that read every date alike count as one.
    const auto agree = [&](const DateFormat &one, const DateFormat &other) {
        return std::ranges::all_of(records, [&](const Record &record) {
            return one.read(plainDate(record.date)) == other.read(plainDate(record.date));
        });
    };
    if (fitting.empty())
        return DateFormat(QStringLiteral("M/D/YYYY"), place);
    if (!agree(fitting.front(), fitting.back()))
        throw faults::ambiguousDates(records.front().place);
    return fitting.front();
}

class EntryMaker {
public:
    EntryMaker(const QifOptions &options, DateFormat format)
        : m_options(options), m_format(std::move(format))
    {
    }

    void add(const Record &record, std::vector<StatementEntry> &entries)
    {
        StatementEntry entry{record.place};
        const auto day = m_format.read(plainDate(record.date));
        if (record.date.isEmpty())
            throw faults::missingDate(record.place);
        if (!day)
            throw faults::notInDateFormat(record.place, record.date, m_format.text());
        entry.date = *day;
        entry.amount = amountOf(record);
        entry.text = joined({record.number, record.payee, record.memo}, record.place);
        setCategory(entry, record.category);
        if (record.parts.empty()) {
            entries.push_back(std::move(entry));
            return;
        }
        numira::Money sum(m_options.currency);
        for (const Part &part : record.parts) {
            StatementEntry piece = entry;
            piece.place = part.place;
            piece.amount = amountOf(part.amount, part.place);
            if (!part.memo.isEmpty())
                piece.text = joined({record.number, record.payee, part.memo}, part.place);
            setCategory(piece, part.category);
            sum += piece.amount;
            entries.push_back(std::move(piece));
        }
        if (sum != entry.amount)
            throw faults::splitsDiffer(record.place, foundation::toQString(sum),
                                       foundation::toQString(entry.amount));
    }

private:
    [[nodiscard]] numira::Money amountOf(const QString &text, const Place &place) const
    {
        return statementAmount(text, m_options.currency, m_options.decimalMark, place);
    }
    /// Many programs write the amount twice, some with more digits.
    [[nodiscard]] numira::Money amountOf(const Record &record) const
    {
        if (record.amount.isEmpty() && record.sameAmount.isEmpty())
            throw faults::missingAmount(record.place);
        const QString &text = record.amount.isEmpty() ? record.sameAmount : record.amount;
        const numira::Money amount = amountOf(text, record.place);
        if (!record.sameAmount.isEmpty() && amountOf(record.sameAmount, record.place) != amount)
            throw faults::amountsDiffer(record.place, record.amount, record.sameAmount);
        return amount;
    }
    /// Each part of a split repeats what the whole says.
    QString joined(QStringList texts, const Place &place)
    {
        texts.removeAll(QString());
        QString text = texts.join(u' ').simplified();
        m_descriptions.add(text, place);
        return text;
    }
    /// "[Savings]" is an account, "Food" a category; either may have a class: "Food/Trip".
    static void setCategory(StatementEntry &entry, const QString &text)
    {
        const qsizetype end = text.indexOf(u']');
        const bool isAccount = text.startsWith(u'[') && end > 0;
        entry.category =
            isAccount ? text.mid(1, end - 1).trimmed() : text.section(u'/', 0, 0).trimmed();
        entry.isTransfer = isAccount && !entry.category.isEmpty();
    }

    const QifOptions &m_options;
    DateFormat m_format;
    internal::DescriptionCount m_descriptions;
};

} // namespace

Statement readQif(const QByteArray &bytes, const QString &file, const QifOptions &options)
{
    const QString text = decoded(bytes, file, options.encoding.value_or(utf8Name));
    const std::vector<Record> records = QifReader(text, file).read();
    EntryMaker maker(options,
                     options.dateFormat ? *options.dateFormat : formatOf(records, {file, 0}));
    Statement statement{{}, options.currency, {}};
    for (const Record &record : records) {
        try {
            maker.add(record, statement.entries);
        } catch (const numira::Error &cause) {
            throw faults::tooLarge(record.place, cause);
        }
    }
    return statement;
}

} // namespace kiv::interchange

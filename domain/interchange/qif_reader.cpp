// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/qif_reader.h"

#include "interchange/internal/description_count.h"
#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"
#include "interchange/internal/statement_notices.h"

#include "interchange/draft.h"
#include "interchange/text_decoding.h"

#include "foundation/presentation.h"
#include "numira/error.h"

#include <QtCore/QRegularExpression>

#include <map>

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
    std::size_t account = 0;  ///< which of the file
    QString date = {};        ///< with four digits for the year at its end
    QString writtenDate = {}; ///< as it stands
    QString amount = {};
    QString sameAmount = {}; ///< some programs write the amount twice
    QString payee = {};
    QString memo = {};
    QString number = {};
    QString category = {};
    std::vector<Part> parts = {};
    QString fields = {}; ///< letters of the fields read so far, of the last part if there are parts
};

/// All that a file has.
struct QifFile {
    QStringList accounts; ///< their names, at least one
    std::vector<Record> records = {};
    QStringList notices = {};
};

/// The day with a year of four digits at its end. Old programs write blanks for zeros, and
/// years after 1999 behind an apostrophe: "9/15' 6", "1/ 1/94".
QString plainDate(QString text)
{
    const bool isRecent = text.contains(u'\'');
    text.remove(u' ').replace(u'\'', u'/');
    const qsizetype at =
        std::max({text.lastIndexOf(u'/'), text.lastIndexOf(u'.'), text.lastIndexOf(u'-')}) + 1;
    bool isNumber = false;
    const int year = text.mid(at).toInt(&isNumber);
    const bool isShort = text.size() - at == 2 || (text.size() - at == 1 && isRecent);
    if (isNumber && isShort && at <= 6)
        text = text.left(at) + QString::number(year + (isRecent || year < 70 ? 2000 : 1900));
    return text;
}

class QifReader {
public:
    QifReader(const QString &text, const QString &file)
        : m_lines(text, file), m_endsWithinLine(!text.endsWith(u'\n') && !text.endsWith(u'\r'))
    {
    }

    QifFile read()
    {
        while (m_lines.next()) {
            const QString line = m_lines.line().trimmed().toString();
            if (line.startsWith(u'!'))
                enter(line);
            else if (line.startsWith(u'#') && m_section == Section::None)
                notice(notices::commentsLeftOut());
            else if (!line.isEmpty() && m_section == Section::None)
                throw faults::notQif(m_lines.place());
            else if (line == u"^")
                finish();
            else if (m_isInAccount && line.startsWith(u'N'))
                m_named = line.mid(1).trimmed();
            else if (!line.isEmpty() && m_section == Section::Transactions)
                takeField(line.front(), line.mid(1).trimmed());
            else if (m_section == Section::Skipped && isOfEntry(line))
                throw faults::entryOutside(m_lines.place());
        }
        // The last ^ may be missing, but a file that ends inside a line was cut off.
        if (!m_record.fields.isEmpty() && m_endsWithinLine)
            throw faults::entryCutOff(m_lines.place());
        finish();
        if (m_section == Section::None)
            throw faults::notQif({m_lines.place().file, 0});
        if (!m_hasStatement && m_investments)
            throw faults::unsupported(*m_investments, QStringLiteral("!Type:Invst"));
        if (!m_hasStatement)
            throw faults::noStatement({m_lines.place().file, 0});
        if (m_investments)
            notice(notices::investmentsLeftOut());
        if (m_file.accounts.isEmpty())
            m_file.accounts += m_account;
        return std::move(m_file);
    }

private:
    struct KnownAccount {
        std::size_t number;
        QString kind;
    };
    enum class Section { None, Transactions, Skipped, Investments };

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
        static const QStringList kinds{QStringLiteral("type:bank"), QStringLiteral("type:ccard"),
                                       QStringLiteral("type:cash"), QStringLiteral("type:oth a"),
                                       QStringLiteral("type:oth l")};
        static const QStringList lists{QStringLiteral("account"), QStringLiteral("type:cat"),
                                       QStringLiteral("type:class"), QStringLiteral("type:tag")};
        static const QStringList others{QStringLiteral("type:invst"),
                                        QStringLiteral("type:security"),
                                        QStringLiteral("type:prices")};
        if (kinds.contains(kind)) {
            m_account = m_named;
            m_kind = kind;
            m_section = Section::Transactions;
        } else if (lists.contains(kind)) {
            m_section = Section::Skipped;
        } else if (others.contains(kind)) {
            m_section = Section::Investments;
            m_investments = m_investments ? m_investments : std::optional(m_lines.place());
        } else {
            throw faults::unsupported(m_lines.place(), header);
        }
        m_isInAccount = kind == u"account";
        m_hasStatement = m_hasStatement || m_section == Section::Transactions;
    }

    /// The account of the entries that follow. Accounts of two kinds may have one name, and a
    /// list without a name may be of any account.
    std::size_t accountOf(const Place &place)
    {
        const auto [found, isNew] =
            m_known.try_emplace(m_account, KnownAccount{m_known.size(), m_kind});
        if (isNew)
            m_file.accounts += m_account;
        if (found->second.kind != m_kind ||
            (m_known.size() > 1 && m_known.begin()->first.isEmpty()))
            throw faults::severalAccounts(place);
        return found->second.number;
    }

    void notice(const QString &text)
    {
        if (!m_file.notices.contains(text))
            m_file.notices += text;
    }

    void takeField(QChar field, const QString &value)
    {
        Record &record = m_record;
        if (record.fields.isEmpty())
            record.place = m_lines.place();
        if (field == u'D' && !record.parts.empty())
            return; // some programs repeat the day with each part
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
            record.date = plainDate(value);
            record.writtenDate = value;
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
        m_record.account = accountOf(m_record.place);
        m_file.records.push_back(std::exchange(m_record, {}));
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
    std::optional<Place> m_investments; ///< where the first ones begin
    QString m_named;                    ///< name in the last !Account record
    QString m_account;                  ///< whose entries are read
    QString m_kind;                     ///< of that account
    std::map<QString, KnownAccount> m_known;
    Record m_record;
    qsizetype m_entries = 0; ///< of the file: records, and parts of them
    QifFile m_file;
};

/// The only format that fits all dates.
DateFormat formatOf(const std::vector<Record> &records, const Place &place)
{
    std::vector<DateFormat> fitting;
    for (const char *order :
         {"M/D/YYYY", "D/M/YYYY", "D.M.YYYY", "YYYY-MM-DD", "D-M-YYYY", "M-D-YYYY", "YYYY/M/D"}) {
        const DateFormat format(QLatin1String(order), place);
        if (std::ranges::all_of(records, [&format](const Record &record) {
                return format.read(record.date).has_value();
            }))
            fitting.push_back(format);
    }
    // Two formats that read every date alike count as one.
    const auto agree = [&](const DateFormat &one, const DateFormat &other) {
        return std::ranges::all_of(records, [&](const Record &record) {
            return one.read(record.date) == other.read(record.date);
        });
    };
    if (fitting.empty())
        return DateFormat(QStringLiteral("M/D/YYYY"), place);
    if (!agree(fitting.front(), fitting.back()))
        throw faults::ambiguousDates(records.front().place);
    return fitting.front();
}

/// The format with four digits for the year, as `plainDate` writes it.
DateFormat withLongYear(const DateFormat &format, const Place &place)
{
    QString text = format.text();
    if (!text.contains(u"YYYY"))
        text.replace(QStringLiteral("YY"), QStringLiteral("YYYY"));
    return {text, place};
}

class EntryMaker {
public:
    EntryMaker(const QifOptions &options, DateFormat format)
        : m_options(options), m_format(std::move(format)), m_longFormat(withLongYear(m_format, {}))
    {
    }

    void add(const Record &record, std::vector<StatementEntry> &entries)
    {
        StatementEntry entry{record.place};
        if (record.date.isEmpty())
            throw faults::missingDate(record.place);
        const auto named = m_format.read(record.writtenDate);
        const auto day = named ? named : m_longFormat.read(record.date);
        if (!day)
            throw faults::notInDateFormat(record.place, record.writtenDate, m_format.text());
        entry.date = *day;
        entry.amount = amountOf(record);
        entry.payee = joined({record.payee}, record.place);
        entry.text = joined({record.number, record.memo}, record.place);
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
            m_descriptions.add(piece.payee, part.place);
            if (!part.memo.isEmpty())
                piece.text = joined({record.number, part.memo}, part.place);
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
    DateFormat m_longFormat;
    internal::DescriptionCount m_descriptions;
};

} // namespace

std::vector<Statement> readQif(const QByteArray &bytes, const QString &file,
                               const QifOptions &options)
{
    const QString encoding = options.encoding ? *options.encoding : guessedEncoding(bytes);
    const QString text = decoded(bytes, file, encoding);
    const QifFile read = QifReader(text, file).read();
    EntryMaker maker(options,
                     options.dateFormat ? *options.dateFormat : formatOf(read.records, {file, 0}));
    std::vector<Statement> statements;
    for (const QString &account : read.accounts)
        statements.push_back({account, options.currency, {}});
    for (const Record &record : read.records) {
        try {
            maker.add(record, statements[record.account].entries);
        } catch (const numira::Error &cause) {
            throw faults::tooLarge(record.place, cause);
        }
    }
    statements.front().notices = read.notices;
    return statements;
}

} // namespace kiv::interchange

// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/journal_parser.h"

#include "interchange/internal/faults.h"

#include "numira/error.h"

#include <QtCore/QObject>
#include <QtCore/QScopeGuard>

namespace kiv::interchange::internal {

namespace {

constexpr int depthMax = 8;
constexpr int includesMax = 1000;

bool isBlank(QStringView line)
{
    return line.trimmed().isEmpty();
}

bool isComment(QStringView line)
{
    return !line.isEmpty() && QStringLiteral(";#%|*").contains(line.front());
}

bool isIndented(QStringView line)
{
    return !line.isEmpty() && line.front().isSpace();
}

/// The text behind a semicolon, which is taken off with it.
QString takeComment(QString &text)
{
    const qsizetype at = text.indexOf(u';');
    if (at < 0)
        return {};
    const QString comment = text.mid(at + 1).trimmed();
    text = text.left(at).trimmed();
    return comment;
}

/// The path of a file that is named in another one.
QString nameBeside(const QString &file, const QString &path)
{
    return path.startsWith(u'/') ? path : file.left(file.lastIndexOf(u'/') + 1) + path;
}

/// "name: value" pairs of a comment, with commas between them.
void addTags(const QString &comment, std::map<QString, QString> &tags)
{
    for (const QString &part : comment.split(u',')) {
        const qsizetype colon = part.indexOf(u':');
        if (colon > 0)
            tags.insert_or_assign(part.left(colon).trimmed(), part.mid(colon + 1).trimmed());
    }
}

accounting::TransactionStatuses takeStatus(QStringView &rest)
{
    using enum accounting::TransactionStatuses;
    const auto status = rest.startsWith(u'*') ? Reconciled : rest.startsWith(u'!') ? Cleared : None;
    if (status != None)
        rest = rest.sliced(1);
    skipBlanks(rest);
    return status;
}

/// The account's name, which ends at a tab or at two blanks.
QString takeAccountName(QStringView &rest)
{
    qsizetype end = 0;
    while (end < rest.size() && rest[end] != u'\t' &&
           !(rest[end] == u' ' && (end + 1 == rest.size() || rest[end + 1].isSpace())))
        ++end;
    const QString name = rest.first(end).toString().simplified();
    rest = rest.sliced(end);
    skipBlanks(rest);
    return name;
}

} // namespace

const QString &JournalParser::ownHeader()
{
    static const QString header = QStringLiteral("; kiv journal, version 1");
    return header;
}

void JournalParser::parse(const QByteArray &bytes, const QString &file, int depth)
{
    const QString text = decoded(bytes, file, m_options.encoding);
    const int outer = std::exchange(m_depth, depth);
    m_isOwn = text.startsWith(ownHeader());
    LineCursor lines(text, file);
    std::optional<Block> block;
    std::optional<Place> skipping; // a block comment
    const auto finish = [&] {
        if (block)
            take(*std::exchange(block, std::nullopt));
    };
    while (lines.next()) {
        const QStringView line = lines.line();
        if (skipping) {
            if (line.trimmed() == u"end comment" || line.trimmed() == u"end test")
                skipping.reset();
        } else if (isIndented(line)) {
            if (isBlank(line))
                continue;
            if (block && static_cast<qsizetype>(block->lines.size()) > transactionsMax)
                throw faults::tooManyTransactions(lines.place(), transactionsMax);
            if (block)
                block->lines.emplace_back(lines.place(), line.trimmed().toString());
            else if (!isComment(line.trimmed()))
                throw faults::strayLine(lines.place());
        } else {
            finish();
            if (line.trimmed() == u"comment" || line.trimmed() == u"test")
                skipping = lines.place();
            else if (!line.isEmpty() && !isComment(line))
                block = Block{lines.place(), line.trimmed().toString()};
        }
    }
    finish();
    if (skipping)
        throw faults::notClosed(*skipping, QStringLiteral("comment"));
    m_depth = outer;
}

void JournalParser::take(const Block &block)
try {
    const QChar first = block.head.front();
    if (first >= u'0' && first <= u'9')
        takeEntry(block);
    else if (first == u'=')
        takeAutomated(block);
    else if (first == u'~')
        m_sink.notice(QObject::tr("Periodic transactions are left out."));
    else
        takeDirective(block);
} catch (const numira::Error &cause) {
    throw faults::tooLarge(block.place, cause);
}

// ---- directives ----------------------------------------------------------------

void JournalParser::takeDirective(const Block &block)
{
    QString rest = block.head;
    // Directives once began with "!" or "@".
    if (rest.startsWith(u'!') || rest.startsWith(u'@'))
        rest = rest.mid(1);
    const auto blank = std::ranges::find_if(rest, [](QChar c) { return c.isSpace(); });
    const QString word = rest.left(blank - rest.begin());
    rest = rest.mid(word.size()).trimmed();
    if (word == u"account") {
        takeAccount(block, rest);
    } else if (word == u"commodity" || word == u"D") {
        takeCommodity(block, rest);
    } else if (word == u"include") {
        takeInclude(block, rest);
    } else if (word == u"apply" || word == u"end") {
        takeTagging(block, word, rest);
    } else if (word == u"P") {
        m_sink.notice(QObject::tr("Market prices are left out; they change no balance."));
    } else if (word == u"decimal-mark" && (rest == u"." || rest == u",")) {
        m_quantities.setMark(static_cast<DecimalMark>(rest.front().unicode()));
    } else if (word == u"Y" || word == u"year" || (word.startsWith(u'Y') && rest.isEmpty())) {
        bool isNumber = false;
        m_year = (rest.isEmpty() ? word.mid(1) : rest).toInt(&isNumber);
        if (!isNumber || *m_year < 1 || *m_year > 9999)
            throw faults::unknownDirective(block.place, block.head);
    } else if (word != u"payee" && word != u"tag" && word != u"N") {
        // Those three only declare what may be written.
        throw faults::unknownDirective(block.place, block.head);
    }
}

void JournalParser::takeAccount(const Block &block, const QString &name)
{
    QString account = name;
    std::map<QString, QString> tags;
    addTags(takeComment(account), tags);
    for (const auto &[place, line] : block.lines) {
        if (isComment(line))
            addTags(line.mid(1).trimmed(), tags);
        else if (!line.startsWith(u"note ") && !line.startsWith(u"payee ") && line != u"default")
            throw faults::unknownDirective(place, line);
    }
    if (!m_isOwn) {
        tags.erase(QStringLiteral("number"));
        tags.erase(QStringLiteral("currency"));
    }
    m_sink.declare(account.simplified(), tags, block.place);
}

void JournalParser::takeCommodity(const Block &block, const QString &sample)
{
    QString amount = sample;
    takeComment(amount);
    const auto hasDigits = [](const QString &text) {
        return std::ranges::any_of(text, [](QChar c) { return c.isDigit(); }) &&
               !text.startsWith(u'"');
    };
    if (hasDigits(amount)) {
        const QString commodity = m_quantities.declare(amount, block.place);
        if (block.head.startsWith(u"D"))
            m_quantities.setDefault(commodity);
    }
    for (const auto &[place, line] : block.lines) {
        if (line.startsWith(u"format "))
            m_quantities.declare(QStringView(line).sliced(7).trimmed(), place);
        else if (!isComment(line) && !line.startsWith(u"note ") && line != u"nomarket" &&
                 line != u"default")
            throw faults::unknownDirective(place, line);
    }
}

void JournalParser::takeInclude(const Block &block, const QString &path)
{
    if (!m_options.include)
        throw faults::includeRefused(block.place, path, QObject::tr("there is no folder for it"));
    // Each of eight files may include the next one many times.
    if (m_depth >= depthMax || ++m_included > includesMax)
        throw faults::includeRefused(block.place, path,
                                     QObject::tr("files include each other too deeply"));
    const bool wasOwn = m_isOwn;
    parse(m_options.include(path, block.place), nameBeside(block.place.file, path), m_depth + 1);
    m_isOwn = wasOwn;
}

void JournalParser::takeTagging(const Block &block, const QString &word, const QString &rest)
{
    // Every transaction copies them.
    constexpr qsizetype appliedTagsMax = 100;
    if (m_appliedTags.size() > appliedTagsMax)
        throw faults::nestedTooDeeply(block.place);
    if (word == u"apply" && rest.startsWith(u"tag "))
        m_appliedTags += rest.mid(4).trimmed();
    else if (word == u"end" && (rest.isEmpty() || rest == u"tag" || rest == u"apply tag") &&
             !m_appliedTags.isEmpty())
        m_appliedTags.removeLast();
    else
        throw faults::unknownDirective(block.place, block.head);
}

// ---- entries -------------------------------------------------------------------

QDate JournalParser::takeDate(QStringView &rest, const Place &place) const
{
    qsizetype length = 0;
    while (length < rest.size() &&
           (rest[length].isDigit() || QStringLiteral("-/.").contains(rest[length])))
        ++length;
    const QString text = rest.first(length).toString();
    rest = rest.sliced(length);
    const QChar separator = text.contains(u'-') ? u'-' : text.contains(u'/') ? u'/' : u'.';
    QStringList parts = text.split(separator);
    if (parts.size() == 2 && m_year)
        parts.prepend(QString::number(*m_year));
    if (parts.size() == 3 && parts[0].size() == 4) {
        const QDate date(parts[0].toInt(), parts[1].toInt(), parts[2].toInt());
        if (date.isValid())
            return date;
    }
    throw faults::notADate(place, text, QStringLiteral("YYYY-MM-DD"));
}

void JournalParser::takeEntry(const Block &block)
{
    Entry entry{block.place};
    QStringView rest = block.head;
    entry.date = takeDate(rest, block.place);
    if (rest.startsWith(u'=')) {
        rest = rest.sliced(1);
        (void)takeDate(rest, block.place);
        m_sink.notice(QObject::tr("Second days of transactions are left out."));
    }
    if (!rest.isEmpty() && !rest.front().isSpace())
        throw faults::unknownDirective(block.place, block.head);
    skipBlanks(rest);
    entry.status = takeStatus(rest);
    QString code;
    if (rest.startsWith(u'(') && rest.contains(u')')) {
        const qsizetype end = rest.indexOf(u')');
        code = rest.sliced(1, end - 1).trimmed().toString();
        rest = rest.sliced(end + 1);
    }
    entry.description = rest.toString().trimmed();
    const QString comment = takeComment(entry.description);
    if (!code.isEmpty() && !m_isOwn)
        entry.description = (u'(' + code + QStringLiteral(") ") + entry.description).trimmed();
    entry.comments += comment;
    entry.comments += m_appliedTags;
    addPostings(block, entry);
    m_sink.add(std::move(entry));
}

void JournalParser::takeAutomated(const Block &block)
{
    QString pattern = block.head.mid(1).trimmed();
    takeComment(pattern);
    if (pattern.size() > 1 && pattern.startsWith(u'/') && pattern.endsWith(u'/'))
        pattern = pattern.mid(1, pattern.size() - 2);
    else if (pattern.isEmpty() || pattern.contains(u' ') || pattern.contains(u'/') ||
             pattern.startsWith(u'('))
        throw faults::unsupported(block.place, block.head);
    Entry entry{block.place};
    m_quantities.setUsesDefault(false);
    const auto restore = qScopeGuard([this] { m_quantities.setUsesDefault(true); });
    addPostings(block, entry);
    m_sink.add(AutomatedEntry{pattern, std::move(entry)});
}

void JournalParser::addPostings(const Block &block, Entry &entry) const
{
    for (const auto &[place, line] : block.lines) {
        if (isComment(line) && line.front() != u'*' && line.front() != u'|') {
            const QString comment = line.mid(1).trimmed();
            (entry.postings.empty() ? entry.comments : entry.postings.back().comments) += comment;
        } else {
            entry.postings.push_back(readPosting(place, line));
            Posting &posting = entry.postings.back();
            if (posting.status == accounting::TransactionStatuses::None)
                posting.status = entry.status;
        }
    }
}

Posting JournalParser::readPosting(const Place &place, QStringView line) const
{
    Posting posting{place};
    posting.status = takeStatus(line);
    posting.account = takeAccountName(line);
    const auto isWithin = [&posting](QChar begin, QChar end) {
        return posting.account.startsWith(begin) && posting.account.endsWith(end) &&
               posting.account.size() > 1;
    };
    if (isWithin(u'(', u')'))
        posting.kind = PostingKind::Virtual;
    else if (isWithin(u'[', u']'))
        posting.kind = PostingKind::BalancedVirtual;
    if (posting.kind != PostingKind::Real)
        posting.account = posting.account.mid(1, posting.account.size() - 2).trimmed();
    if (posting.account.isEmpty())
        throw faults::noAccount(place);
    readAmounts(line, posting);
    return posting;
}

void JournalParser::readAmounts(QStringView rest, Posting &posting) const
{
    if (rest.startsWith(u'*')) // a multiplier of an automated transaction
        rest = rest.sliced(1);
    if (!rest.isEmpty() && rest.front() != u';' && rest.front() != u'=') {
        if (rest.startsWith(u'('))
            throw faults::unsupported(posting.place, rest.toString());
        posting.amount = m_quantities.read(rest, posting.place);
        skipBlanks(rest);
        readCost(rest, posting);
    }
    skipBlanks(rest);
    if (rest.startsWith(u'=')) {
        rest = rest.sliced(1);
        if (rest.startsWith(u'=') || rest.startsWith(u'*'))
            throw faults::unsupported(posting.place, u'=' + rest.toString());
        posting.assertion = m_quantities.read(rest, posting.place);
        skipBlanks(rest);
    }
    if (rest.startsWith(u';'))
        posting.comments += rest.sliced(1).trimmed().toString();
    else if (!rest.isEmpty()) // lots, among others
        throw faults::unsupported(posting.place, rest.toString());
}

void JournalParser::readCost(QStringView &rest, Posting &posting) const
{
    if (!rest.startsWith(u'@'))
        return;
    const bool isTotal = rest.startsWith(u"@@");
    rest = rest.sliced(isTotal ? 2 : 1);
    Quantity price = m_quantities.read(rest, posting.place);
    const Quantity &amount = *posting.amount;
    if (!isTotal)
        price.number = amount.number * price.number;
    else if ((amount.number.sign() < 0) != (price.number.sign() < 0))
        price.number = -price.number;
    posting.cost = price;
}

} // namespace kiv::interchange::internal

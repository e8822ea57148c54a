// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/journal_parser.h"

#include "interchange/internal/faults.h"

#include "numira/error.h"

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>

namespace kiv::interchange::internal {

namespace {

constexpr int depthMax = 8;
constexpr int includesMax = 1000;
/// Of what stands in place of or before each account's name, which postings copy.
constexpr qsizetype nameMax = 200;

bool isBlank(QStringView line)
{
    return line.trimmed().isEmpty();
}

bool isComment(QStringView line)
{
    return QStringLiteral(";#%|*").contains(line.front());
}

bool isIndented(QStringView line)
{
    return !line.isEmpty() && line.front().isSpace();
}

/// Whether a line below a declaration says what is of no concern here.
bool isRemark(const QString &line)
{
    static const QRegularExpression form(
        QStringLiteral("^(?:;|(?:note|payee) |(?:nomarket|default)$)"));
    return form.match(line).hasMatch();
}

/// The text behind a semicolon, which is taken off with it.
QString takeComment(QString &text)
{
    const qsizetype at = text.indexOf(u';');
    if (at < 0)
        return {};
    QString comment = text.mid(at + 1).trimmed();
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
           !(rest[end] == u' ' && rest[end + 1].isSpace())) // no line ends with a blank
        ++end;
    QString name = rest.first(end).toString().simplified();
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

void JournalParser::parse(const QByteArray &bytes, const QString &file)
{
    const QString text = decoded(bytes, file, m_options.encoding);
    m_settings.isOwn = text.startsWith(ownHeader());
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
    static const QRegularExpression year(QStringLiteral("^(?:year\\s+|Y\\s*)([1-9][0-9]{3})$"));
    const auto ofYear = year.match(rest);
    rest = rest.mid(word.size()).trimmed();
    if (word == u"account") {
        takeAccount(block, rest);
    } else if (word == u"commodity" || word == u"D") {
        takeCommodity(block, word == u"D", rest);
    } else if (word == u"include") {
        takeInclude(block, rest);
    } else if (word == u"apply") {
        takeApply(block, rest);
    } else if (word == u"end") {
        takeEnd(block, rest);
    } else if (word == u"alias") {
        takeAlias(block.place, rest.section(u'=', 0, 0), rest.section(u'=', 1));
    } else if (word == u"P") {
        m_sink.notice(QObject::tr("Market prices are left out; they change no balance."));
    } else if (word == u"decimal-mark" && (rest == u"." || rest == u",")) {
        m_settings.amounts.mark = static_cast<DecimalMark>(rest.front().unicode());
    } else if (ofYear.hasMatch()) {
        m_settings.year = ofYear.captured(1).toInt();
    } else if (word == u"payee" || word == u"tag" || word == u"N") {
        // They only declare what may be written, unless an alias stands below.
        for (const auto &[place, line] : block.lines) {
            if (!isRemark(line))
                throw faults::unknownDirective(place, line);
        }
    } else {
        throw faults::unknownDirective(block.place, block.head);
    }
}

void JournalParser::takeAccount(const Block &block, const QString &name)
{
    QString account = name;
    std::map<QString, QString> tags;
    addTags(takeComment(account), tags);
    for (const auto &[place, line] : block.lines) {
        if (line.startsWith(u';'))
            addTags(line.mid(1).trimmed(), tags);
        else if (line.startsWith(u"alias "))
            takeAlias(place, line.mid(6), account);
        else if (!isRemark(line))
            throw faults::unknownDirective(place, line);
    }
    if (!m_settings.isOwn) {
        tags.erase(QStringLiteral("number"));
        tags.erase(QStringLiteral("currency"));
    }
    m_sink.declare(fullName(account.simplified()), tags, block.place);
}

void JournalParser::takeCommodity(const Block &block, bool isDefault, const QString &sample)
{
    QString amount = sample;
    takeComment(amount);
    // A name in quotes may have digits, too.
    static const QRegularExpression withNumber(QStringLiteral("^(?:\"[^\"]*\")?[^\"]*[0-9]"));
    if (isDefault)
        m_settings.amounts.commodity = m_quantities.declare(amount, block.place);
    else if (withNumber.match(amount).hasMatch())
        m_quantities.declare(amount, block.place);
    for (const auto &[place, line] : block.lines) {
        if (line.startsWith(u"format "))
            m_quantities.declare(QStringView(line).sliced(7).trimmed(), place);
        else if (!isRemark(line))
            throw faults::unknownDirective(place, line);
    }
}

void JournalParser::takeInclude(const Block &block, const QString &path)
{
    if (!m_options.include)
        throw faults::includeRefused(block.place, path, QObject::tr("there is no folder for it"));
    if (m_settings.depth >= depthMax)
        throw faults::includeRefused(block.place, path,
                                     QObject::tr("files include each other too deeply"));
    // Each of eight files may include the next one many times.
    if (++m_included > includesMax)
        throw faults::includeRefused(
            block.place, path,
            QObject::tr("a journal includes no more than %1 files").arg(includesMax));
    const Settings outer = m_settings;
    ++m_settings.depth;
    parse(m_options.include(path, block.place), nameBeside(block.place.file, path));
    m_settings = outer;
}

void JournalParser::takeApply(const Block &block, const QString &rest)
{
    // Every transaction copies them.
    constexpr std::size_t appliedMax = 100;
    const QString kind = rest.section(u' ', 0, 0);
    const QString value = rest.mid(kind.size()).trimmed();
    if (m_settings.applied.size() >= appliedMax)
        throw faults::nestedTooDeeply(block.place);
    if (value.isEmpty() || (kind != u"tag" && kind != u"account"))
        throw faults::unknownDirective(block.place, block.head);
    m_settings.applied.push_back({kind, value});
    // Which of an alias and a parent comes first is not the same everywhere.
    if (kind == u"account" && (!m_aliases.empty() || fullName({}).size() > nameMax))
        throw faults::unsupported(block.place, block.head);
}

void JournalParser::takeEnd(const Block &block, const QString &rest)
{
    if (rest == u"aliases")
        return m_aliases.clear();
    const QString kind = rest.startsWith(u"apply") ? rest.mid(5).trimmed() : rest;
    if (m_settings.applied.empty() || (!kind.isEmpty() && kind != m_settings.applied.back().kind))
        throw faults::unknownDirective(block.place, block.head);
    m_settings.applied.pop_back();
}

void JournalParser::takeAlias(const Place &place, const QString &alias, const QString &account)
{
    const QString name = alias.simplified();
    const QString target = account.simplified();
    const bool isPattern = name.startsWith(u'/');
    if (name.isEmpty() || target.isEmpty() || isPattern || target.size() > nameMax ||
        isApplied(QStringLiteral("account")))
        throw faults::unsupported(place, QStringLiteral("alias ") + alias);
    m_aliases.insert_or_assign(name, target);
}

bool JournalParser::isApplied(const QString &kind) const
{
    return std::ranges::find(m_settings.applied, kind, &Applied::kind) != m_settings.applied.end();
}

QString JournalParser::fullName(const QString &name) const
{
    QString parents;
    for (const Applied &applied : m_settings.applied)
        parents += applied.kind == u"account" ? applied.value + u':' : QString();
    // An alias stands for an account or for one of its parents; the longest counts.
    constexpr int levelsMax = 100;
    QString full = parents + name;
    qsizetype end = m_aliases.empty() ? -1 : 0;
    for (int level = 0; level < levelsMax && end >= 0; ++level) {
        end = name.indexOf(u':', end + 1);
        const auto alias = m_aliases.find(end < 0 ? name : name.left(end));
        if (alias != m_aliases.end())
            full = alias->second + (end < 0 ? QString() : name.mid(end));
    }
    return full;
}

// ---- entries -------------------------------------------------------------------

namespace {

/// A day, of the year given when it is written without one.
QDate takeDate(QStringView &rest, std::optional<int> year, const Place &place)
{
    qsizetype length = 0;
    while (length < rest.size() &&
           (rest[length].isDigit() || QStringLiteral("-/.").contains(rest[length])))
        ++length;
    const QString text = rest.first(length).toString();
    rest = rest.sliced(length);
    const QChar separator = text.contains(u'-') ? u'-' : text.contains(u'/') ? u'/' : u'.';
    QStringList parts = text.split(separator);
    if (parts.size() == 2 && year)
        parts.prepend(QString::number(*year));
    if (parts.size() == 3 && parts[0].size() == 4) {
        const QDate date(parts[0].toInt(), parts[1].toInt(), parts[2].toInt());
        if (date.isValid())
            return date;
    }
    throw faults::notADate(place, text, QStringLiteral("YYYY-MM-DD"));
}

} // namespace

void JournalParser::takeEntry(const Block &block)
{
    Entry entry{block.place};
    QStringView rest = block.head;
    entry.date = takeDate(rest, m_settings.year, block.place);
    if (rest.startsWith(u'=')) {
        rest = rest.sliced(1);
        (void)takeDate(rest, entry.date.year(), block.place);
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
    if (!code.isEmpty() && !m_settings.isOwn)
        entry.description = (u'(' + code + QStringLiteral(") ") + entry.description).trimmed();
    entry.comments += comment;
    for (const Applied &applied : m_settings.applied) {
        if (applied.kind == u"tag")
            entry.comments += applied.value;
    }
    addPostings(block, entry);
    m_sink.add(std::move(entry));
}

void JournalParser::takeAutomated(const Block &block)
{
    QString pattern = block.head.mid(1).trimmed();
    takeComment(pattern);
    // A sign, a quote, a blank or a word like "desc:" makes it a query of something
    // else than one account's name, which would never fit one.
    static const QRegularExpression form(QStringLiteral(
        "^(?:/([^/]+)/"
        "|(?!(?:not|any|all|expr|acct|amt|code|cur|date2?|depth|desc|inacct|note|payee|"
        "real|status|tag|type):)([^\\s/\"'&@%#=!(][^\\s/\"'&]*))$"));
    const auto match = form.match(pattern);
    if (!match.hasMatch())
        throw faults::unsupported(block.place, block.head);
    Entry entry{block.place};
    m_settings.amounts.usesDefault = false;
    addPostings(block, entry);
    m_settings.amounts.usesDefault = true;
    m_sink.add(AutomatedEntry{match.captured(1) + match.captured(2), std::move(entry)});
}

void JournalParser::addPostings(const Block &block, Entry &entry) const
{
    for (const auto &[place, line] : block.lines) {
        if (line.startsWith(u';')) {
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
        return posting.account.startsWith(begin) && posting.account.endsWith(end);
    };
    if (isWithin(u'(', u')'))
        posting.kind = PostingKind::Virtual;
    else if (isWithin(u'[', u']'))
        posting.kind = PostingKind::BalancedVirtual;
    if (posting.kind != PostingKind::Real)
        posting.account = posting.account.mid(1, posting.account.size() - 2).trimmed();
    if (posting.account.isEmpty())
        throw faults::noAccount(place);
    posting.account = fullName(posting.account);
    readAmounts(line, posting);
    return posting;
}

void JournalParser::readAmounts(QStringView rest, Posting &posting) const
{
    if (!rest.isEmpty() && rest.front() != u';' && rest.front() != u'=') {
        if (rest.startsWith(u'('))
            throw faults::unsupported(posting.place, rest.toString());
        const QStringView whole = rest;
        const bool isMultiplier = rest.startsWith(u'*'); // of an automated transaction
        rest = rest.sliced(isMultiplier ? 1 : 0);
        posting.amount = m_quantities.read(rest, posting.place);
        if (isMultiplier && !posting.amount->commodity.isEmpty())
            throw faults::unsupported(posting.place, whole.toString());
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
    const QString whole = rest.toString();
    const bool isTotal = rest.startsWith(u"@@");
    rest = rest.sliced(isTotal ? 2 : 1);
    Quantity price = m_quantities.read(rest, posting.place);
    if (price.number.sign() < 0)
        throw faults::unsupported(posting.place, whole);
    const numira::Decimal &amount = posting.known().number;
    if (!isTotal)
        price.number = amount * price.number;
    else if (amount.sign() < 0)
        price.number = -price.number;
    posting.cost = price;
}

} // namespace kiv::interchange::internal

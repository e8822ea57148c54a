// SPDX-License-Identifier: GPL-3.0-or-later
// JournalParser: the directives
#include "interchange/internal/journal_parser.h"

#include "interchange/internal/faults.h"
#include "interchange/internal/journal_faults.h"
#include "interchange/internal/limits.h"

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>

namespace kiv::interchange::internal {

namespace {

constexpr int depthMax = 8;
constexpr int includesMax = 1000;
/// The longest alias target or applied parent; postings copy it.
constexpr qsizetype nameMax = 200;
/// Levels of an account's name that aliases are looked up for.
constexpr int levelsMax = 100;

/// Whether a line below a declaration can be ignored.
bool isRemark(QStringView line)
{
    static const QRegularExpression form(
        QStringLiteral("^(?:;|(?:note|payee) |(?:nomarket|default)$)"));
    return form.match(line).hasMatch();
}

/// The path of a file that is named in another one.
QString nameBeside(const QString &file, const QString &path)
{
    return path.startsWith(u'/') ? path : file.left(file.lastIndexOf(u'/') + 1) + path;
}

/// Adds the "name: value" pairs of a comment that describe an account. Commas separate
/// them.
void addTags(const QString &comment, std::map<QString, QString> &tags)
{
    static const QStringList known{QStringLiteral("type"), QStringLiteral("number"),
                                   QStringLiteral("currency")};
    for (const QString &part : comment.split(u',')) {
        const qsizetype colon = part.indexOf(u':');
        const QString name = part.left(std::max<qsizetype>(colon, 0)).trimmed();
        if (known.contains(name))
            tags.insert_or_assign(name, part.mid(colon + 1).trimmed());
    }
}

} // namespace

void JournalParser::takeDirective(Block &block)
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
        m_books.notice(QObject::tr("Market prices are skipped; they change no balance."));
    } else if (word == u"decimal-mark" && (rest == u"." || rest == u",")) {
        m_settings.amounts.mark = static_cast<DecimalMark>(rest.front().unicode());
    } else if (ofYear.hasMatch()) {
        m_settings.year = ofYear.captured(1).toInt();
    } else if (word == u"payee" || word == u"tag") {
        takeRemarks(block); // they only declare what may be written
    } else if (word != u"N") {
        throw faults::unknownDirective(block.place, block.head);
    }
}

void JournalParser::takeRemarks(Block &block)
{
    for (const auto &[place, line] : block.takeLines()) {
        if (!isRemark(line))
            throw faults::unknownDirective(place, line.toString());
    }
}

void JournalParser::takeAccount(Block &block, const QString &name)
{
    QString account = name;
    std::map<QString, QString> tags;
    addTags(takeComment(account), tags);
    if (++m_declared > limits::accountsMax)
        throw faults::tooManyAccounts(block.place, limits::accountsMax);
    for (const auto &[place, line] : block.takeLines()) {
        if (line.startsWith(u';'))
            addTags(line.sliced(1).trimmed().toString(), tags);
        else if (line.startsWith(u"alias "))
            takeAlias(place, line.sliced(6).toString(), account);
        else if (!isRemark(line))
            throw faults::unknownDirective(place, line.toString());
        m_hasPayees = m_hasPayees || line.startsWith(u"payee ");
    }
    if (!m_settings.isOwn) {
        tags.erase(QStringLiteral("number"));
        tags.erase(QStringLiteral("currency"));
    }
    m_books.declare(fullName(account.simplified(), block.place), tags, block.place);
}

void JournalParser::takeCommodity(Block &block, bool isDefault, const QString &sample)
{
    QString amount = sample;
    takeComment(amount);
    // A name in quotes may have digits, too.
    static const QRegularExpression withNumber(QStringLiteral("^(?:\"[^\"]*\")?[^\"]*[0-9]"));
    if (isDefault)
        m_settings.amounts.commodity = m_quantities.declare(amount, block.place);
    else if (withNumber.match(amount).hasMatch())
        m_quantities.declare(amount, block.place);
    if (isDefault)
        return; // what stands below would belong to nothing
    for (const auto &[place, line] : block.takeLines()) {
        if (line.startsWith(u"format "))
            m_quantities.declare(line.sliced(7).trimmed(), place);
        else if (!isRemark(line))
            throw faults::unknownDirective(place, line.toString());
    }
}

void JournalParser::takeInclude(const Block &block, const QString &path)
{
    if (!m_options.include)
        throw faults::includeWithoutFolder(block.place, path);
    if (m_settings.depth >= depthMax)
        throw faults::includedTooDeeply(block.place, path);
    // The depth alone is no limit: each file may include the next one many times.
    if (++m_included > includesMax)
        throw faults::tooManyIncludes(block.place, path, includesMax);
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
    // Programs differ on whether aliases or applied parents come first.
    if (kind == u"account" && (!m_aliases.empty() || fullName({}, block.place).size() > nameMax))
        throw faults::unsupported(block.place, block.head);
}

void JournalParser::takeEnd(const Block &block, const QString &rest)
{
    if (rest == u"aliases") {
        m_settings.aliases.clear();
        return m_aliases.clear();
    }
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
        isApplied(QStringLiteral("account")) || m_aliasOrder >= limits::aliasesMax)
        throw faults::unsupported(place, QStringLiteral("alias ") + alias);
    m_settings.aliases[name] = m_aliases[name] = {target, ++m_aliasOrder};
}

QString JournalParser::withWholeOrRoot(const Aliases &aliases, const QString &name)
{
    const qsizetype colon = name.indexOf(u':');
    if (const auto whole = aliases.find(name); whole != aliases.end())
        return whole->account;
    const auto root = colon < 0 ? aliases.end() : aliases.find(name.left(colon));
    return root == aliases.end() ? name : root->account + name.mid(colon);
}

QString JournalParser::withLatest(const Aliases &aliases, QString name)
{
    // Each alias applies to the result of the later ones. Two steps show whether the result
    // differs from that of one.
    std::size_t order = std::numeric_limits<std::size_t>::max();
    for (int step = 0; step < 2; ++step) {
        const Alias *latest = nullptr;
        qsizetype length = 0;
        qsizetype end = 0;
        for (int level = 0; level < levelsMax && end >= 0; ++level) {
            end = name.indexOf(u':', end + 1);
            const auto alias = aliases.find(end < 0 ? name : name.left(end));
            if (alias != aliases.end() && alias->order < order &&
                (!latest || alias->order > latest->order)) {
                latest = &*alias;
                length = end < 0 ? name.size() : end;
            }
        }
        if (!latest)
            break;
        order = latest->order;
        name = latest->account + name.mid(length);
    }
    return name;
}

bool JournalParser::isApplied(const QString &kind) const
{
    return std::ranges::find(m_settings.applied, kind, &Applied::kind) != m_settings.applied.end();
}

QString JournalParser::fullName(const QString &name, const Place &place) const
{
    QString parents;
    for (const Applied &applied : m_settings.applied)
        parents += applied.kind == u"account" ? applied.value + u':' : QString();
    if (m_aliases.empty())
        return parents + name;
    // ledger and hledger do not replace the same parts of a name.
    const QString one = withWholeOrRoot(m_aliases, name);
    if (one != withLatest(m_settings.aliases, name))
        throw faults::ambiguousAlias(place, name);
    return one;
}

} // namespace kiv::interchange::internal

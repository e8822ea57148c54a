// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/ofx_tree.h"

#include "interchange/draft.h"

#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"
#include "interchange/internal/statement_notices.h"
#include "interchange/text_decoding.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>

#include <algorithm>
#include <map>
#include <set>

namespace kiv::interchange::internal {

namespace {

constexpr std::size_t depthMax = 32;
/// A transaction has about ten.
constexpr qsizetype elementsMax = 16 * transactionsMax;
/// Transactions, with the statements and lists that hold them.
constexpr qsizetype entriesMax = transactionsMax + 4096;

/// Replaces entities, by name or number ("&#252;", "&#xFC;"). Other texts after an
/// ampersand stay, since banks write names that way; so do entities of control characters.
QString withoutEntities(const QString &text)
{
    static const QRegularExpression form(
        QStringLiteral("&(?:#x([0-9A-Fa-f]{1,6})|#([0-9]{1,7})|([a-z]+));"));
    static const std::map<QString, char32_t> names{
        {QStringLiteral("lt"), U'<'},   {QStringLiteral("gt"), U'>'},
        {QStringLiteral("quot"), U'"'}, {QStringLiteral("apos"), U'\''},
        {QStringLiteral("nbsp"), U' '}, {QStringLiteral("amp"), U'&'}};
    QString plain;
    qsizetype taken = 0;
    for (const QRegularExpressionMatch &match : form.globalMatch(text)) {
        const auto named = names.find(match.captured(3));
        const char32_t letter = named != names.end()   ? named->second
                                : match.hasCaptured(1) ? match.captured(1).toUInt(nullptr, 16)
                                                       : match.captured(2).toUInt();
        if (letter > QChar::LastValidCodePoint || !QChar::isPrint(letter))
            continue;
        plain += QStringView(text).sliced(taken, match.capturedStart() - taken);
        plain += QString::fromUcs4(&letter, 1);
        taken = match.capturedEnd();
    }
    plain += QStringView(text).sliced(taken);
    return plain.simplified();
}

/// Tags of a transaction that hold a value. An empty one looks like the start of a tag that
/// holds others.
bool isValueTag(const QString &tag)
{
    static const QStringList tags{
        QStringLiteral("TRNTYPE"),  QStringLiteral("DTPOSTED"), QStringLiteral("DTUSER"),
        QStringLiteral("DTAVAIL"),  QStringLiteral("TRNAMT"),   QStringLiteral("FITID"),
        QStringLiteral("CHECKNUM"), QStringLiteral("REFNUM"),   QStringLiteral("SIC"),
        QStringLiteral("PAYEEID"),  QStringLiteral("NAME"),     QStringLiteral("MEMO"),
        QStringLiteral("SRVRTID")};
    return tags.contains(tag);
}

/// Tags that hold entries, or an entry.
bool isListTag(QStringView tag)
{
    return tag.startsWith(u"BANKTRANLIST") || tag == u"STMTTRN" || tag == u"STMTTRNP";
}

/// The values that are read; all others of a large file would fill the memory.
bool isReadValue(const QString &tag)
{
    static const std::set<QString> tags{
        QStringLiteral("ACCTID"),   QStringLiteral("ACCTTYPE"), QStringLiteral("BANKID"),
        QStringLiteral("BALAMT"),   QStringLiteral("DTASOF"),   QStringLiteral("CORRECTFITID"),
        QStringLiteral("BRANCHID"), QStringLiteral("CHECKNUM"), QStringLiteral("CORRECTACTION"),
        QStringLiteral("CURDEF"),   QStringLiteral("CURSYM"),   QStringLiteral("DTPOSTED"),
        QStringLiteral("FITID"),    QStringLiteral("MEMO"),     QStringLiteral("NAME"),
        QStringLiteral("TRNAMT")};
    return tags.contains(tag);
}

class TreeReader {
public:
    TreeReader(const QString &text, const QString &file) : m_text(text), m_place{file, 1} {}

    OfxDocument read()
    {
        advanceTo(m_text.indexOf(QStringLiteral("<OFX>")));
        if (m_at < 0)
            throw faults::notOfx({m_place.file, 0});
        static const QRegularExpression tag(QStringLiteral("<[^?!]"));
        if (const auto match = tag.match(QStringView(m_text).left(m_at)); match.hasMatch()) {
            m_place.line = 1 + m_text.left(match.capturedStart()).count(u'\n');
            throw faults::outsideDocument(m_place);
        }
        // Only the header of OFX 2 has instructions: "<?xml", "<?OFX".
        m_isXml = QStringView(m_text).left(m_at).contains(u"<?");
        while (m_at < m_text.size() && !m_root) {
            takeTag();
            if (!m_root)
                takeValue();
        }
        if (!m_root)
            endDocument();
        refuseRest();
        if (m_unclosedAmount && m_hasClosedAmount) // it may have lost digits with its end
            throw faults::tagNotClosed(*m_unclosedAmount, QStringLiteral("TRNAMT"));
        return {std::move(*m_root), std::move(m_notices)};
    }

private:
    void advanceTo(qsizetype at)
    {
        m_place.line += QStringView(m_text).mid(m_at, at - m_at).count(u'\n');
        m_at = at;
    }

    /// A file may lack its last end tags, but not the end of a list: it would be cut off.
    void endDocument()
    {
        for (const Element &element : m_open) {
            if (isListTag(element.tag))
                throw faults::tagNotClosed(m_open.back().place, m_open.back().tag);
        }
        m_notices += notices::documentNotEnded();
        while (!m_open.empty())
            finish();
    }

    /// Tells of the first end tag that is missing.
    void mend(const Element &element)
    {
        if (m_notices.isEmpty())
            m_notices += notices::tagMended(element.place, element.tag);
    }

    /// Only comments may stand behind the document.
    void refuseRest()
    {
        do {
            qsizetype at = m_at;
            while (at < m_text.size() && m_text[at].isSpace())
                ++at;
            advanceTo(at);
        } while (m_at < m_text.size() && QStringView(m_text).sliced(m_at).startsWith(u"<!--") &&
                 takeSection());
        if (m_at < m_text.size())
            throw faults::outsideDocument(m_place);
    }

    /// Skips a comment, or takes a CDATA section as a value. Returns whether there was one.
    bool takeSection()
    {
        const QStringView rest = QStringView(m_text).mid(m_at);
        const bool isComment = rest.startsWith(u"<!--");
        if (!isComment && !rest.startsWith(u"<![CDATA["))
            return false;
        const qsizetype end =
            m_text.indexOf(isComment ? QStringLiteral("-->") : QStringLiteral("]]>"), m_at);
        if (end < 0)
            throw faults::brokenTag(m_place);
        if (!isComment) {
            requireRoom(end - m_at - 9);
            m_open.back().value += m_text.mid(m_at + 9, end - m_at - 9).simplified();
        }
        advanceTo(end + 3);
        return true;
    }

    void takeTag()
    {
        if (takeSection())
            return;
        const qsizetype end = m_text.indexOf(u'>', m_at);
        QStringView name =
            end < 0 ? QStringView() : QStringView(m_text).mid(m_at + 1, end - m_at - 1);
        const bool isComment = name.startsWith(u'?') || name.startsWith(u'!');
        const bool isClosing = name.startsWith(u'/');
        const bool isEmpty = name.endsWith(u'/') && !isClosing;
        name = name.sliced(isClosing ? 1 : 0).chopped(isEmpty ? 1 : 0).trimmed();
        const auto isName = [](QChar c) {
            return (c >= u'A' && c <= u'Z') || (c >= u'a' && c <= u'z') ||
                   (c >= u'0' && c <= u'9') || c == u'.' || c == u'_';
        };
        if (isComment ? name.contains(u'<') // its > is missing
                      : name.isEmpty() || !std::ranges::all_of(name, isName))
            throw faults::brokenTag(m_place);
        const QString tag = name.toString().toUpper();
        if (isClosing)
            close(tag);
        else if (!isComment)
            open(tag);
        advanceTo(end + 1);
        if (isEmpty)
            close(tag);
    }

    void open(const QString &tag)
    {
        if (!m_open.empty() && isValueTag(m_open.back().tag))
            finishUnclosed();
        m_entries += isListTag(tag) || tag.endsWith(u"STMTRS");
        if (++m_count > elementsMax || m_entries > entriesMax)
            throw faults::tooManyTransactions(m_place, transactionsMax);
        if (m_open.size() >= depthMax)
            throw faults::nestedTooDeeply(m_place);
        m_open.push_back({*m_tags.insert(tag).first, m_place});
    }

    void requireRoom(qsizetype characters) const
    {
        if (m_open.back().value.size() + characters > lineMax)
            throw faults::textTooLong(m_open.back().place, lineMax);
    }

    /// In SGML a tag with a value is closed by what comes next.
    void takeValue()
    {
        const qsizetype next = m_text.indexOf(u'<', m_at);
        const qsizetype end = next < 0 ? m_text.size() : next;
        const QStringView value = QStringView(m_text).sliced(m_at, end - m_at).trimmed();
        if (!value.isEmpty() && !m_open.empty()) {
            Element &element = m_open.back();
            if (element.holdsElements || isListTag(element.tag)) // it may have cut an amount
                throw faults::brokenTag(m_place);
            requireRoom(value.size());
            element.value += withoutEntities(value.toString());
            advanceTo(end);
            const QString closing = QStringLiteral("</%1>").arg(element.tag);
            if (QStringView(m_text).sliced(m_at).startsWith(closing, Qt::CaseInsensitive)) {
                advanceTo(m_at + closing.size());
                close(element.tag);
            } else {
                finishUnclosed();
            }
            takeValue();
            return;
        }
        advanceTo(end);
    }

    /// The <OFX> at least is open.
    void close(const QString &tag)
    {
        while (m_open.back().tag != tag && m_open.size() > 1 && canMend(tag)) {
            // In SGML, a tag without content is an empty value.
            if (m_isXml || m_open.back().holdsElements)
                mend(m_open.back());
            finish();
        }
        if (m_open.back().tag != tag)
            throw faults::wrongClosingTag(m_place, tag, m_open.back().tag,
                                          m_open.back().place.line);
        m_hasClosedAmount = m_hasClosedAmount || tag == u"TRNAMT";
        finish();
    }

    /// Whether the innermost tag may end where another one is closed: an empty value may, and
    /// so may lists, but neither an entry nor what is in it.
    [[nodiscard]] bool canMend(const QString &closed) const
    {
        const auto within = std::ranges::find(m_open, closed, &Element::tag);
        if (!m_open.back().holdsElements && !isListTag(m_open.back().tag))
            return true;
        return within != m_open.end() &&
               std::none_of(within, m_open.end(), [](const Element &element) {
                   return element.tag.startsWith(u"STMTTRN") && !element.tag.endsWith(u"RS");
               });
    }

    /// In SGML, values need no closing tag; in XML they do.
    void finishUnclosed()
    {
        if (m_isXml)
            mend(m_open.back());
        if (m_isXml && m_open.back().tag == u"TRNAMT" && !m_unclosedAmount)
            m_unclosedAmount = m_open.back().place;
        finish();
    }

    void finish()
    {
        Element element = std::move(m_open.back());
        m_open.pop_back();
        if (m_open.empty()) {
            m_root = std::move(element);
            return;
        }
        Element &parent = m_open.back();
        parent.holdsElements = true;
        const bool isValue = !element.holdsElements && !element.value.isEmpty();
        if (isValue && !isReadValue(element.tag))
            return;
        if (isValue &&
            std::ranges::find(parent.children, element.tag, &Element::tag) != parent.children.end())
            throw faults::repeatedTag(element.place, element.tag);
        parent.children.push_back(std::move(element));
    }

    const QString &m_text;
    Place m_place;
    qsizetype m_at = 0;
    qsizetype m_count = 0;
    qsizetype m_entries = 0;  ///< see entriesMax
    std::set<QString> m_tags; ///< so that equal ones share their memory
    bool m_isXml = false;
    bool m_hasClosedAmount = false;
    std::optional<Place> m_unclosedAmount; ///< under a header of XML
    QStringList m_notices;
    std::vector<Element> m_open;
    std::optional<Element> m_root;
};

} // namespace

OfxDocument readOfxTree(const QString &text, const QString &file)
{
    return TreeReader(text, file).read();
}

} // namespace kiv::interchange::internal

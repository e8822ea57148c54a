// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/camt_tree.h"

#include "interchange/draft.h"
#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"
#include "interchange/text_decoding.h"

#include <set>

namespace kiv::interchange::internal {

namespace {

constexpr int depthMax = 32;
/// Of one entry. A large batch has some ten thousand payments with about ten each.
constexpr qsizetype elementsMax = 8 * transactionsMax;

/// The elements that are read; all others of a large entry would fill the memory.
bool isRead(QStringView tag)
{
    static const std::set<QStringView> tags{
        u"Acct",      u"AcctSvcrRef", u"AddtlNtryInf", u"AddtlRmtInf", u"AddtlTxInf", u"Amt",
        u"Bal",       u"BookgDt",     u"Ccy",          u"Cd",          u"CdOrPrtry",  u"CdtDbtInd",
        u"Cdtr",      u"CdtrRefInf",  u"Dbtr",         u"Dt",          u"DtTm",       u"IBAN",
        u"Id",        u"LastPgInd",   u"Nm",           u"Ntry",        u"NtryDtls",   u"Othr",
        u"Pty",       u"Ref",         u"Refs",         u"RltdPties",   u"RmtInf",     u"RvslInd",
        u"Strd",      u"Sts",         u"Tp",           u"TxDtls",      u"TxId",       u"UltmtCdtr",
        u"UltmtDbtr", u"Ustrd",       u"ValDt"};
    return tags.contains(tag) || tag.endsWith(u"Pgntn");
}

/// A value that an entry can have only once. A second one means that two entries ran into one.
bool isSingle(const QString &parent, QStringView tag)
{
    return parent == u"Ntry" && tag != u"NtryDtls";
}

bool isStatement(QStringView tag)
{
    return tag == u"Stmt" || tag == u"Rpt" || tag == u"Ntfctn";
}

} // namespace

CamtTree::CamtTree(const QString &text, QString file) : m_xml(text), m_file(std::move(file))
{
    if (const qsizetype at = text.indexOf(QStringLiteral("<!DOCTYPE")); at >= 0)
        throw faults::documentType({m_file, QStringView(text).left(at).count(u'\n') + 1});
    // The reader of XML keeps a text whole.
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype next = text.indexOf(u'<', at);
        const qsizetype end = next < 0 ? text.size() : next;
        if (end - at > lineMax)
            throw faults::textTooLong({m_file, QStringView(text).left(at).count(u'\n') + 1},
                                      lineMax);
        at = end + 1;
    }
}

Place CamtTree::place() const
{
    return {m_file, m_xml.lineNumber()};
}

QXmlStreamReader::TokenType CamtTree::next()
{
    const auto token = m_xml.readNext();
    if (m_xml.hasError())
        throw faults::brokenXml(place(), m_xml.errorString());
    return token;
}

bool CamtTree::nextStatement()
{
    while (!m_xml.atEnd()) {
        const auto token = next();
        if (token == QXmlStreamReader::EndElement)
            --m_depth;
        if (token != QXmlStreamReader::StartElement)
            continue;
        const QStringView tag = m_xml.name();
        m_isCamt = m_isCamt || tag.startsWith(u"BkToCstmr");
        if (m_isCamt && isStatement(tag))
            return true;
        if (tag == u"Ntry" || tag == u"BookgDt")
            throw faults::entryOutside(place());
        if (tag == u"MsgPgntn") {
            m_goesOn = internal::goesOn(takeElement(0));
            continue;
        }
        if (++m_depth > depthMax)
            throw faults::nestedTooDeeply(place());
    }
    return false;
}

std::optional<Element> CamtTree::nextElement()
{
    for (;;) {
        const auto token = next();
        if (token == QXmlStreamReader::EndElement)
            return std::nullopt;
        if (token != QXmlStreamReader::StartElement)
            continue;
        m_elements = 0;
        if (isRead(m_xml.name()))
            return takeElement(0);
        skipElement();
    }
}

Element CamtTree::takeElement(int depth)
{
    Element element{m_xml.name().toString(), place()};
    // An amount's currency is an attribute, and becomes an element in it.
    if (element.tag == u"Amt")
        element.children.push_back({QStringLiteral("Ccy"), element.place,
                                    m_xml.attributes().value(QLatin1String("Ccy")).toString()});
    if (depth > depthMax)
        throw faults::nestedTooDeeply(element.place);
    if (++m_elements > elementsMax)
        throw faults::tooManyTransactions(element.place, transactionsMax);
    for (;;) {
        const auto token = next();
        if (token == QXmlStreamReader::EndElement)
            break;
        if (token == QXmlStreamReader::Characters && !m_xml.isWhitespace()) {
            if (element.value.size() + m_xml.text().size() > lineMax)
                throw faults::textTooLong(element.place, lineMax);
            element.value += m_xml.text();
        }
        if (token != QXmlStreamReader::StartElement)
            continue;
        const QString tag = m_xml.name().toString();
        if (isSingle(element.tag, tag) && element.child(qPrintable(tag)))
            throw faults::repeatedTag(place(), tag);
        if (isRead(tag))
            element.children.push_back(takeElement(depth + 1));
        else
            skipElement();
    }
    element.value = element.value.simplified();
    return element;
}

/// Leaves out what no statement needs. There is no entry in it.
void CamtTree::skipElement()
{
    int depth = 1;
    while (depth > 0) {
        const auto token = next();
        depth += token == QXmlStreamReader::StartElement ? 1
                 : token == QXmlStreamReader::EndElement ? -1
                                                         : 0;
        if (depth > depthMax)
            throw faults::nestedTooDeeply(place());
        if (token == QXmlStreamReader::StartElement &&
            (m_xml.name() == u"Ntry" || m_xml.name() == u"BookgDt"))
            throw faults::entryOutside(place());
    }
}

std::optional<Place> goesOn(const Element &pagination)
{
    const QString isLast = pagination.text("LastPgInd");
    return isLast == u"false" || isLast == u"0" ? std::optional(pagination.place) : std::nullopt;
}

} // namespace kiv::interchange::internal

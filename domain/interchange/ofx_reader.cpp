// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/ofx_reader.h"

#include "interchange/internal/declared_encoding.h"
#include "interchange/internal/faults.h"
#include "interchange/internal/ofx_corrections.h"
#include "interchange/internal/ofx_tree.h"
#include "interchange/internal/statement_faults.h"
#include "interchange/internal/statement_notices.h"
#include "interchange/internal/statement_parts.h"
#include "interchange/text_decoding.h"
#include "interchange/written_values.h"

#include <QtCore/QObject>

#include <map>

namespace kiv::interchange {

namespace {

using internal::Element;
using internal::StatementPart;

/// OFX 1 has CHARSET:1252 and ENCODING:UTF-8 in its header, OFX 2 an XML declaration.
QString encodingOf(const QByteArray &bytes)
{
    const qsizetype end = bytes.left(2000).indexOf("<OFX>");
    return internal::declaredEncoding(bytes, std::max<qsizetype>(end, 0));
}

bool isStatement(const Element &element)
{
    return element.tag == u"STMTRS" || element.tag == u"CCSTMTRS" || element.tag == u"INVSTMTRS";
}

void findStatements(const Element &element, std::vector<const Element *> &statements)
{
    if (isStatement(element))
        statements.push_back(&element);
    for (const Element &child : element.children)
        findStatements(child, statements);
}

/// Refuses entries outside the lists of statements: they would be lost.
void requireEntriesInLists(const Element &element, bool isWithin = false, bool isList = false)
{
    for (const Element &child : element.children) {
        const bool isStray = child.tag == u"STMTTRN" ? !isList
                                                     : isWithin && child.tag == u"TRNAMT" &&
                                                           !element.tag.startsWith(u"STMTTRN");
        if (isStray)
            throw faults::entryOutside(child.place);
        if (child.tag != u"INVSTMTRS") // they have lists of their own
            requireEntriesInLists(child, isWithin || isStatement(child),
                                  isStatement(element) && child.tag == u"BANKTRANLIST");
    }
}

const Element *accountElement(const Element &statement)
{
    for (const char *tag : {"BANKACCTFROM", "CCACCTFROM", "INVACCTFROM"}) {
        if (const Element *found = statement.child(tag))
            return found;
    }
    return nullptr;
}

QString accountOf(const Element &statement)
{
    const Element *from = accountElement(statement);
    return from ? from->text("ACCTID") : QString();
}

/// Accounts of several kinds, or at several banks, may have the same number; and a statement
/// without a number may be of any account.
void requireAccountsApart(const std::vector<const Element *> &statements)
{
    const auto identity = [](const Element &statement) {
        QStringList parts{statement.tag, statement.text("CURDEF")};
        if (const Element *from = accountElement(statement)) {
            for (const char *tag : {"BANKID", "BRANCHID", "ACCTID", "ACCTTYPE"})
                parts += from->text(tag);
        }
        return parts;
    };
    std::map<QString, QStringList> identities;
    for (const Element *statement : statements) {
        const auto [found, isNew] = identities.emplace(accountOf(*statement), identity(*statement));
        if (found->second != identity(*statement) ||
            (identities.size() > 1 && identities.contains(QString())))
            throw faults::severalAccounts(statement->place);
    }
}

numira::Currency currencyOf(const QString &code, const Place &place)
{
    const auto currency = readCurrency(code, numira::Currency());
    if (!currency)
        throw faults::notACurrency(place, code);
    return *currency;
}

/// YYYYMMDD with a time and a zone behind it; nothing for other texts.
std::optional<QDate> readDay(const QString &text)
{
    static const DateFormat format(QStringLiteral("YYYYMMDD"), {});
    return format.read(QStringView(text).left(8));
}

QDate dayOf(const Element &transaction)
{
    const QString text = transaction.text("DTPOSTED");
    if (text.isEmpty())
        throw faults::missingValue(transaction.place, QStringLiteral("DTPOSTED"));
    const auto day = readDay(text);
    if (!day)
        throw faults::notADate(transaction.child("DTPOSTED")->place, text,
                               QStringLiteral("YYYYMMDD"));
    return *day;
}

numira::Money amountOf(const Element &amount, const numira::Currency &currency)
{
    // A single comma or point is the decimal mark, whatever digits follow. Otherwise commas
    // group.
    const QString &number = amount.value;
    std::optional<DecimalMark> mark;
    if (number.count(u',') == 1 && !number.contains(u'.'))
        mark = DecimalMark::Comma;
    else if (number.count(u'.') == 1 && !number.contains(u','))
        mark = DecimalMark::Point;
    return statementAmount(number, currency, mark, amount.place);
}

/// The payee stands in NAME, cut after 32 characters, and often in full in MEMO.
void setTexts(StatementEntry &entry, const Element &transaction)
{
    entry.payee = transaction.text("NAME");
    if (entry.payee.isEmpty())
        entry.payee = transaction.text({"PAYEE", "NAME"});
    entry.text = transaction.text("MEMO");
    if (!entry.payee.isEmpty() && entry.text.startsWith(entry.payee)) {
        const QString rest = entry.text.mid(entry.payee.size());
        if (rest.isEmpty() || rest.startsWith(u' '))
            entry.text = rest.trimmed();
        else
            entry.payee = std::exchange(entry.text, QString());
    }
    if (const QString check = transaction.text("CHECKNUM"); !check.isEmpty())
        entry.text = (entry.text + u' ' + QObject::tr("Check %1").arg(check)).trimmed();
}

StatementEntry entryOf(const Element &transaction, const numira::Currency &currency)
{
    StatementEntry entry{transaction.place, dayOf(transaction)};
    const Element *amount = transaction.child("TRNAMT");
    if (!amount || amount->value.isEmpty())
        throw faults::missingValue(transaction.place, QStringLiteral("TRNAMT"));
    if (const Element *other = transaction.child("CURRENCY"))
        internal::requireCurrency(currencyOf(other->text("CURSYM"), other->place), currency,
                                  other->place);
    entry.amount = amountOf(*amount, currency);
    setTexts(entry, transaction);
    entry.bankId = transaction.text("FITID");
    return entry;
}

/// Banks leave the balance empty, or write zeros for its day. No entry depends on it.
void takeBalance(const Element &balance, StatementPart &part)
{
    const Element *amount = balance.child("BALAMT");
    if (!amount || amount->value.isEmpty())
        return;
    try {
        part.closing = {amount->place, amountOf(*amount, part.currency),
                        readDay(balance.text("DTASOF")).value_or(QDate())};
    } catch (const ImportError &) {
        part.notices += notices::balanceLeftOut(amount->place);
    }
}

StatementPart partOf(const Element &statement, std::size_t number, internal::EntryCount &count,
                     internal::OfxCorrections &corrections)
{
    count.addPart(statement.place);
    StatementPart part{accountOf(statement), currencyOf(statement.text("CURDEF"), statement.place)};
    for (const Element &list : statement.children) {
        if (list.tag == u"LEDGERBAL")
            takeBalance(list, part);
        for (const Element &transaction : list.children) {
            part.pending += transaction.tag == u"STMTTRNP" ? 1 : 0;
            if (transaction.tag != u"STMTTRN")
                continue;
            corrections.add(transaction, {number, part.entries.size()});
            part.entries.push_back(entryOf(transaction, part.currency));
            count.add(part.entries.back());
        }
    }
    return part;
}

/// Each list has the balance of the day on which the file was made: only the last one counts.
void keepLastBalance(std::vector<StatementPart> &parts)
{
    std::map<QString, StatementPart *> last;
    for (StatementPart &part : parts) {
        StatementPart *&kept = last.try_emplace(part.account, &part).first->second;
        const bool isLater =
            part.closing && (!kept->closing || kept->closing->day <= part.closing->day);
        StatementPart *dropped = isLater ? std::exchange(kept, &part) : &part;
        if (dropped != kept)
            dropped->closing.reset();
    }
}

} // namespace

std::vector<Statement> readOfx(const QByteArray &bytes, const QString &file,
                               const BankFileOptions &options)
{
    const QString encoding = options.encoding ? *options.encoding : encodingOf(bytes);
    const internal::OfxDocument document =
        internal::readOfxTree(decoded(bytes, file, encoding), file);
    requireEntriesInLists(document.root);
    std::vector<const Element *> statements;
    findStatements(document.root, statements);
    if (statements.empty())
        throw faults::noStatement({file, 0});
    const Element &first = *statements.front();
    const std::size_t all = statements.size();
    std::erase_if(statements, [](const auto *found) { return found->tag == u"INVSTMTRS"; });
    if (statements.empty())
        throw faults::unsupported(first.place, first.tag);
    requireAccountsApart(statements);
    internal::EntryCount count;
    internal::OfxCorrections corrections;
    std::vector<StatementPart> parts;
    for (const Element *statement : statements)
        parts.push_back(partOf(*statement, parts.size(), count, corrections));
    corrections.apply(parts);
    keepLastBalance(parts);
    parts.front().notices += document.notices;
    if (statements.size() < all)
        parts.front().notices += notices::investmentsLeftOut();
    return internal::joinedStatements(std::move(parts));
}

} // namespace kiv::interchange

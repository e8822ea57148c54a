// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/ofx_reader.h"

#include "interchange/internal/declared_encoding.h"
#include "interchange/internal/description_count.h"
#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"

#include "interchange/draft.h"
#include "interchange/internal/ofx_tree.h"
#include "interchange/text_decoding.h"
#include "interchange/written_values.h"

#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::interchange {

namespace {

using internal::Element;

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

/// Accounts of several kinds, or at several banks, may have the same number.
bool isSameAccount(const Element &one, const Element &other)
{
    const auto identity = [](const Element &statement) {
        QStringList parts{statement.tag, statement.text("CURDEF")};
        if (const Element *from = accountElement(statement)) {
            for (const char *tag : {"BANKID", "BRANCHID", "ACCTID", "ACCTTYPE"})
                parts += from->text(tag);
        }
        return parts;
    };
    return identity(one) == identity(other);
}

/// All statements of the account that is named, or of the only one.
std::vector<const Element *> chosenStatements(const Element &document, const QString &account,
                                              const QString &file)
{
    std::vector<const Element *> statements;
    findStatements(document, statements);
    if (statements.empty())
        throw faults::noStatement({file, 0});
    QStringList accounts;
    for (const Element *statement : statements) {
        accounts += accountOf(*statement);
        if (!account.isEmpty() && accounts.back().isEmpty()) // it may be the same account
            throw faults::severalAccounts(statement->place);
    }
    accounts.removeDuplicates();
    if (account.isEmpty() && accounts.size() > 1)
        throw faults::severalStatements(statements[1]->place, accounts);
    if (!account.isEmpty() && !accounts.contains(account))
        throw faults::noSuchStatement({file, 0}, account, accounts);
    std::erase_if(statements, [&account](const Element *statement) {
        return !account.isEmpty() && accountOf(*statement) != account;
    });
    for (const Element *statement : statements) {
        if (statement->tag == u"INVSTMTRS")
            throw faults::unsupported(statement->place, statement->tag);
        if (!isSameAccount(*statements.front(), *statement))
            throw faults::severalAccounts(statement->place);
    }
    return statements;
}

numira::Currency currencyOf(const QString &code, const Place &place)
{
    const auto currency = readCurrency(code, numira::Currency());
    if (!currency)
        throw faults::notACurrency(place, code);
    return *currency;
}

QDate dayOf(const Element &transaction)
{
    // YYYYMMDD with a time and a zone behind it.
    static const DateFormat format(QStringLiteral("YYYYMMDD"), {});
    const QString text = transaction.text("DTPOSTED");
    if (text.isEmpty())
        throw faults::missingValue(transaction.place, QStringLiteral("DTPOSTED"));
    const auto day = format.read(QStringView(text).left(8));
    if (!day)
        throw faults::notADate(transaction.child("DTPOSTED")->place, text, format.text());
    return *day;
}

/// The payee's name, memo and check number.
QString textOf(const Element &transaction)
{
    QStringList texts{transaction.text("NAME")};
    if (const Element *payee = transaction.child("PAYEE"))
        texts += payee->text("NAME");
    texts += transaction.text("MEMO");
    if (const QString check = transaction.text("CHECKNUM"); !check.isEmpty())
        texts += QObject::tr("Check %1").arg(check);
    texts.removeAll(QString());
    texts.removeDuplicates();
    return texts.join(u' ');
}

StatementEntry entryOf(const Element &transaction, const numira::Currency &currency)
{
    if (const Element *correction = transaction.child("CORRECTACTION"))
        throw faults::unsupported(correction->place, QStringLiteral("CORRECTACTION"));
    StatementEntry entry{transaction.place, dayOf(transaction)};
    const Element *amount = transaction.child("TRNAMT");
    if (!amount || amount->value.isEmpty())
        throw faults::missingValue(transaction.place, QStringLiteral("TRNAMT"));
    if (const Element *other = transaction.child("CURRENCY")) {
        const numira::Currency found = currencyOf(other->text("CURSYM"), other->place);
        if (found != currency)
            throw faults::otherCurrency(other->place, foundation::toQString(found),
                                        foundation::toQString(currency));
    }
    // A single comma or point is the decimal mark, whatever digits follow. Otherwise commas
    // group.
    const QString &number = amount->value;
    std::optional<DecimalMark> mark;
    if (number.count(u',') == 1 && !number.contains(u'.'))
        mark = DecimalMark::Comma;
    else if (number.count(u'.') == 1 && !number.contains(u','))
        mark = DecimalMark::Point;
    entry.amount = statementAmount(number, currency, mark, amount->place);
    entry.text = textOf(transaction);
    entry.bankId = transaction.text("FITID");
    return entry;
}

} // namespace

Statement readOfx(const QByteArray &bytes, const QString &file, const OfxOptions &options)
{
    const QString encoding = options.encoding ? *options.encoding : encodingOf(bytes);
    const Element document = internal::readOfxTree(decoded(bytes, file, encoding), file);
    requireEntriesInLists(document);
    const std::vector<const Element *> statements =
        chosenStatements(document, options.account, file);
    const Element &first = *statements.front();
    internal::DescriptionCount descriptions;
    Statement statement{accountOf(first), currencyOf(first.text("CURDEF"), first.place), {}};
    for (const Element *found : statements) {
        for (const Element &list : found->children) {
            for (const Element &transaction : list.children) {
                statement.pending += transaction.tag == u"STMTTRNP" ? 1 : 0;
                if (transaction.tag != u"STMTTRN")
                    continue;
                if (static_cast<qsizetype>(statement.entries.size()) >= transactionsMax)
                    throw faults::tooManyTransactions(transaction.place, transactionsMax);
                statement.entries.push_back(entryOf(transaction, statement.currency));
                descriptions.add(statement.entries.back().text, transaction.place);
            }
        }
    }
    return statement;
}

} // namespace kiv::interchange

// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/journal_parser.h"

#include "interchange/internal/faults.h"
#include "interchange/internal/journal_faults.h"
#include "interchange/internal/limits.h"

#include "numira/error.h"

#include <QtCore/QObject>
#include <QtCore/QRegularExpression>

namespace kiv::interchange::internal {

namespace {

bool isComment(QStringView line)
{
    return QStringLiteral(";#%|*").contains(line.front());
}

bool isIndented(QStringView line)
{
    return !line.isEmpty() && line.front().isSpace();
}

/// Whether the line ends a block comment that begins with `word`.
bool endsComment(QStringView line, const QString &word, const Place &place)
{
    if (!line.startsWith(u"end comment") && !line.startsWith(u"end test"))
        return false;
    // Programs differ on whether the other end counts here.
    if (line.trimmed() != QStringLiteral("end ") + word)
        throw faults::unsupported(place, line.toString());
    return true;
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

QString takeComment(QString &text)
{
    const qsizetype at = text.indexOf(u';');
    if (at < 0)
        return {};
    QString comment = text.mid(at + 1).trimmed();
    text = text.left(at).trimmed();
    return comment;
}

const QString &JournalParser::ownHeader()
{
    static const QString header = QStringLiteral("; kiv journal, version 1");
    return header;
}

void JournalParser::parse(const QByteArray &bytes, const QString &file)
{
    const QString text = decoded(bytes, file, m_options.encoding.value_or(utf8Name));
    m_settings.isOwn = text.startsWith(ownHeader());
    LineCursor lines(text, file);
    std::optional<Block> block;
    std::optional<Block> skipping; // a block comment
    const auto finish = [&] {
        if (block)
            take(*std::exchange(block, std::nullopt));
    };
    while (lines.next()) {
        const QStringView line = lines.line();
        const QStringView trimmed = line.trimmed();
        if (skipping) {
            if (endsComment(line, skipping->head, lines.place()))
                skipping.reset();
        } else if (isIndented(line) && !trimmed.isEmpty()) {
            if (block)
                block->add(lines.place(), trimmed);
            else if (!isComment(trimmed))
                throw faults::strayLine(lines.place());
        } else {
            finish();
            if (trimmed == u"comment" || trimmed == u"test")
                skipping = Block{lines.place(), trimmed.toString()};
            else if (!trimmed.isEmpty() && !isComment(line))
                block = Block{lines.place(), trimmed.toString(), line.size()};
        }
    }
    finish();
    if (skipping)
        m_books.notice(QObject::tr("Line %1: the comment has no end; the rest of the file belongs "
                                   "to it.")
                           .arg(skipping->place.line));
}

void JournalParser::Block::add(const Place &at, QStringView line)
{
    size += std::max(line.size(), limits::lineTextMin);
    if (size > limits::entryTextMax)
        throw faults::textTooLong(at, limits::entryTextMax);
    lines.emplace_back(at, line);
}

void JournalParser::take(Block block)
try {
    const QChar first = block.head.front();
    if (first >= u'0' && first <= u'9') {
        takeEntry(block);
    } else if (first == u'=') {
        takeAutomated(block);
    } else if (first == u'~') {
        (void)block.takeLines();
        m_books.notice(QObject::tr("Periodic transactions are skipped."));
    } else {
        takeDirective(block);
    }
    if (!block.lines.empty())
        throw faults::strayLine(block.lines.front().first);
} catch (const numira::Error &cause) {
    throw faults::tooLarge(block.place, cause);
}

// ---- entries -------------------------------------------------------------------

namespace {

/// A date; `year` is used where the date has none.
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

void JournalParser::takeEntry(Block &block)
{
    Entry entry{block.place};
    QStringView rest = block.head;
    entry.date = takeDate(rest, m_settings.year, block.place);
    if (rest.startsWith(u'=')) {
        rest = rest.sliced(1);
        (void)takeDate(rest, entry.date.year(), block.place);
        m_books.notice(QObject::tr("Second dates of transactions are skipped."));
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
    noticeDays(comment);
    entry.comments += comment;
    for (const Applied &applied : m_settings.applied) {
        if (applied.kind == u"tag")
            entry.comments += applied.value;
    }
    addPostings(block, entry);
    m_books.add(std::move(entry));
}

void JournalParser::takeAutomated(Block &block)
{
    QString pattern = block.head.mid(1).trimmed();
    takeComment(pattern);
    // A sign, quote, blank or word like "desc:" makes it a query for something else, which
    // would never match an account's name.
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
    m_books.add(AutomatedEntry{match.captured(1) + match.captured(2), std::move(entry)});
}

void JournalParser::addPostings(Block &block, Entry &entry)
{
    for (const auto &[place, line] : block.takeLines()) {
        if (line.startsWith(u';')) {
            const QString comment = line.sliced(1).trimmed().toString();
            noticeDays(comment);
            (entry.postings.empty() ? entry.comments : entry.postings.back().comments) += comment;
        } else {
            entry.postings.push_back(readPosting(place, line));
            Posting &posting = entry.postings.back();
            if (posting.status == accounting::TransactionStatuses::None)
                posting.status = entry.status;
            for (const QString &comment : posting.comments)
                noticeDays(comment);
        }
    }
}

void JournalParser::noticeDays(const QString &comment)
{
    static const QRegularExpression day(QStringLiteral("\\[=?[0-9]|(?:^|[\\s,])date2?:"));
    if (day.match(comment).hasMatch())
        m_books.notice(QObject::tr(
            "Dates in comments are skipped; each posting has the date of its transaction."));
}

Posting JournalParser::readPosting(const Place &place, QStringView line)
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
    posting.account = fullName(posting.account, place);
    // With payees declared, the transaction's payee chooses another account.
    if (m_hasPayees && posting.account.section(u':', -1) == u"Unknown")
        throw faults::unsupported(place, posting.account);
    readAmounts(line, posting);
    return posting;
}

void JournalParser::readAmounts(QStringView rest, Posting &posting)
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
        // With a default currency, some programs read a multiplier as an amount.
        if (!isMultiplier && posting.amount->commodity.isEmpty() &&
            !m_settings.amounts.usesDefault && !m_settings.amounts.commodity.isEmpty())
            throw faults::ambiguousMultiplier(posting.place, whole.toString());
        std::optional<Quantity> lot;
        readLot(rest, posting, lot);
        readCost(rest, posting);
        readLot(rest, posting, lot);
        checkLot(posting, lot);
    }
    skipBlanks(rest);
    if (rest.startsWith(u'=')) {
        const QStringView whole = rest;
        rest = rest.sliced(1);
        for (bool *isPart : {&posting.scope.isSole, &posting.scope.withChildren}) {
            *isPart = rest.startsWith(isPart == &posting.scope.isSole ? u'=' : u'*');
            rest = rest.sliced(*isPart ? 1 : 0);
        }
        // ledger knows none of these. Amounts that follow from them would be one program's.
        if (!posting.scope.isPlain() && !posting.amount)
            throw faults::unsupported(posting.place, whole.toString());
        posting.assertion = m_quantities.read(rest, posting.place);
        skipBlanks(rest);
    }
    if (rest.startsWith(u';'))
        posting.comments += rest.sliced(1).trimmed().toString();
    else if (!rest.isEmpty())
        throw faults::unsupported(posting.place, rest.toString());
}

void JournalParser::readLot(QStringView &rest, const Posting &posting,
                            std::optional<Quantity> &cost)
{
    for (skipBlanks(rest); rest.startsWith(u'{') || rest.startsWith(u'['); skipBlanks(rest)) {
        const QString whole = rest.toString();
        const bool isDay = rest.startsWith(u'[');
        const bool isTotal = rest.startsWith(u"{{");
        rest = rest.sliced(isTotal ? 2 : 1);
        if (isDay) {
            (void)takeDate(rest, m_settings.year, posting.place);
        } else {
            skipBlanks(rest);
            rest = rest.sliced(rest.startsWith(u'=') ? 1 : 0); // a fixed price
            Quantity price = m_quantities.read(rest, posting.place);
            if (price.number.sign() < 0 || std::exchange(cost, price))
                throw faults::unsupported(posting.place, whole);
            const numira::Decimal &amount = posting.known().number;
            if (!isTotal)
                cost->number = amount * price.number;
            else if (amount.sign() < 0)
                cost->number = -price.number;
            skipBlanks(rest);
        }
        const QStringView end = isDay ? u"]" : isTotal ? u"}}" : u"}";
        if (!rest.startsWith(end))
            throw faults::unsupported(posting.place, whole);
        rest = rest.sliced(end.size());
        m_books.notice(QObject::tr("Lots are not kept apart; shares are kept at their cost."));
    }
}

/// ledger balances a transaction by the price of the lot, hledger by that behind @.
void JournalParser::checkLot(Posting &posting, const std::optional<Quantity> &cost)
{
    if (!cost)
        return;
    if (!posting.cost) {
        posting.cost = cost;
        posting.isLotCost = true;
    } else if (posting.cost->number != cost->number || posting.cost->commodity != cost->commodity) {
        throw faults::ambiguousLot(posting.place, posting.known().commodity);
    }
}

void JournalParser::readCost(QStringView &rest, Posting &posting)
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

// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/faults.h"

#include "foundation/streams.h"

#include <QtCore/QObject>

namespace kiv::interchange {

namespace {

/// What stands in the file, as far as a sentence has room for it.
QString quoted(const QString &text)
{
    constexpr qsizetype shownMax = 60;
    return foundation::escaped(text.size() > shownMax ? text.left(shownMax) + QChar(0x2026) : text);
}

QString listed(const QStringList &texts)
{
    QStringList shown;
    for (const QString &text : texts)
        shown += quoted(text);
    return shown.join(QStringLiteral(", "));
}

} // namespace

namespace faults {

// ---- any file ----------------------------------------------------------------

ImportError unknownEncoding(const Place &place, const QString &encoding)
{
    return {place, QObject::tr("'%1' is no encoding that is known; write one like windows-1252 or "
                               "UTF-16.")
                       .arg(quoted(encoding))};
}

ImportError wrongEncoding(const Place &place, const QString &encoding)
{
    return {place, QObject::tr("This is not valid %1; name the file's encoding with --encoding.")
                       .arg(quoted(encoding))};
}

ImportError lineTooLong(const Place &place, qsizetype charactersMax)
{
    return {place, QObject::tr("The line has more than %1 characters.").arg(charactersMax)};
}

ImportError textTooLong(const Place &place, qsizetype charactersMax)
{
    return {place,
            QObject::tr("The entry has more than %1 characters up to here.").arg(charactersMax)};
}

ImportError descriptionsTooLong(const Place &place, qsizetype charactersMax)
{
    return {place, QObject::tr("The descriptions of all transactions up to here have more than %1 "
                               "characters.")
                       .arg(charactersMax)};
}

ImportError tooManyTransactions(const Place &place, qsizetype most)
{
    return {place, QObject::tr("A budget holds no more than %1 transactions.").arg(most)};
}

ImportError notADate(const Place &place, const QString &text, const QString &format)
{
    return {place, QObject::tr("'%1' is not a day written as %2.").arg(quoted(text), format)};
}

ImportError notInDateFormat(const Place &place, const QString &text, const QString &format)
{
    return {place, QObject::tr("'%1' is not a day written as %2; name another form with "
                               "--date-format.")
                       .arg(quoted(text), format)};
}

ImportError notANumber(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' is not a number.").arg(quoted(text))};
}

ImportError ambiguousNumber(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' can be read in two ways; name the decimal mark with "
                               "--decimal.")
                       .arg(quoted(text))};
}

ImportError tooLarge(const Place &place, const std::exception &cause)
{
    return {place, QObject::tr("The amounts here cannot be kept exactly."), cause};
}

ImportError tooManyDigits(const Place &place, const QString &text, const QString &currency,
                          unsigned digitsMax)
{
    return {place, QObject::tr("'%1' has more digits behind the decimal mark than the %2 of %3.")
                       .arg(quoted(text), QString::number(digitsMax), currency)};
}

ImportError notACurrency(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' is not the ISO 4217 code of a currency.").arg(quoted(text))};
}

// ---- journals ----------------------------------------------------------------

ImportError unknownDirective(const Place &place, const QString &text)
{
    return {place, QObject::tr(
                       "'%1' is neither a transaction nor a directive that can be imported; a ; at "
                       "the beginning of the line leaves it out.")
                       .arg(quoted(text))};
}

ImportError unsupported(const Place &place, const QString &what)
{
    return {place, QObject::tr("'%1' cannot be imported.").arg(quoted(what))};
}

ImportError strayLine(const Place &place)
{
    return {place, QObject::tr("The line is indented, but there is nothing that it belongs to.")};
}

ImportError notClosed(const Place &place, const QString &what)
{
    return {place, QObject::tr("'%1' begins here and does not end.").arg(quoted(what))};
}

ImportError unknownRoot(const Place &place, const QString &root)
{
    return {place,
            QObject::tr("Accounts begin with Assets, Liabilities, Equity, Income or Expenses; "
                        "tell what '%1' is with --root, like --root '%1=asset'.")
                .arg(quoted(root))};
}

ImportError noAccount(const Place &place)
{
    return {place, QObject::tr("The name of an account is missing.")};
}

ImportError notAnAmount(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' is not an amount.").arg(quoted(text))};
}

ImportError withoutCurrency(const Place &place, const QString &text)
{
    return {
        place,
        QObject::tr("'%1' has no currency; name one with --currency.").arg(quoted(text.trimmed()))};
}

ImportError notMoney(const Place &place, const QString &commodity)
{
    return {place,
            QObject::tr("'%1' is not a currency; give its cost behind @, or say which currency "
                        "it is with --commodity, like --commodity '%1=USD'.")
                .arg(quoted(commodity))};
}

ImportError tooFewPostings(const Place &place)
{
    return {place, QObject::tr("The transaction has fewer than two postings.")};
}

ImportError severalWithoutAmount(const Place &place)
{
    return {place, QObject::tr("More than one posting of the transaction has no amount.")};
}

ImportError notBalanced(const Place &place, const QString &rest)
{
    return {place, QObject::tr("The transaction does not balance; the rest is %1.").arg(rest)};
}

ImportError assertionFailed(const Place &place, const QString &account, const QString &asserted,
                            const QString &found)
{
    return {place, QObject::tr("The balance of '%1' should be %2 here, and is %3.")
                       .arg(quoted(account), asserted, found)};
}

ImportError badPattern(const Place &place, const QString &pattern)
{
    return {place, QObject::tr("'%1' is not a pattern of account names.").arg(quoted(pattern))};
}

ImportError tooManyAccounts(const Place &place, qsizetype most)
{
    return {place, QObject::tr("A journal has no more than %1 accounts, those above others "
                               "included.")
                       .arg(most)};
}

ImportError pathsTooLong(const Place &place, qsizetype charactersMax)
{
    return {place,
            QObject::tr("The accounts up to here and those above them have names of more than %1 "
                        "characters, each with the names on the way to it.")
                .arg(charactersMax)};
}

ImportError kindDeclaredLate(const Place &place, const QString &account)
{
    return {place, QObject::tr("The kind of '%1' is declared further down; put the declaration "
                               "above the account's first transaction.")
                       .arg(quoted(account))};
}

ImportError ambiguousAlias(const Place &place, const QString &account)
{
    return {place, QObject::tr("Programs differ on what the aliases make of '%1'; write the whole "
                               "name of the account.")
                       .arg(quoted(account))};
}

ImportError ambiguousAssignment(const Place &place, const QString &account)
{
    return {place, QObject::tr("Programs differ on the amount that leads to this balance of '%1'; "
                               "write the amount.")
                       .arg(quoted(account))};
}

ImportError ambiguousMultiplier(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' may be an amount or a multiplier; write it with its currency, "
                               "or with * before it.")
                       .arg(quoted(text))};
}

ImportError ambiguousRule(const Place &place, const QString &account)
{
    return {place, QObject::tr("Programs differ on whether this automated transaction fits '%1', "
                               "which stands above it or is added by another one.")
                       .arg(quoted(account))};
}

ImportError tooManyRules(const Place &place, std::size_t most)
{
    return {place,
            QObject::tr("A journal holds no more than %1 automated transactions.").arg(most)};
}

ImportError includeRefused(const Place &place, const QString &path, const QString &reason)
{
    return {place, QObject::tr("'%1' is not included: %2.").arg(quoted(path), reason)};
}

// ---- bank statements ---------------------------------------------------------

ImportError quoteNotClosed(const Place &place)
{
    return {place, QObject::tr("A quote begins here and does not end.")};
}

ImportError textBehindQuote(const Place &place)
{
    return {place, QObject::tr("There is text between a closing quote and the next delimiter.")};
}

ImportError noSuchColumn(const Place &place, const QString &column, const QStringList &columns)
{
    return {place,
            QObject::tr("There is no column '%1' among: %2.").arg(quoted(column), listed(columns))};
}

ImportError columnNotNamed(const Place &place, const QString &option, const QStringList &columns)
{
    return {place,
            QObject::tr("Say with %1 which column it is, of: %2.").arg(option, listed(columns))};
}

ImportError tooManyCells(const Place &place, qsizetype most)
{
    return {place, QObject::tr("The record has more than %1 cells.").arg(most)};
}

ImportError tableTooLarge(const Place &place, qsizetype charactersMax, qsizetype cellMin)
{
    return {place, QObject::tr("The table has more than %1 characters up to here, of which each "
                               "cell counts as %2 at least; make several files of it.")
                       .arg(QString::number(charactersMax), QString::number(cellMin))};
}

ImportError tooFewCells(const Place &place, qsizetype present, qsizetype wanted)
{
    return {place, QObject::tr("The record has only %1 of the %2 cells that are needed.")
                       .arg(QString::number(present), QString::number(wanted))};
}

ImportError tooManyCells(const Place &place, qsizetype present, qsizetype named)
{
    return {place, QObject::tr("The record has %1 cells where there are %2 headings; a cell that "
                               "holds the delimiter needs quotes around it.")
                       .arg(QString::number(present), QString::number(named))};
}

ImportError amountDivided(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' stands in two cells and may be one amount; an amount that "
                               "holds the delimiter needs quotes around it.")
                       .arg(quoted(text))};
}

ImportError columnsAlike(const Place &place, const QStringList &columns, const QString &heading,
                         const QString &option)
{
    return {place, QObject::tr("The columns %1 are all called '%2'; choose one by its number "
                               "with %3.")
                       .arg(columns.join(QStringLiteral(", ")), quoted(heading), option)};
}

ImportError headingsAreEntry(const Place &place)
{
    return {place, QObject::tr("The line of the headings holds an entry; say --no-headings where "
                               "there are none.")};
}

ImportError entryWithinQuotes(const Place &place)
{
    return {place, QObject::tr("This entry stands within quotes that begin on a line above it; "
                               "close them there.")};
}

ImportError balanceDiffers(const Place &place, const QString &expected, const QString &found)
{
    return {place, QObject::tr("With the amounts of the entries the balance is %1 here, but the "
                               "file says %2; --balance-column - leaves it unchecked.")
                       .arg(expected, found)};
}

ImportError emptyTable(const Place &place)
{
    return {place, QObject::tr("There are neither headings nor entries.")};
}

ImportError notADateFormat(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' is no way to write days; put one together from YYYY, MM and "
                               "DD, like DD.MM.YYYY.")
                       .arg(quoted(text))};
}

ImportError ownTable(const Place &place)
{
    return {place, QObject::tr("This is the table of a whole ledger, and no bank statement; import "
                               "the journal instead.")};
}

ImportError signsNotNamed(const Place &place, qsizetype column, const QString &sign)
{
    return {place, QObject::tr("No amount is negative, but column %1 holds '%2'; say with "
                               "--sign-column and --negative what went out.")
                       .arg(QString::number(column), quoted(sign))};
}

ImportError bothWays(const Place &place)
{
    return {place, QObject::tr("The record has an amount that came in and one that went out.")};
}

ImportError mixedSigns(const Place &place)
{
    return {place, QObject::tr("Some amounts in the column of what went out are negative, and "
                               "some are not; write what was given back as what came in.")};
}

ImportError negativeIn(const Place &place)
{
    return {place, QObject::tr("An amount in the column of what came in is negative; write it as "
                               "what went out, or without its sign.")};
}

ImportError signUnknown(const Place &place, const QString &sign)
{
    return {place, QObject::tr("'%1' does not tell whether the amount went out; name what does "
                               "with --negative.")
                       .arg(quoted(sign))};
}

ImportError entryLeftOut(const Place &place)
{
    return {place,
            QObject::tr("The line is to be left out, but has a day; leave out fewer lines.")};
}

ImportError rowCutOff(const Place &place)
{
    return {place, QObject::tr("The file ends within its last line; fetch it again, or end it with "
                               "a line end.")};
}

ImportError missingValue(const Place &place, const QString &what)
{
    return {place, QObject::tr("The entry has no %1.").arg(what)};
}

ImportError ambiguousDates(const Place &place)
{
    return {place,
            QObject::tr("The days can be read in two ways; name the order with --date-format, "
                        "like M/D/YYYY.")};
}

ImportError otherCurrency(const Place &place, const QString &found, const QString &wanted)
{
    return {place, QObject::tr("The amount is in %1, and the account in %2.").arg(found, wanted)};
}

ImportError badProfile(const Place &place, const QString &reason)
{
    return {place, QObject::tr("This is no import profile: %1.").arg(reason)};
}

// ---- OFX and QIF -------------------------------------------------------------

ImportError notOfx(const Place &place)
{
    return {place, QObject::tr("There is no <OFX> in this file.")};
}

ImportError brokenTag(const Place &place)
{
    return {place, QObject::tr("A tag is broken: its name or its '>' is missing.")};
}

ImportError wrongClosingTag(const Place &place, const QString &closing, const QString &open,
                            qsizetype openedAt)
{
    return {place, QObject::tr("</%1> stands where the <%2> of line %3 should be closed.")
                       .arg(quoted(closing), quoted(open), QString::number(openedAt))};
}

ImportError tagNotClosed(const Place &place, const QString &tag)
{
    return {place, QObject::tr("<%1> is not closed.").arg(quoted(tag))};
}

ImportError nestedTooDeeply(const Place &place)
{
    return {place, QObject::tr("Tags are nested too deeply.")};
}

ImportError noStatement(const Place &place)
{
    return {place, QObject::tr("There is no statement of a bank account or a credit card.")};
}

ImportError severalStatements(const Place &place, const QStringList &accounts)
{
    return {place, QObject::tr("There are several statements; choose one with --statement: %1.")
                       .arg(listed(accounts))};
}

ImportError noSuchStatement(const Place &place, const QString &account, const QStringList &accounts)
{
    return {place, QObject::tr("There is no statement of '%1', but of: %2.")
                       .arg(quoted(account), listed(accounts))};
}

ImportError notQif(const Place &place)
{
    return {place, QObject::tr("The file does not begin with a QIF header like !Type:Bank.")};
}

ImportError unknownField(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' is no field of a bank statement.").arg(quoted(text))};
}

ImportError entryOutside(const Place &place)
{
    return {place, QObject::tr("An entry stands here outside of the list of a statement.")};
}

ImportError outsideDocument(const Place &place)
{
    return {place, QObject::tr("Here is more than what stands between <OFX> and </OFX>; make a "
                               "file of each document.")};
}

ImportError repeatedTag(const Place &place, const QString &tag)
{
    return {place, QObject::tr("<%1> is there a second time.").arg(quoted(tag))};
}

ImportError repeatedField(const Place &place, const QString &text)
{
    return {place, QObject::tr("With '%1' the entry has two lines of a kind; a line ^ may be "
                               "missing above.")
                       .arg(quoted(text))};
}

ImportError amountsDiffer(const Place &place, const QString &one, const QString &other)
{
    return {place,
            QObject::tr("The entry has two amounts, %1 and %2.").arg(quoted(one), quoted(other))};
}

ImportError severalAccounts(const Place &place)
{
    return {place, QObject::tr("The file holds entries of several accounts; make a file of each.")};
}

ImportError entryCutOff(const Place &place)
{
    return {place, QObject::tr("The file ends within an entry; fetch it again, or end it with a "
                               "line ^.")};
}

ImportError splitsDiffer(const Place &place, const QString &splits, const QString &whole)
{
    return {place, QObject::tr("The parts come to %1 and the whole to %2.").arg(splits, whole)};
}

} // namespace faults

} // namespace kiv::interchange

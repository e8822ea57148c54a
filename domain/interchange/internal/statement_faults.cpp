// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/statement_faults.h"

#include <QtCore/QObject>

namespace kiv::interchange::faults {

namespace {

QString listed(const QStringList &texts)
{
    QStringList shown;
    for (const QString &text : texts)
        shown += quoted(text);
    return shown.join(QStringLiteral(", "));
}

} // namespace

// ---- bank statements ---------------------------------------------------------

ImportError quoteNotClosed(const Place &place)
{
    return {place, QObject::tr("A quote opens here and is never closed.")};
}

ImportError textBehindQuote(const Place &place)
{
    return {place, QObject::tr("There is text after a closing quote, before the next delimiter.")};
}

ImportError noSuchColumn(const Place &place, const QString &column, const QStringList &columns)
{
    return {place, QObject::tr("There is no column '%1'; the columns are: %2.")
                       .arg(quoted(column), listed(columns))};
}

ImportError columnNotNamed(const Place &place, const QString &option, const QStringList &columns)
{
    return {place, QObject::tr("A column is not known; name it with %1. The columns are: %2.")
                       .arg(option, listed(columns))};
}

ImportError tooManyCells(const Place &place, qsizetype most)
{
    return {place, QObject::tr("The row has more than %1 cells.").arg(most)};
}

ImportError tableTooLarge(const Place &place, qsizetype charactersMax, qsizetype cellMin)
{
    return {place, QObject::tr("The table has more than %1 characters up to here, each cell "
                               "counted as at least %2; split the file.")
                       .arg(QString::number(charactersMax), QString::number(cellMin))};
}

ImportError tooFewCells(const Place &place, qsizetype present, qsizetype wanted)
{
    return {place, QObject::tr("The row has only %1 of the %2 cells it needs.")
                       .arg(QString::number(present), QString::number(wanted))};
}

ImportError tooManyCells(const Place &place, qsizetype present, qsizetype named)
{
    return {place, QObject::tr("The row has %1 cells but there are %2 headings; put quotes around "
                               "cells that contain the delimiter.")
                       .arg(QString::number(present), QString::number(named))};
}

ImportError amountDivided(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' is in two cells but may be one amount; put quotes around "
                               "amounts that contain the delimiter.")
                       .arg(quoted(text))};
}

ImportError columnsAlike(const Place &place, const QStringList &columns, const QString &heading,
                         const QString &option)
{
    return {place,
            QObject::tr("The columns %1 are all named '%2'; choose one by its number with %3.")
                .arg(columns.join(QStringLiteral(", ")), quoted(heading), option)};
}

ImportError headingsAreEntry(const Place &place)
{
    return {
        place,
        QObject::tr(
            "The heading line contains an entry; use --no-headings if the file has no headings.")};
}

ImportError entryAbove(const Place &place)
{
    return {place, QObject::tr("This line looks like an entry but is above the headings; say with "
                               "--skip how many lines are above them.")};
}

ImportError entryWithinQuotes(const Place &place)
{
    return {
        place,
        QObject::tr("This entry is inside quotes that open on an earlier line; close them there.")};
}

ImportError balanceDiffers(const Place &place, const QString &expected, const QString &found)
{
    return {place, QObject::tr("The entries add up to a balance of %1 here, but the file says %2; "
                               "--balance-column - skips this check.")
                       .arg(expected, found)};
}

ImportError emptyTable(const Place &place)
{
    return {place, QObject::tr("The file has no headings and no entries.")};
}

ImportError notADateFormat(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' is not a date form; combine YYYY, MM and DD, like DD.MM.YYYY.")
                       .arg(quoted(text))};
}

ImportError ownTable(const Place &place)
{
    return {
        place,
        QObject::tr(
            "This table is an exported ledger, not a bank statement; import the journal instead.")};
}

ImportError signsNotNamed(const Place &place, qsizetype column, const QString &sign)
{
    return {place, QObject::tr("No amount is negative, but column %1 contains '%2'; tell what went "
                               "out with --sign-column and --negative.")
                       .arg(QString::number(column), quoted(sign))};
}

ImportError bothWays(const Place &place)
{
    return {place, QObject::tr("The row has one amount that came in and one that went out.")};
}

ImportError mixedSigns(const Place &place)
{
    return {place, QObject::tr("The column of what went out has both signs; move refunds to the "
                               "column of what came in.")};
}

ImportError mixedFees(const Place &place)
{
    return {place, QObject::tr("The column of fees has both signs.")};
}

ImportError negativeIn(const Place &place)
{
    return {place, QObject::tr("An amount in the column of what came in is negative; move it to "
                               "what went out, or remove its sign.")};
}

ImportError signUnknown(const Place &place, const QString &sign)
{
    return {place, QObject::tr("'%1' does not tell whether the amount went out; name the words "
                               "that do with --negative.")
                       .arg(quoted(sign))};
}

ImportError entryLeftOut(const Place &place)
{
    return {
        place,
        QObject::tr("The line to be skipped contains a date; skip fewer lines with --skip-last.")};
}

ImportError rowCutOff(const Place &place)
{
    return {
        place,
        QObject::tr(
            "The last line may be cut off; download the file again, or end it with a line break.")};
}

ImportError missingValue(const Place &place, const QString &what)
{
    return {place, QObject::tr("The entry has no %1.").arg(what)};
}

ImportError missingDate(const Place &place)
{
    return {place, QObject::tr("The entry has no date.")};
}

ImportError ambiguousDates(const Place &place)
{
    return {place, QObject::tr("The dates can be read in two ways; name the order with "
                               "--date-format, like M/D/YYYY.")};
}

ImportError otherCurrency(const Place &place, const QString &found, const QString &wanted)
{
    return {place,
            QObject::tr("The amount is in %1, but the account is in %2.").arg(found, wanted)};
}

// ---- profiles ----------------------------------------------------------------

ImportError profileNotJson(const Place &place, const QString &reason)
{
    return {place, QObject::tr("The import profile is not valid JSON: %1.").arg(reason)};
}

ImportError profileNotAnObject(const Place &place)
{
    return {place, QObject::tr("The import profile is not a JSON object.")};
}

ImportError unknownProfileKey(const Place &place, const QString &key)
{
    return {place, QObject::tr("The import profile has an unknown key '%1'.").arg(quoted(key))};
}

ImportError wrongProfileValue(const Place &place, const QString &key)
{
    return {place, QObject::tr("The import profile has a wrong value for '%1'.").arg(key)};
}

// ---- OFX and QIF -------------------------------------------------------------

ImportError notOfx(const Place &place)
{
    return {place, QObject::tr("The file contains no <OFX>.")};
}

ImportError brokenTag(const Place &place)
{
    return {place, QObject::tr("A tag is broken: its name or its '>' is missing.")};
}

ImportError wrongClosingTag(const Place &place, const QString &closing, const QString &open,
                            qsizetype openedAt)
{
    return {place, QObject::tr("</%1> does not close <%2>, which opens on line %3.")
                       .arg(quoted(closing), quoted(open), QString::number(openedAt))};
}

ImportError tagNotClosed(const Place &place, const QString &tag)
{
    return {place, QObject::tr("<%1> is never closed.").arg(quoted(tag))};
}

ImportError noStatement(const Place &place)
{
    return {place, QObject::tr("The file contains no statement of a bank account or credit card.")};
}

ImportError severalStatements(const Place &place, const QStringList &accounts)
{
    return {place,
            QObject::tr("The file contains several statements; choose one with --statement: %1.")
                .arg(listed(accounts))};
}

ImportError noSuchStatement(const Place &place, const QString &account, const QStringList &accounts)
{
    return {place, QObject::tr("The file contains no statement of '%1'; choose one of: %2.")
                       .arg(quoted(account), listed(accounts))};
}

ImportError notQif(const Place &place)
{
    return {place, QObject::tr("The file does not begin with a QIF header like !Type:Bank.")};
}

ImportError unknownField(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' is not a known field of a bank statement.").arg(quoted(text))};
}

ImportError entryOutside(const Place &place)
{
    return {place, QObject::tr("This entry belongs to no statement.")};
}

ImportError outsideDocument(const Place &place)
{
    return {place,
            QObject::tr(
                "There is text outside <OFX> and </OFX>; put each document into its own file.")};
}

ImportError repeatedTag(const Place &place, const QString &tag)
{
    return {place, QObject::tr("<%1> appears twice.").arg(quoted(tag))};
}

ImportError repeatedField(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' repeats a field of this entry; a line ^ may be missing above.")
                       .arg(quoted(text))};
}

ImportError amountsDiffer(const Place &place, const QString &one, const QString &other)
{
    return {place, QObject::tr("The entry has two different amounts, %1 and %2.")
                       .arg(quoted(one), quoted(other))};
}

ImportError severalAccounts(const Place &place)
{
    return {place,
            QObject::tr(
                "The file has entries of several accounts; put each account into its own file.")};
}

ImportError entryCutOff(const Place &place)
{
    return {
        place,
        QObject::tr(
            "The last entry may be cut off; download the file again, or end it with a line ^.")};
}

ImportError splitsDiffer(const Place &place, const QString &splits, const QString &whole)
{
    return {place, QObject::tr("The parts add up to %1, but the whole is %2.").arg(splits, whole)};
}

// ---- CAMT and MT940 ----------------------------------------------------------

ImportError notCamt(const Place &place)
{
    return {place, QObject::tr("The file contains no CAMT message about an account.")};
}

ImportError documentType(const Place &place)
{
    return {place, QObject::tr("The file has a document type (<!DOCTYPE>), which may refer to "
                               "other files; banks write none.")};
}

ImportError brokenXml(const Place &place, const QString &reason)
{
    return {place, QObject::tr("The XML is broken here: %1").arg(quoted(reason))};
}

ImportError notMt940(const Place &place)
{
    return {place, QObject::tr("The file contains no MT940 statement; one begins with :20:.")};
}

ImportError brokenField(const Place &place, const QString &text, const QString &form)
{
    return {place,
            QObject::tr("'%1' cannot be read; it should be like %2.").arg(quoted(text), form)};
}

ImportError statementCutOff(const Place &place, qsizetype openedAt)
{
    return {place, QObject::tr("The statement that begins on line %1 has no closing balance; it "
                               "may be cut off. Download the file again.")
                       .arg(openedAt)};
}

} // namespace kiv::interchange::faults

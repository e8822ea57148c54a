// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/internal/faults.h"

/// The sentences with which bank statements and their profiles are refused.
namespace kiv::interchange::faults {

// ---- bank statements ---------------------------------------------------------

[[nodiscard]] ImportError quoteNotClosed(const Place &place);
[[nodiscard]] ImportError textBehindQuote(const Place &place);
[[nodiscard]] ImportError noSuchColumn(const Place &place, const QString &column,
                                       const QStringList &columns);
[[nodiscard]] ImportError columnNotNamed(const Place &place, const QString &option,
                                         const QStringList &columns);
[[nodiscard]] ImportError tooManyCells(const Place &place, qsizetype most);
/// A cell counts as `cellMin` characters at least.
[[nodiscard]] ImportError tableTooLarge(const Place &place, qsizetype charactersMax,
                                        qsizetype cellMin);
[[nodiscard]] ImportError tooFewCells(const Place &place, qsizetype present, qsizetype wanted);
[[nodiscard]] ImportError tooManyCells(const Place &place, qsizetype present, qsizetype named);
/// A comma within an amount that has no quotes around it makes two cells of it.
[[nodiscard]] ImportError amountDivided(const Place &place, const QString &text);
/// `columns` are the numbers of those that share the heading.
[[nodiscard]] ImportError columnsAlike(const Place &place, const QStringList &columns,
                                       const QString &heading, const QString &option);
[[nodiscard]] ImportError headingsAreEntry(const Place &place);
/// It would be lost with the lines above the headings.
[[nodiscard]] ImportError entryAbove(const Place &place);
[[nodiscard]] ImportError entryWithinQuotes(const Place &place);
[[nodiscard]] ImportError balanceDiffers(const Place &place, const QString &expected,
                                         const QString &found);
[[nodiscard]] ImportError emptyTable(const Place &place);
[[nodiscard]] ImportError notADateFormat(const Place &place, const QString &text);
[[nodiscard]] ImportError ownTable(const Place &place);
[[nodiscard]] ImportError signsNotNamed(const Place &place, qsizetype column, const QString &sign);
[[nodiscard]] ImportError bothWays(const Place &place);
[[nodiscard]] ImportError mixedSigns(const Place &place);
[[nodiscard]] ImportError mixedFees(const Place &place);
[[nodiscard]] ImportError negativeIn(const Place &place);
[[nodiscard]] ImportError signUnknown(const Place &place, const QString &sign);
[[nodiscard]] ImportError entryLeftOut(const Place &place);
[[nodiscard]] ImportError rowCutOff(const Place &place);
/// `what` is the name of a tag.
[[nodiscard]] ImportError missingValue(const Place &place, const QString &what);
[[nodiscard]] ImportError missingDate(const Place &place);
[[nodiscard]] ImportError ambiguousDates(const Place &place);
/// An amount stands in another currency than the account that it is for.
[[nodiscard]] ImportError otherCurrency(const Place &place, const QString &found,
                                        const QString &wanted);

// ---- profiles ----------------------------------------------------------------

[[nodiscard]] ImportError profileNotJson(const Place &place, const QString &reason);
[[nodiscard]] ImportError profileNotAnObject(const Place &place);
[[nodiscard]] ImportError unknownProfileKey(const Place &place, const QString &key);
[[nodiscard]] ImportError wrongProfileValue(const Place &place, const QString &key);

// ---- OFX and QIF -------------------------------------------------------------

[[nodiscard]] ImportError notOfx(const Place &place);
[[nodiscard]] ImportError brokenTag(const Place &place);
[[nodiscard]] ImportError wrongClosingTag(const Place &place, const QString &closing,
                                          const QString &open, qsizetype openedAt);
[[nodiscard]] ImportError tagNotClosed(const Place &place, const QString &tag);
[[nodiscard]] ImportError noStatement(const Place &place);
[[nodiscard]] ImportError severalStatements(const Place &place, const QStringList &accounts);
[[nodiscard]] ImportError noSuchStatement(const Place &place, const QString &account,
                                          const QStringList &accounts);
[[nodiscard]] ImportError notQif(const Place &place);
[[nodiscard]] ImportError unknownField(const Place &place, const QString &text);
/// An entry stands where it belongs to no statement.
[[nodiscard]] ImportError entryOutside(const Place &place);
[[nodiscard]] ImportError outsideDocument(const Place &place);
[[nodiscard]] ImportError repeatedTag(const Place &place, const QString &tag);
/// The entry has such a line already.
[[nodiscard]] ImportError repeatedField(const Place &place, const QString &text);
[[nodiscard]] ImportError amountsDiffer(const Place &place, const QString &one,
                                        const QString &other);
[[nodiscard]] ImportError severalAccounts(const Place &place);
[[nodiscard]] ImportError entryCutOff(const Place &place);
[[nodiscard]] ImportError splitsDiffer(const Place &place, const QString &splits,
                                       const QString &whole);

// ---- CAMT and MT940 ----------------------------------------------------------

[[nodiscard]] ImportError notCamt(const Place &place);
/// A document type can name entities, and so other files.
[[nodiscard]] ImportError documentType(const Place &place);
[[nodiscard]] ImportError brokenXml(const Place &place, const QString &reason);
[[nodiscard]] ImportError notMt940(const Place &place);
/// `form` is how the field is written.
[[nodiscard]] ImportError brokenField(const Place &place, const QString &text, const QString &form);
/// The statement begins on line `openedAt` and has no closing balance.
[[nodiscard]] ImportError statementCutOff(const Place &place, qsizetype openedAt);

} // namespace kiv::interchange::faults

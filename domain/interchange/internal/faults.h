// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/errors.h"

#include <QtCore/QStringList>

namespace kiv::interchange {

/// The sentences with which the readers refuse data, one function for each. A sentence
/// says what to do next where that is not obvious.
namespace faults {

/// A text of the file, shortened and without control characters, to stand in a sentence.
[[nodiscard]] QString quoted(const QString &text);

// ---- any file ----------------------------------------------------------------

[[nodiscard]] ImportError unknownEncoding(const Place &place, const QString &encoding);
[[nodiscard]] ImportError wrongEncoding(const Place &place, const QString &encoding);
[[nodiscard]] ImportError lineTooLong(const Place &place, qsizetype charactersMax);
[[nodiscard]] ImportError textTooLong(const Place &place, qsizetype charactersMax);
[[nodiscard]] ImportError descriptionsTooLong(const Place &place, qsizetype charactersMax);
[[nodiscard]] ImportError tooManyTransactions(const Place &place, qsizetype most);
[[nodiscard]] ImportError notADate(const Place &place, const QString &text, const QString &format);
/// A day of a file whose form the user can name.
[[nodiscard]] ImportError notInDateFormat(const Place &place, const QString &text,
                                          const QString &format);
[[nodiscard]] ImportError notANumber(const Place &place, const QString &text);
[[nodiscard]] ImportError ambiguousNumber(const Place &place, const QString &text);
[[nodiscard]] ImportError tooLarge(const Place &place, const std::exception &cause);
[[nodiscard]] ImportError tooManyDigits(const Place &place, const QString &text,
                                        const QString &currency, unsigned digitsMax);
[[nodiscard]] ImportError notACurrency(const Place &place, const QString &text);

// ---- journals ----------------------------------------------------------------

[[nodiscard]] ImportError unknownDirective(const Place &place, const QString &text);
[[nodiscard]] ImportError unsupported(const Place &place, const QString &what);
[[nodiscard]] ImportError strayLine(const Place &place);
[[nodiscard]] ImportError notClosed(const Place &place, const QString &what);
[[nodiscard]] ImportError unknownRoot(const Place &place, const QString &root);
[[nodiscard]] ImportError noAccount(const Place &place);
[[nodiscard]] ImportError notAnAmount(const Place &place, const QString &text);
[[nodiscard]] ImportError withoutCurrency(const Place &place, const QString &text);
[[nodiscard]] ImportError notMoney(const Place &place, const QString &commodity);
[[nodiscard]] ImportError tooFewPostings(const Place &place);
[[nodiscard]] ImportError severalWithoutAmount(const Place &place);
[[nodiscard]] ImportError notBalanced(const Place &place, const QString &rest);
[[nodiscard]] ImportError assertionFailed(const Place &place, const QString &account,
                                          const QString &asserted, const QString &found);
[[nodiscard]] ImportError badPattern(const Place &place, const QString &pattern);
[[nodiscard]] ImportError tooManyAccounts(const Place &place, qsizetype most);
[[nodiscard]] ImportError pathsTooLong(const Place &place, qsizetype charactersMax);
[[nodiscard]] ImportError kindDeclaredLate(const Place &place, const QString &account);
/// What ledger and hledger read in two ways.
[[nodiscard]] ImportError ambiguousAlias(const Place &place, const QString &account);
[[nodiscard]] ImportError ambiguousAssignment(const Place &place, const QString &account);
[[nodiscard]] ImportError ambiguousMultiplier(const Place &place, const QString &text);
[[nodiscard]] ImportError ambiguousRule(const Place &place, const QString &account);
[[nodiscard]] ImportError tooManyRules(const Place &place, std::size_t most);
[[nodiscard]] ImportError includeWithoutFolder(const Place &place, const QString &path);
[[nodiscard]] ImportError includedTooDeeply(const Place &place, const QString &path);
[[nodiscard]] ImportError tooManyIncludes(const Place &place, const QString &path, int most);

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
[[nodiscard]] ImportError entryWithinQuotes(const Place &place);
[[nodiscard]] ImportError balanceDiffers(const Place &place, const QString &expected,
                                         const QString &found);
[[nodiscard]] ImportError emptyTable(const Place &place);
[[nodiscard]] ImportError notADateFormat(const Place &place, const QString &text);
[[nodiscard]] ImportError ownTable(const Place &place);
[[nodiscard]] ImportError signsNotNamed(const Place &place, qsizetype column, const QString &sign);
[[nodiscard]] ImportError bothWays(const Place &place);
[[nodiscard]] ImportError mixedSigns(const Place &place);
[[nodiscard]] ImportError negativeIn(const Place &place);
[[nodiscard]] ImportError signUnknown(const Place &place, const QString &sign);
[[nodiscard]] ImportError entryLeftOut(const Place &place);
[[nodiscard]] ImportError rowCutOff(const Place &place);
/// `what` is the name of a tag.
[[nodiscard]] ImportError missingValue(const Place &place, const QString &what);
[[nodiscard]] ImportError missingAmount(const Place &place);
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
[[nodiscard]] ImportError nestedTooDeeply(const Place &place);
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

// ---- reports -----------------------------------------------------------------

[[nodiscard]] foundation::Error reportEndsFirst();
[[nodiscard]] foundation::Error reportTooLong(int monthsMax);

} // namespace faults

} // namespace kiv::interchange

// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/journal_faults.h"

#include <QtCore/QObject>

namespace kiv::interchange::faults {

ImportError unknownDirective(const Place &place, const QString &text)
{
    return {place,
            QObject::tr(
                "'%1' is not a known transaction or directive; put ; before the line to skip it.")
                .arg(quoted(text))};
}

ImportError strayLine(const Place &place)
{
    return {place, QObject::tr("The line is indented but belongs to no transaction or directive.")};
}

ImportError notClosed(const Place &place, const QString &what)
{
    return {place, QObject::tr("'%1' begins here and is never closed.").arg(quoted(what))};
}

ImportError unknownRoot(const Place &place, const QString &root)
{
    return {place, QObject::tr("'%1' is not a known top-level account; tell what it is with "
                               "--root, like --root '%1=asset'.")
                       .arg(quoted(root))};
}

ImportError noAccount(const Place &place)
{
    return {place, QObject::tr("The account name is missing.")};
}

ImportError notAnAmount(const Place &place, const QString &text)
{
    return {place, QObject::tr("'%1' is not an amount.").arg(quoted(text))};
}

ImportError notMoney(const Place &place, const QString &commodity)
{
    return {place, QObject::tr("'%1' is not a currency; write its cost after @, or name its "
                               "currency, like --commodity '%1=USD'.")
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
    return {place, QObject::tr("The transaction does not balance; it is off by %1.").arg(rest)};
}

ImportError assertionFailed(const Place &place, const QString &account, const QString &asserted,
                            const QString &found)
{
    return {place, QObject::tr("The balance of '%1' should be %2 here, but is %3.")
                       .arg(quoted(account), asserted, found)};
}

ImportError otherCommodities(const Place &place, const QString &account, const QString &commodity)
{
    return {place, QObject::tr("'%1' should have nothing but %2 here, but has more.")
                       .arg(quoted(account), quoted(commodity))};
}

ImportError ambiguousLot(const Place &place, const QString &commodity)
{
    return {place, QObject::tr("Programs differ on what '%1' costs here; write the price of its "
                               "lot after @, too.")
                       .arg(quoted(commodity))};
}

ImportError badPattern(const Place &place, const QString &pattern)
{
    return {place,
            QObject::tr("'%1' is not a valid pattern for account names.").arg(quoted(pattern))};
}

ImportError tooManyAccounts(const Place &place, qsizetype most)
{
    return {
        place,
        QObject::tr("A journal can have at most %1 accounts, parent accounts included.").arg(most)};
}

ImportError pathsTooLong(const Place &place, qsizetype charactersMax)
{
    return {place, QObject::tr("The full names of all accounts up to here have more than %1 "
                               "characters together; shorten them.")
                       .arg(charactersMax)};
}

ImportError kindDeclaredLate(const Place &place, const QString &account)
{
    return {place, QObject::tr("The kind of '%1' is declared too late; move the declaration above "
                               "the account's first transaction.")
                       .arg(quoted(account))};
}

ImportError ambiguousAlias(const Place &place, const QString &account)
{
    return {place,
            QObject::tr("Programs differ on how aliases rename '%1'; write the full account name.")
                .arg(quoted(account))};
}

ImportError ambiguousAssignment(const Place &place, const QString &account)
{
    return {
        place,
        QObject::tr("Programs differ on which amount gives this balance of '%1'; write the amount.")
            .arg(quoted(account))};
}

ImportError ambiguousMultiplier(const Place &place, const QString &text)
{
    return {
        place,
        QObject::tr("'%1' may be an amount or a multiplier; add its currency, or put * before it.")
            .arg(quoted(text))};
}

ImportError ambiguousRule(const Place &place, const QString &account)
{
    return {place, QObject::tr("Programs differ on whether this automated transaction applies to "
                               "'%1', which was posted earlier or automatically.")
                       .arg(quoted(account))};
}

ImportError tooManyRules(const Place &place, std::size_t most)
{
    return {place, QObject::tr("A journal can have at most %1 automated transactions.").arg(most)};
}

ImportError includeWithoutFolder(const Place &place, const QString &path)
{
    return includeRefused(place, path, QObject::tr("the journal has no folder"));
}

ImportError includedTooDeeply(const Place &place, const QString &path)
{
    return includeRefused(place, path, QObject::tr("too many files include each other"));
}

ImportError tooManyIncludes(const Place &place, const QString &path, int most)
{
    return includeRefused(place, path,
                          QObject::tr("a journal can include at most %1 files").arg(most));
}

ImportError includeRefused(const Place &place, const QString &path, const QString &reason)
{
    return {place, QObject::tr("Cannot include '%1': %2.").arg(quoted(path), reason)};
}

} // namespace kiv::interchange::faults

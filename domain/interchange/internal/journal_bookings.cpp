// SPDX-License-Identifier: GPL-3.0-or-later
// JournalBooks: the accounts, and the transactions between two of them
#include "interchange/internal/journal_books.h"

#include "interchange/internal/faults.h"
#include "interchange/internal/journal_faults.h"
#include "interchange/internal/limits.h"

#include "interchange/account_paths.h"

#include "foundation/presentation.h"
#include "foundation/streams.h"

#include <QtCore/QObject>

#include <deque>

namespace kiv::interchange::internal {

using accounting::AccountTypes;

AccountTypes JournalBooks::typeOf(const QString &name, const QString &root,
                                  const Place &place) const
{
    // The nearest declaration counts, and then the root.
    for (QString above = name; !above.isEmpty();
         above = above.contains(u':') ? above.section(u':', 0, -2) : QString()) {
        const auto declared = m_declaredTypes.find(above);
        if (declared != m_declaredTypes.end())
            return declared->second;
    }
    const auto given = m_options.roots.find(root.toLower());
    const AccountTypes type = given == m_options.roots.end() ? typeOfRoot(root) : given->second;
    if (type == AccountTypes::Unknown)
        throw faults::unknownRoot(place, root);
    return type;
}

void JournalBooks::checkKinds() const
{
    for (const auto &[key, known] : m_known) {
        if (typeOf(key.first, key.first.section(u':', 0, 0).simplified(), known.place) !=
            m_draft.accounts[known.index].type)
            throw faults::kindDeclaredLate(known.place, key.first);
    }
}

std::size_t JournalBooks::accountOf(const QString &name, const numira::Currency &currency,
                                    const Place &place)
{
    const auto known = m_known.find({name, currency});
    if (known != m_known.end())
        return known->second.index;
    const std::size_t index = newAccount(name, currency, place);
    m_known.emplace(std::pair(name, currency), KnownAccount{index, place});
    return index;
}

std::size_t JournalBooks::newAccount(const QString &name, const numira::Currency &currency,
                                     const Place &place)
{
    // No chart of accounts is so deep; each level opens an account of its own.
    constexpr qsizetype levelsMax = 100;
    QStringList names = name.split(u':');
    if (names.size() > levelsMax)
        throw faults::unsupported(place, name);
    QString whole;
    for (QString &part : names) {
        part = part.simplified();
        if (part.isEmpty())
            throw faults::noAccount(place);
        whole += (whole.isEmpty() ? QString() : QStringLiteral(":")) + part;
        // It may be known as a parent, or in another currency.
        if (m_paths.contains(whole) && &part != &names.back())
            continue;
        m_paths.insert(whole);
        m_pathsSize += whole.size();
        if (m_pathsSize > limits::accountPathsMax)
            throw faults::pathsTooLong(place, limits::accountPathsMax);
        if (++m_opened > limits::accountsMax)
            throw faults::tooManyAccounts(place, limits::accountsMax);
    }
    DraftAccount account;
    account.type = typeOf(name, names.front(), place);
    // Postings to the top-level name itself get an account of that name.
    if (names.size() > 1)
        names.removeFirst();
    account.names = names;
    account.currency = currency;
    if (const auto number = m_declaredNumbers.find(name); number != m_declaredNumbers.end())
        account.number = number->second;
    const std::size_t index = indexOf(std::move(account), whole);
    if (m_names[index] != whole && !std::exchange(m_hasJoined, true))
        notice(QObject::tr("Some accounts are merged into one, such as '%1' and '%2'.")
                   .arg(foundation::escaped(m_names[index]), foundation::escaped(whole)));
    return index;
}

std::size_t JournalBooks::indexOf(DraftAccount account, const QString &name)
{
    const auto [known, isNew] = m_indexes.try_emplace(
        {account.type, account.names, account.currency}, m_draft.accounts.size());
    if (isNew) {
        m_draft.accounts.push_back(std::move(account));
        m_names.push_back(name);
    }
    return known->second;
}

JournalBooks::Booking JournalBooks::bookingOf(const Posting &posting)
{
    std::optional<numira::Currency> currency = currencyOf(posting.known().commodity);
    const Quantity *kept = &posting.known();
    if (!currency && posting.cost) {
        kept = &*posting.cost;
        currency = currencyOf(kept->commodity);
        notice(QObject::tr("Commodities other than currencies are kept at their cost."));
    }
    if (!currency)
        throw faults::notMoney(posting.place, kept->commodity);
    return {accountOf(posting.account, *currency, posting.place),
            numira::Money(*currency, kept->number), posting.status, posting.comments};
}

void JournalBooks::book(const Entry &entry)
{
    std::vector<Booking> bookings;
    for (const Posting &posting : entry.postings) {
        Booking booking = bookingOf(posting);
        if (posting.kind == PostingKind::Virtual) {
            notice(QObject::tr("Unbalanced virtual postings are posted against Equity:Virtual."));
            const numira::Money amount = booking.amount;
            settle(entry,
                   {std::move(booking),
                    {indexOf({AccountTypes::Equity, {QStringLiteral("Virtual")}, amount.code()},
                             QStringLiteral("Equity:Virtual")),
                     -amount}});
        } else {
            bookings.push_back(std::move(booking));
        }
    }
    addConversions(bookings);
    settle(entry, std::move(bookings));
}

void JournalBooks::addConversions(std::vector<Booking> &bookings)
{
    std::map<numira::Currency, numira::Money> sums;
    for (const Booking &booking : bookings)
        sums.try_emplace(booking.amount.code(), booking.amount.code()).first->second +=
            booking.amount;
    for (const auto &[currency, sum] : sums) {
        if (sum.isZero())
            continue;
        bookings.push_back(
            {indexOf(conversionAccount(currency),
                     QStringLiteral("Equity:Conversion:") + foundation::toQString(currency)),
             -sum});
    }
}

void JournalBooks::settle(const Entry &entry, std::vector<Booking> bookings)
{
    // An account with debits and credits only changes by the difference; money cannot go
    // from it to itself.
    std::map<std::size_t, std::pair<bool, bool>> ways;
    for (const Booking &booking : bookings) {
        ways[booking.account].first |= booking.amount.isPositive();
        ways[booking.account].second |= booking.amount.isNegative();
    }
    std::map<std::size_t, Booking> nets;
    std::deque<Booking> debits;
    std::deque<Booking> credits;
    const auto sort = [&](Booking booking) {
        if (booking.amount.isPositive())
            debits.push_back(std::move(booking));
        else if (booking.amount.isNegative())
            credits.push_back(std::move(booking));
    };
    for (Booking &booking : bookings) {
        if (ways[booking.account] != std::pair(true, true)) {
            sort(std::move(booking));
            continue;
        }
        const auto [net, isNew] = nets.try_emplace(booking.account, booking);
        if (!isNew) {
            net->second.amount += booking.amount;
            net->second.comments += booking.comments;
        }
    }
    for (auto &[account, net] : nets)
        sort(std::move(net));

    // Each pass settles one booking. In each currency, both sides have the same sum.
    std::ranges::stable_sort(debits, {}, [](const Booking &b) { return b.amount.code(); });
    std::ranges::stable_sort(credits, {}, [](const Booking &b) { return b.amount.code(); });
    while (!debits.empty()) {
        Booking &debit = debits.front();
        Booking &credit = credits.front();
        const numira::Money amount = std::min(debit.amount, -credit.amount);
        addTransaction(entry, debit, credit, amount);
        debit.amount -= amount;
        credit.amount += amount;
        if (debit.amount.isZero())
            debits.pop_front();
        if (credit.amount.isZero())
            credits.pop_front();
    }
}

void JournalBooks::addTransaction(const Entry &entry, const Booking &debit, const Booking &credit,
                                  const numira::Money &amount)
{
    // The most characters of comments in a description. Each pair of postings repeats them.
    constexpr qsizetype commentsMax = 2000;
    constexpr qsizetype lengthMin = 20; // limits the number of short ones
    qsizetype length = 0;
    QStringList texts{entry.description};
    for (const QStringList *comments : {&entry.comments, &debit.comments, &credit.comments}) {
        for (const QString &comment : *comments) {
            length += std::max(comment.size() + 1, lengthMin);
            if (length > commentsMax) {
                notice(QObject::tr("Long comments are cut off."));
                break;
            }
            if (!comment.isEmpty() && !texts.contains(comment))
                texts += comment;
        }
    }
    texts.removeAll(QString());
    QString text = texts.join(QStringLiteral("; "));
    m_descriptionsSize += text.size();
    if (m_descriptionsSize > limits::descriptionsMax)
        throw faults::descriptionsTooLong(entry.place, limits::descriptionsMax);
    if (static_cast<qsizetype>(m_draft.transactions.size()) >= transactionsMax)
        throw faults::tooManyTransactions(entry.place, transactionsMax);
    m_draft.transactions.push_back({entry.date, debit.account, credit.account, amount,
                                    std::move(text), debit.status, credit.status, entry.place});
}

} // namespace kiv::interchange::internal

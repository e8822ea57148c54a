// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/journal_books.h"

#include "interchange/internal/faults.h"

#include "interchange/account_paths.h"

#include "foundation/presentation.h"
#include "numira/error.h"

#include <QtCore/QObject>

#include <deque>

namespace kiv::interchange::internal {

using accounting::AccountTypes;

namespace {

using Sums = std::map<QString, numira::Decimal>;

Sums withoutZeros(Sums sums)
{
    std::erase_if(sums, [](const auto &sum) { return sum.second.sign() == 0; });
    return sums;
}

QString textOf(const Sums &sums)
{
    QStringList texts;
    for (const auto &[commodity, number] : sums)
        texts += presentationText(Quantity{number, commodity});
    return texts.join(QStringLiteral(", "));
}

std::optional<numira::Currency> currencyOf(const QString &commodity)
{
    return readCurrency(commodity, numira::Currency());
}

/// Whether so little is left that it comes from rounding a price's product: at
/// most half a minor unit.
bool isRounding(const QString &commodity, const numira::Decimal &rest)
{
    const auto currency = currencyOf(commodity);
    return currency && rest.roundedHalfEven(numira::minorUnitDigits(*currency)).sign() == 0;
}

} // namespace

void JournalBooks::notice(const QString &sentence)
{
    if (!m_draft.notices.contains(sentence))
        m_draft.notices += sentence;
}

void JournalBooks::declare(const QString &account, const std::map<QString, QString> &tags,
                           const Place &place)
{
    static const std::map<QString, AccountTypes> types{
        {QStringLiteral("a"), AccountTypes::Asset},     {QStringLiteral("c"), AccountTypes::Asset},
        {QStringLiteral("l"), AccountTypes::Liability}, {QStringLiteral("e"), AccountTypes::Equity},
        {QStringLiteral("v"), AccountTypes::Equity},    {QStringLiteral("r"), AccountTypes::Income},
        {QStringLiteral("x"), AccountTypes::Expense}};
    if (account.isEmpty())
        throw faults::noAccount(place);
    if (const auto tag = tags.find(QStringLiteral("type")); tag != tags.end()) {
        const auto byWord = typeOfRoot(tag->second);
        const auto byLetter = types.find(tag->second.toLower());
        if (byWord == AccountTypes::Unknown && byLetter == types.end())
            throw faults::unsupported(place, QStringLiteral("type: ") + tag->second);
        m_declaredTypes.insert_or_assign(account,
                                         byLetter == types.end() ? byWord : byLetter->second);
    }
    if (const auto tag = tags.find(QStringLiteral("number")); tag != tags.end()) {
        const uint number = tag->second.toUInt();
        if (number == 0)
            throw faults::unsupported(place, QStringLiteral("number: ") + tag->second);
        m_declaredNumbers.insert_or_assign(account, accounting::AccountNumber(number));
    }
    if (const auto tag = tags.find(QStringLiteral("currency")); tag != tags.end()) {
        const auto currency = currencyOf(tag->second);
        if (!currency)
            throw faults::notACurrency(place, tag->second);
        m_wanted.emplace_back(account, *currency, place);
    }
}

// ---- entries -------------------------------------------------------------------

void JournalBooks::add(AutomatedEntry automated)
{
    Rule rule{QRegularExpression(automated.pattern, QRegularExpression::CaseInsensitiveOption),
              std::move(automated.entry)};
    // Each is tried on each posting.
    constexpr std::size_t rulesMax = 100;
    constexpr qsizetype patternMax = 200;
    const Place &place = rule.entry.place;
    if (m_rules.size() >= rulesMax)
        throw faults::tooManyRules(place, rulesMax);
    if (automated.pattern.size() > patternMax)
        throw faults::unsupported(place, automated.pattern);
    if (!rule.pattern.isValid())
        throw faults::badPattern(place, automated.pattern);
    for (const Posting &posting : rule.entry.postings) {
        if (posting.assertion)
            throw faults::unsupported(posting.place,
                                      QStringLiteral("= ") + presentationText(*posting.assertion));
        if (posting.cost)
            throw faults::unsupported(posting.place, QStringLiteral("@"));
        if (!posting.amount)
            throw faults::missingValue(posting.place, QObject::tr("amount"));
    }
    m_rules.push_back(std::move(rule));
}

void JournalBooks::add(Entry entry)
try {
    if (entry.postings.empty())
        throw faults::tooFewPostings(entry.place);
    for (const Posting &posting : entry.postings) {
        if (posting.amount && posting.weight().commodity.isEmpty())
            throw faults::withoutCurrency(posting.place, presentationText(*posting.amount));
        if (posting.assertion && posting.assertion->commodity.isEmpty())
            throw faults::withoutCurrency(posting.place, presentationText(*posting.assertion));
    }
    assign(entry);
    fill(entry.postings, entry.place);
    move(entry);
    book(entry);
    applyRules(entry);
} catch (const numira::Error &cause) {
    throw faults::tooLarge(entry.place, cause);
}

void JournalBooks::assign(Entry &entry)
{
    // "Assets:Cash  = $100" without an amount means what leads there.
    for (Posting &posting : entry.postings) {
        if (posting.amount || !posting.assertion)
            continue;
        const auto found = m_balances.find({posting.account, posting.assertion->commodity});
        const numira::Decimal present =
            found == m_balances.end() ? numira::Decimal() : found->second;
        posting.amount = {posting.assertion->number - present, posting.assertion->commodity};
    }
}

void JournalBooks::fill(std::vector<Posting> &postings, const Place &place)
{
    std::vector<Posting> filled;
    for (const PostingKind kind : {PostingKind::Real, PostingKind::BalancedVirtual}) {
        std::vector<Posting *> group;
        Posting *open = nullptr;
        for (Posting &posting : postings) {
            if (posting.kind != kind)
                continue;
            if (!posting.amount && std::exchange(open, &posting))
                throw faults::severalWithoutAmount(posting.place);
            if (posting.amount)
                group.push_back(&posting);
        }
        if (!open) {
            checkBalance(group, place);
            continue;
        }
        Sums sums;
        for (const Posting *posting : group)
            sums[posting->weight().commodity] += posting->weight().number;
        for (const auto &[commodity, number] : withoutZeros(std::move(sums))) {
            Posting rest = *open;
            rest.amount = {-number, commodity};
            filled.push_back(std::move(rest));
        }
    }
    for (const Posting &posting : postings) {
        if (!posting.amount && posting.kind == PostingKind::Virtual)
            throw faults::missingValue(posting.place, QObject::tr("amount"));
    }
    std::erase_if(postings, [](const Posting &posting) { return !posting.amount; });
    std::ranges::move(filled, std::back_inserter(postings));
}

void JournalBooks::checkBalance(std::vector<Posting *> &group, const Place &place)
{
    Sums sums;
    bool hasCosts = false;
    for (const Posting *posting : group) {
        sums[posting->weight().commodity] += posting->weight().number;
        hasCosts = hasCosts || posting->cost;
    }
    const Sums rest = withoutZeros(std::move(sums));
    if (hasCosts && std::ranges::all_of(
                        rest, [](const auto &sum) { return isRounding(sum.first, sum.second); }))
        return;
    const bool isExchange = !hasCosts && rest.size() == 2 &&
                            rest.begin()->second.sign() != rest.rbegin()->second.sign();
    if (!rest.empty() && !isExchange)
        throw faults::notBalanced(place, textOf(rest));
    if (isExchange)
        inferCost(group, rest);
}

void JournalBooks::inferCost(std::vector<Posting *> &group, const Sums &rest)
{
    // What is no currency, and stands in one posting, cost what was paid.
    for (const auto &[commodity, number] : rest) {
        if (currencyOf(commodity))
            continue;
        const auto isIt = [&name = commodity](const Posting *posting) {
            return posting->known().commodity == name;
        };
        const auto &paid = rest.begin()->first == commodity ? *rest.rbegin() : *rest.begin();
        if (std::ranges::count_if(group, isIt) == 1)
            (*std::ranges::find_if(group, isIt))->cost = Quantity{-paid.second, paid.first};
    }
}

void JournalBooks::applyRules(const Entry &entry)
{
    for (Rule &rule : m_rules) {
        for (const Posting &posting : entry.postings) {
            auto known = rule.fits.find(posting.account);
            if (known == rule.fits.end()) {
                const auto match = rule.pattern.match(posting.account);
                if (!match.isValid())
                    throw faults::badPattern(rule.entry.place, rule.pattern.pattern());
                known = rule.fits.emplace(posting.account, match.hasMatch()).first;
            }
            if (!known->second)
                continue;
            Entry added = entry;
            added.postings = rule.entry.postings;
            for (Posting &extra : added.postings) {
                extra.status = posting.status;
                if (extra.known().commodity.isEmpty())
                    extra.amount = {posting.known().number * extra.known().number,
                                    posting.known().commodity};
            }
            fill(added.postings, rule.entry.place);
            move(added);
            book(added);
        }
    }
}

// ---- assertions ----------------------------------------------------------------

void JournalBooks::move(const Entry &entry)
{
    // The transactions are counted when they are made; what moves nothing makes none.
    constexpr std::size_t movementsMax = 4 * transactionsMax;
    if (m_movements.size() + entry.postings.size() > movementsMax)
        throw faults::tooManyTransactions(entry.place, transactionsMax);
    for (const Posting &posting : entry.postings) {
        numira::Decimal &balance = m_balances[{posting.account, posting.known().commodity}];
        balance += posting.known().number;
        if (posting.assertion && !m_failedAssertion) {
            const numira::Decimal present =
                m_balances[{posting.account, posting.assertion->commodity}];
            if (present != posting.assertion->number)
                m_failedAssertion = faults::assertionFailed(
                    posting.place, posting.account, presentationText(*posting.assertion),
                    presentationText(Quantity{present, posting.assertion->commodity}));
        }
        m_movements.push_back(
            {entry.date, posting.account, posting.known(), posting.assertion, posting.place});
    }
}

Draft JournalBooks::finish()
{
    if (m_failedAssertion) {
        std::ranges::stable_sort(m_movements, {}, &Movement::date);
        Balances balances;
        for (const Movement &movement : m_movements) {
            balances[{movement.account, movement.amount.commodity}] += movement.amount.number;
            if (movement.assertion && balances[{movement.account, movement.assertion->commodity}] !=
                                          movement.assertion->number)
                throw ImportError(*m_failedAssertion);
        }
    }
    for (const auto &[account, currency, place] : m_wanted)
        (void)accountOf(account, currency, place);
    return std::move(m_draft);
}

// ---- booking -------------------------------------------------------------------

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

std::size_t JournalBooks::accountOf(const QString &name, const numira::Currency &currency,
                                    const Place &place)
{
    // No chart of accounts is so deep; each level opens an account of its own.
    constexpr qsizetype levelsMax = 100;
    QStringList names = name.split(u':');
    if (names.size() > levelsMax)
        throw faults::unsupported(place, name);
    for (QString &part : names) {
        part = part.simplified();
        if (part.isEmpty())
            throw faults::noAccount(place);
    }
    DraftAccount account;
    account.type = typeOf(name, names.front(), place);
    // What is posted to the root itself gets an account of its name.
    if (names.size() > 1)
        names.removeFirst();
    account.names = names;
    account.currency = currency;
    if (const auto number = m_declaredNumbers.find(name); number != m_declaredNumbers.end())
        account.number = number->second;
    return indexOf(std::move(account));
}

std::size_t JournalBooks::indexOf(DraftAccount account)
{
    const auto [known, isNew] = m_indexes.try_emplace(
        {account.type, account.names, account.currency}, m_draft.accounts.size());
    if (isNew)
        m_draft.accounts.push_back(std::move(account));
    return known->second;
}

JournalBooks::Booking JournalBooks::bookingOf(const Posting &posting)
{
    std::optional<numira::Currency> currency = currencyOf(posting.known().commodity);
    const Quantity *kept = &posting.known();
    if (!currency && posting.cost) {
        kept = &*posting.cost;
        currency = currencyOf(kept->commodity);
        notice(QObject::tr("What is no currency is kept at its cost."));
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
            notice(QObject::tr("Unbalanced virtual postings are kept against Equity:Virtual."));
            const numira::Money amount = booking.amount;
            settle(entry,
                   {std::move(booking),
                    {indexOf({AccountTypes::Equity, {QStringLiteral("Virtual")}, amount.code()}),
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
        if (!sum.isZero())
            bookings.push_back(
                {indexOf({AccountTypes::Equity,
                          {QStringLiteral("Conversion"), foundation::toQString(currency)},
                          currency}),
                 -sum});
    }
}

void JournalBooks::settle(const Entry &entry, std::vector<Booking> bookings)
{
    // An account that goes both up and down only changes by the difference;
    // money cannot go from it to itself.
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

    // Each pass settles one booking of one currency; in each, both sides come to the
    // same.
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
    // What is kept of comments in a description; each pair of postings has all.
    constexpr qsizetype commentsMax = 2000;
    constexpr qsizetype lengthMin = 20; // so that there are not too many short ones
    qsizetype length = 0;
    QStringList texts{entry.description};
    for (const QStringList *comments : {&entry.comments, &debit.comments, &credit.comments}) {
        for (const QString &comment : *comments) {
            length += std::max(comment.size() + 1, lengthMin);
            if (length > commentsMax) {
                notice(QObject::tr("Of long comments the beginning is kept."));
                break;
            }
            if (!comment.isEmpty() && !texts.contains(comment))
                texts += comment;
        }
    }
    texts.removeAll(QString());
    if (static_cast<qsizetype>(m_draft.transactions.size()) >= transactionsMax)
        throw faults::tooManyTransactions(entry.place, transactionsMax);
    m_draft.transactions.push_back({entry.date, debit.account, credit.account, amount,
                                    texts.join(QStringLiteral("; ")), debit.status, credit.status,
                                    entry.place});
}

} // namespace kiv::interchange::internal

namespace kiv::interchange {

Draft readJournal(const QByteArray &bytes, const QString &file, const JournalOptions &options)
{
    internal::JournalBooks books(options);
    internal::JournalParser(options, books).parse(bytes, file);
    return books.finish();
}

} // namespace kiv::interchange

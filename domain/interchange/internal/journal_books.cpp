// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/journal_books.h"

#include "interchange/internal/faults.h"
#include "interchange/internal/journal_faults.h"
#include "interchange/internal/limits.h"
#include "interchange/internal/quantity_reader.h"
#include "interchange/internal/scoped_balances.h"

#include "interchange/account_paths.h"

#include "numira/error.h"

#include <QtCore/QObject>

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

/// Whether the rest is only a rounding error of a price: at most half a minor unit.
bool isRounding(const QString &commodity, const numira::Decimal &rest)
{
    const auto currency = currencyOf(commodity);
    return currency && rest.roundedHalfEven(numira::minorUnitDigits(*currency)).sign() == 0;
}

} // namespace

std::optional<numira::Currency> currencyOf(const QString &commodity)
{
    return readCurrency(commodity, numira::Currency());
}

void JournalBooks::notice(const QString &sentence)
{
    if (!m_draft.notices.contains(sentence))
        m_draft.notices += sentence;
}

void JournalBooks::declare(const QString &account, const std::map<QString, QString> &tags,
                           const Place &place)
{
    static const std::map<QString, AccountTypes> types{
        {QStringLiteral("a"), AccountTypes::Asset},
        {QStringLiteral("c"), AccountTypes::Asset},
        {QStringLiteral("cash"), AccountTypes::Asset},
        {QStringLiteral("conversion"), AccountTypes::Equity},
        {QStringLiteral("l"), AccountTypes::Liability},
        {QStringLiteral("e"), AccountTypes::Equity},
        {QStringLiteral("v"), AccountTypes::Equity},
        {QStringLiteral("r"), AccountTypes::Income},
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
    constexpr qsizetype patternMax = 200;
    const Place place = rule.entry.place;
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
            throw faults::missingAmount(posting.place);
    }
    m_rules.push_back(std::move(rule));
    for (const auto &[key, balance] : m_balances) {
        if (fits(m_rules.size() - 1, key.first))
            throw faults::ambiguousRule(place, key.first);
    }
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
    const std::size_t before = m_draft.transactions.size();
    book(entry);
    applyRules(entry);
    m_withoutEffect += m_draft.transactions.size() == before;
} catch (const numira::Error &cause) {
    throw faults::tooLarge(entry.place, cause);
}

void JournalBooks::assign(Entry &entry) const
{
    if (std::ranges::none_of(entry.postings, [](const Posting &posting) {
            return !posting.amount && posting.assertion;
        }))
        return;
    // "Assets:Cash  = $100" without an amount means the amount that leads to this balance,
    // after the postings above it.
    Balances here;
    for (Posting &posting : entry.postings) {
        if (!posting.amount && posting.assertion) {
            const auto &[number, commodity] = *posting.assertion;
            Balance present;
            for (const Balances *balances : {&m_balances, &std::as_const(here)}) {
                const auto found = balances->find({posting.account, commodity});
                if (found == balances->end())
                    continue;
                present.all += found->second.all;
                present.real += found->second.real;
            }
            if (posting.kind == PostingKind::Real && present.all != present.real)
                throw faults::ambiguousAssignment(posting.place, posting.account);
            posting.amount = {number - present.all, commodity};
            posting.isAssigned = true;
        }
        if (posting.amount)
            add(here, movementOf(entry, posting));
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
        // Without a price, the rest would be in shares.
        for (const Posting *posting : group) {
            if (open && posting->isLotCost)
                throw faults::ambiguousLot(posting->place, posting->known().commodity);
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
            throw faults::missingAmount(posting.place);
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
    // A commodity that is no currency and has one posting costs what was paid.
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

bool JournalBooks::fits(std::size_t rule, const QString &account)
{
    Fitting &known = m_fitting[account];
    for (; known.asked < m_rules.size(); ++known.asked) {
        const Rule &asked = m_rules[known.asked];
        const auto match = asked.pattern.match(account);
        if (!match.isValid())
            throw faults::badPattern(asked.entry.place, asked.pattern.pattern());
        known.rules[known.asked] = match.hasMatch();
    }
    return known.rules[rule];
}

void JournalBooks::applyRules(const Entry &entry)
{
    for (std::size_t at = 0; at < m_rules.size(); ++at) {
        const Entry &rule = m_rules[at].entry;
        for (const Posting &posting : entry.postings) {
            if (!fits(at, posting.account))
                continue;
            notice(QObject::tr("The postings of automated transactions are added."));
            Entry added = entry;
            added.postings = rule.postings;
            for (Posting &extra : added.postings) {
                extra.status = posting.status;
                if (extra.known().commodity.isEmpty())
                    extra.amount = {posting.known().number * extra.known().number,
                                    posting.known().commodity};
                for (std::size_t later = at + 1; later < m_rules.size(); ++later) {
                    if (fits(later, extra.account))
                        throw faults::ambiguousRule(m_rules[later].entry.place, extra.account);
                }
            }
            fill(added.postings, rule.place);
            move(added);
            book(added);
        }
    }
}

// ---- assertions ----------------------------------------------------------------

JournalBooks::Movement JournalBooks::movementOf(const Entry &entry, const Posting &posting)
{
    return {entry.date,        posting.account, posting.kind,       posting.known(),
            posting.assertion, posting.scope,   posting.isAssigned, posting.place};
}

void JournalBooks::add(Balances &balances, const Movement &movement)
{
    Balance &balance = balances[{movement.account, movement.amount.commodity}];
    balance.all += movement.amount.number;
    if (movement.kind == PostingKind::Real)
        balance.real += movement.amount.number;
}

bool JournalBooks::holds(const Balances &balances, const Movement &movement)
{
    if (!movement.assertion)
        return true;
    const auto found = balances.find({movement.account, movement.assertion->commodity});
    const Balance present = found == balances.end() ? Balance() : found->second;
    return movement.assertion->number == present.all ||
           (movement.kind == PostingKind::Real && movement.assertion->number == present.real);
}

void JournalBooks::move(const Entry &entry)
{
    // Transactions have a limit of their own, but postings without an effect make none.
    constexpr std::size_t movementsMax = 4 * transactionsMax;
    if (m_movements.size() + entry.postings.size() > movementsMax)
        throw faults::tooManyTransactions(entry.place, transactionsMax);
    for (const Posting &posting : entry.postings) {
        m_movements.push_back(movementOf(entry, posting));
        Movement &movement = m_movements.back();
        add(m_balances, movement);
        // All movements of an account share one text.
        movement.account =
            m_balances.find({movement.account, movement.amount.commodity})->first.first;
        // Others hold by days alone.
        if (m_failedAssertion || !movement.scope.isPlain() || holds(m_balances, movement))
            continue;
        const QString &commodity = movement.assertion->commodity;
        m_failedAssertion = faults::assertionFailed(
            posting.place, posting.account, presentationText(*posting.assertion),
            presentationText(Quantity{m_balances[{posting.account, commodity}].all, commodity}));
    }
}

void JournalBooks::checkByDay()
{
    std::set<QString> parents;
    bool needsOrder = m_failedAssertion.has_value();
    for (const Movement &movement : m_movements) {
        needsOrder = needsOrder || movement.isAssigned || !movement.scope.isPlain();
        if (movement.assertion && movement.scope.withChildren)
            parents.insert(movement.account);
    }
    if (!needsOrder)
        return;
    std::ranges::stable_sort(m_movements, {}, &Movement::date);
    Balances balances;
    ScopedBalances scoped(std::move(parents));
    for (const Movement &movement : m_movements) {
        add(balances, movement);
        scoped.add(movement.account, movement.amount);
        if (!movement.scope.isPlain()) {
            scoped.require(movement.account, *movement.assertion, movement.scope, movement.place);
            continue;
        }
        if (holds(balances, movement))
            continue;
        if (m_failedAssertion)
            throw ImportError(*m_failedAssertion);
        if (movement.isAssigned)
            throw faults::ambiguousAssignment(movement.place, movement.account);
    }
}

Draft JournalBooks::finish()
{
    checkByDay();
    for (const auto &[account, currency, place] : m_wanted)
        (void)accountOf(account, currency, place);
    checkKinds();
    if (m_withoutEffect > 0)
        notice(QObject::tr("%n transaction(s) that move no money are skipped.", nullptr,
                           m_withoutEffect));
    return std::move(m_draft);
}

} // namespace kiv::interchange::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/internal/statement_matcher.h"

#include "workbench/entry/description.h"
#include "workbench/entry/folded.h"
#include "workbench/statements/import_rules.h"

#include "interchange/duplicates.h"

#include <algorithm>
#include <deque>

namespace kiv::workbench::internal {

using accounting::TransactionStatuses;
using interchange::StatementEntry;

namespace {

/// How many bank days later than it was entered a payment may be booked, or earlier. What
/// recurs weekly is five apart, and must not be taken for the one before. Between two banks
/// money takes three at most.
constexpr int laterMax = 4;
constexpr int earlierMax = 3;
constexpr int betweenBanksMax = 3;
/// So many steps are tried to find another line; many equal amounts would take for ever.
constexpr std::size_t stepsMax = 2'000;

/// Calendar days from the day of a line to that of an entry, the likeliest first: banks book
/// later rather than earlier. A weekend may lie between.
constexpr int distances[] = {0, 1, 2, -1, 3, 4, -2, 5, 6, -3, 7, 8, -4, -5};

bool isNear(QDate line, QDate entry, bool isToldByOther = false)
{
    const int most = isToldByOther ? betweenBanksMax : laterMax;
    return bankDaysBetween(line, entry) <= (line <= entry ? most : earlierMax);
}

QString contentOf(const StatementEntry &entry)
{
    return folded((entry.payee + u' ' + entry.text).simplified());
}

QString contentOf(const LedgerLine &line)
{
    const Description said = Description::of(line.transaction->description());
    return folded((said.payee + u' ' + said.reason).simplified());
}

} // namespace

StatementMatcher::StatementMatcher(const StatementBooks &books,
                                   const std::vector<StatementEntry> &entries)
    : m_entries(entries),
      m_lines(books),
      m_matches(entries.size()),
      m_places(entries.size()),
      m_words(entries.size())
{
    for (std::size_t place = 0; place < m_lines.size(); ++place)
        m_byNumber.emplace(m_lines.at(place).number(), place);
}

std::vector<std::optional<ImportMatch>> StatementMatcher::match()
{
    matchIdentifiers();
    matchContent();
    matchTold();
    matchNear(true);
    matchNear(false);
    matchRest();
    tellSeveral();
    return m_matches;
}

void StatementMatcher::settle(std::size_t entry, Places places, MatchGrounds grounds)
{
    ImportMatch match{{}, grounds, m_lines.at(places.front()).day};
    for (const std::size_t place : places) {
        match.numbers.push_back(m_lines.at(place).number());
        m_lines.take(place);
        m_takenBy[place] = entry;
    }
    m_matches[entry] = std::move(match);
    m_places[entry] = std::move(places);
}

std::vector<std::size_t> StatementMatcher::toldAs(const StatementEntry &entry) const
{
    Places places = m_lines.toldAs(entry.bankId);
    std::erase_if(places, [&](std::size_t place) {
        const LedgerLine &line = m_lines.at(place);
        return !line.isFree || std::abs(line.day.daysTo(entry.date)) > interchange::sameIdDaysMax;
    });
    return places;
}

/// Single lines first: a bank may give one identifier to several amounts.
void StatementMatcher::matchIdentifiers()
{
    for (std::size_t entry = 0; entry < m_entries.size(); ++entry) {
        for (const std::size_t place : toldAs(m_entries[entry])) {
            if (m_lines.at(place).amount != m_entries[entry].amount.amount())
                continue;
            settle(entry, {place}, MatchGrounds::Identifier);
            break;
        }
    }
    for (std::size_t entry = 0; entry < m_entries.size(); ++entry) {
        if (m_matches[entry])
            continue;
        Places parts = toldAs(m_entries[entry]);
        numira::Decimal sum;
        for (const std::size_t place : parts)
            sum += m_lines.at(place).amount;
        if (parts.size() > 1 && sum == m_entries[entry].amount.amount())
            settle(entry, std::move(parts), MatchGrounds::Identifier);
    }
}

std::optional<accounting::TransactionNumber> StatementMatcher::changedLine(std::size_t entry) const
{
    const Places places = toldAs(m_entries[entry]);
    return places.empty() ? std::nullopt : std::optional(m_lines.at(places.front()).number());
}

void StatementMatcher::matchContent()
{
    const auto keyOf = [](QDate day, const numira::Decimal &amount, const QString &content) {
        return QString::number(day.toJulianDay()) + u' ' + QString::fromStdString(amount.toText()) +
               u' ' + content;
    };
    // Only lines that have the day and amount of an entry are looked at, each once.
    std::set<std::size_t> buckets;
    std::unordered_map<QString, std::deque<std::size_t>> lines;
    for (std::size_t entry = 0; entry < m_entries.size(); ++entry) {
        const StatementEntry &told = m_entries[entry];
        const Places &sameDay = m_lines.untold(told.date, told.amount.amount());
        if (m_matches[entry] || sameDay.empty())
            continue;
        if (buckets.insert(sameDay.front()).second) {
            for (const std::size_t place : sameDay)
                lines[keyOf(told.date, told.amount.amount(), contentOf(m_lines.at(place)))]
                    .push_back(place);
        }
        const auto found = lines.find(keyOf(told.date, told.amount.amount(), contentOf(told)));
        if (found == lines.end() || found->second.empty())
            continue;
        settle(entry, {found->second.front()}, MatchGrounds::Content);
        found->second.pop_front();
    }
}

/// One of two forms of file has no identifiers of the bank: the day is the bank's in both.
void StatementMatcher::matchTold()
{
    for (std::size_t entry = 0; entry < m_entries.size(); ++entry) {
        if (m_matches[entry])
            continue;
        const StatementEntry &told = m_entries[entry];
        const auto isOther = [&](std::size_t place) {
            return isMadeUp(m_lines.at(place).toldAs) != isMadeUp(told.bankId);
        };
        const Places sameDay = m_lines.freeTold(told.date, told.amount.amount());
        if (const auto found = std::ranges::find_if(sameDay, isOther); found != sameDay.end())
            settle(entry, {*found}, MatchGrounds::Told);
    }
}

bool StatementMatcher::fits(std::size_t entry, std::size_t place) const
{
    const LedgerLine &line = m_lines.at(place);
    return line.isFree && line.toldAs.isEmpty() &&
           isNear(line.day, m_entries[entry].date, m_lines.isToldByOther(line));
}

bool StatementMatcher::sharesWord(std::size_t entry, std::size_t place)
{
    std::optional<QStringList> &words = m_words[entry];
    if (!words)
        words = tellingWords(ruleText(m_entries[entry]));
    return std::ranges::any_of(m_lines.words(place),
                               [&words](const QString &word) { return words->contains(word); });
}

std::vector<std::size_t> StatementMatcher::unmatched() const
{
    std::vector<std::size_t> left;
    for (std::size_t entry = 0; entry < m_entries.size(); ++entry) {
        if (!m_matches[entry] && m_lines.hasAmount(m_entries[entry].amount.amount()))
            left.push_back(entry);
    }
    return left;
}

void StatementMatcher::matchNear(bool mustShare)
{
    const std::vector<std::size_t> left = unmatched();
    for (const int days : distances) {
        for (const std::size_t entry : left) {
            if (m_matches[entry])
                continue;
            const QDate day = m_entries[entry].date.addDays(-days);
            const numira::Decimal &amount = m_entries[entry].amount.amount();
            // Typed entries come before what another account's statement told.
            std::optional<std::size_t> found;
            for (const std::size_t place : m_lines.freeUntold(day, amount)) {
                if (!fits(entry, place) || (mustShare && !sharesWord(entry, place)))
                    continue;
                if (!found || (m_lines.isToldByOther(m_lines.at(*found)) &&
                               !m_lines.isToldByOther(m_lines.at(place))))
                    found = place;
            }
            if (found) {
                settle(entry, {*found}, mustShare ? MatchGrounds::Text : MatchGrounds::Amount);
            } else if (const LineGroup *group = m_lines.split(day, amount);
                       group && isNear(day, m_entries[entry].date) &&
                       (!mustShare || sharesWord(entry, group->lines.front()))) {
                settle(entry, group->lines, mustShare ? MatchGrounds::Text : MatchGrounds::Amount);
            }
        }
    }
}

/// At most so many of a day: where more are alike, another one does as well.
std::vector<std::size_t> StatementMatcher::near(std::size_t entry) const
{
    constexpr std::size_t alikeMax = 16;
    Places all;
    for (const int days : distances) {
        const QDate day = m_entries[entry].date.addDays(-days);
        const Places &places = m_lines.untold(day, m_entries[entry].amount.amount());
        for (std::size_t at = 0; at < std::min(alikeMax, places.size()); ++at) {
            if (isNear(day, m_entries[entry].date, m_lines.isToldByOther(m_lines.at(places[at]))))
                all.push_back(places[at]);
        }
    }
    return all;
}

void StatementMatcher::matchRest()
{
    for (const std::size_t entry : unmatched()) {
        std::set<std::size_t> seen;
        (void)augment(entry, seen);
    }
}

bool StatementMatcher::augment(std::size_t entry, std::set<std::size_t> &seen)
{
    for (const std::size_t place : near(entry)) {
        if (seen.size() >= stepsMax || !seen.insert(place).second)
            continue;
        if (!m_lines.at(place).isFree) {
            const auto taken = m_takenBy.find(place);
            if (taken == m_takenBy.end() || m_places[taken->second].size() > 1 ||
                m_matches[taken->second]->grounds == MatchGrounds::Identifier ||
                !augment(taken->second, seen))
                continue;
        }
        settle(entry, {place}, MatchGrounds::Amount);
        return true;
    }
    return false;
}

/// Where only the amount speaks for a line, another free one would do as well.
void StatementMatcher::tellSeveral()
{
    for (std::size_t entry = 0; entry < m_entries.size(); ++entry) {
        if (!m_matches[entry] || m_matches[entry]->grounds != MatchGrounds::Amount)
            continue;
        m_matches[entry]->isOneOfSeveral = std::ranges::any_of(
            near(entry), [this](std::size_t place) { return m_lines.at(place).isFree; });
    }
}

std::vector<std::size_t> StatementMatcher::placesOf(const ImportMatch &match) const
{
    Places places;
    for (const accounting::TransactionNumber number : match.numbers)
        places.push_back(m_byNumber.at(number));
    return places;
}

std::vector<ImportMatch> StatementMatcher::candidates(std::size_t entry)
{
    constexpr int daysMax = 31;
    const StatementEntry &told = m_entries[entry];
    std::vector<ImportMatch> all;
    for (int days = 0; days <= daysMax; ++days) {
        for (const int distance : {days, -days}) {
            const QDate day = told.date.addDays(-distance);
            for (const Places &places : {m_lines.freeUntold(day, told.amount.amount()),
                                         m_lines.freeTold(day, told.amount.amount())}) {
                for (const std::size_t place : places)
                    all.push_back({{m_lines.at(place).number()}, MatchGrounds::ByHand, day});
            }
            if (const LineGroup *group = m_lines.split(day, told.amount.amount())) {
                ImportMatch match{{}, MatchGrounds::ByHand, day};
                for (const std::size_t place : group->lines)
                    match.numbers.push_back(m_lines.at(place).number());
                all.push_back(std::move(match));
            }
            if (days == 0)
                break;
        }
    }
    return all;
}

} // namespace kiv::workbench::internal

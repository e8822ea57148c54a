// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/internal/ledger_lines.h"

#include "workbench/entry/description.h"
#include "workbench/entry/folded.h"

#include <algorithm>

namespace kiv::workbench::internal {

using accounting::AccountNumber;
using accounting::Transaction;
using accounting::TransactionStatuses;
using numira::Decimal;

namespace {

/// The identifier of the account's own side. A transfer that two statements told has two, the
/// debited side's first; one that only the other statement told has one.
QString ownIdOf(const QStringList &ids, bool isDebit, bool isToldByOther)
{
    if (ids.size() >= 2)
        return isDebit ? ids.front() : ids.back();
    return ids.isEmpty() || isToldByOther ? QString() : ids.front();
}

} // namespace

LedgerLines::LedgerLines(const StatementBooks &books)
    : m_account(books.account.number()), m_books(books)
{
    for (const accounting::Account &account : books.accounts) {
        if (account.isClosed())
            m_closed.insert(account.code().number());
    }
    for (const Transaction &transaction : books.posted) {
        if (!transaction.involves(m_account) || transaction.number() == books.opening)
            continue;
        const bool isDebit = transaction.debiting().number() == m_account;
        LedgerLine line{&transaction, transaction.occurredOn(),
                        transaction.amountFor(m_account).amount(), transaction.debitStatus(),
                        transaction.creditStatus()};
        if (!isDebit) {
            line.amount = -line.amount;
            std::swap(line.own, line.other);
        }
        const auto &text = transaction.description();
        if (text && text->endsWith(u']')) // most have no identifier
            line.toldAs = ownIdOf(Description::of(*text).bankIds, isDebit, isToldByOther(line));
        if (const auto told = books.told.find(line.number()); told != books.told.end())
            line.toldAs = told->second;
        const std::size_t place = m_lines.size();
        if (!line.toldAs.isEmpty())
            m_byId.emplace(line.toldAs, place);
        m_amounts.insert(line.amount);
        Buckets &buckets = line.toldAs.isEmpty() ? m_untold : m_told;
        buckets[{line.day.toJulianDay(), line.amount}].places.push_back(place);
        m_lines.push_back(std::move(line));
    }
    addGroups();
}

void LedgerLines::addGroups()
{
    std::map<std::pair<qint64, QString>, std::vector<std::size_t>> alike;
    for (std::size_t place = 0; place < m_lines.size(); ++place) {
        const LedgerLine &line = m_lines[place];
        const auto &text = line.transaction->description();
        alike[{line.day.toJulianDay(),
               (line.amount.sign() < 0 ? u'-' : u'+') +
                   (text ? Description::withoutIds(*text).toString() : QString())}]
            .push_back(place);
    }
    // The lines of a split were entered one after the other; two splits may look alike.
    constexpr std::size_t partsMax = 16;
    constexpr std::size_t linesMax = 64;
    for (const auto &[key, lines] : alike) {
        if (lines.size() > linesMax)
            continue; // no person enters so many
        for (std::size_t first = 0; first + 1 < lines.size(); ++first) {
            LineGroup group{{}, QDate::fromJulianDay(key.first), {}};
            for (std::size_t at = first; at < std::min(first + partsMax, lines.size()); ++at) {
                group.lines.push_back(lines[at]);
                group.sum += m_lines[lines[at]].amount;
                if (group.lines.size() < 2)
                    continue;
                m_amounts.insert(group.sum);
                m_groupsByDay[{key.first, group.sum}].places.push_back(m_groups.size());
                m_groups.push_back(group);
            }
        }
    }
}

std::vector<std::size_t> LedgerLines::toldAs(const QString &bankId) const
{
    std::vector<std::size_t> places;
    const auto [first, last] = m_byId.equal_range(bankId);
    for (auto found = first; found != last; ++found)
        places.push_back(found->second);
    std::ranges::sort(places);
    return places;
}

void LedgerLines::giveBack(std::size_t place)
{
    LedgerLine &line = m_lines.at(place);
    line.isFree = true;
    // It may stand before the first free one.
    for (Buckets *buckets : {&m_untold, &m_told}) {
        if (const auto found = buckets->find({line.day.toJulianDay(), line.amount});
            found != buckets->end())
            found->second.first = 0;
    }
    for (auto &[key, bucket] : m_groupsByDay)
        bucket.first = 0;
}

const std::vector<std::size_t> &LedgerLines::untold(QDate day, const Decimal &amount) const
{
    static const std::vector<std::size_t> none;
    const auto found = m_untold.find({day.toJulianDay(), amount});
    return found == m_untold.end() ? none : found->second.places;
}

std::vector<std::size_t> LedgerLines::freeUntold(QDate day, const Decimal &amount)
{
    return freeIn(m_untold, day, amount);
}

std::vector<std::size_t> LedgerLines::freeTold(QDate day, const Decimal &amount)
{
    return freeIn(m_told, day, amount);
}

std::vector<std::size_t> LedgerLines::freeIn(Buckets &buckets, QDate day,
                                             const Decimal &amount) const
{
    // Thousands of equal lines a day are compared one by one only as far as this.
    constexpr std::size_t freeMax = 64;
    constexpr std::size_t seenMax = 4 * freeMax;
    std::vector<std::size_t> free;
    const auto found = buckets.find({day.toJulianDay(), amount});
    if (found == buckets.end())
        return free;
    auto &[places, first] = found->second;
    while (first < places.size() && !m_lines[places[first]].isFree)
        ++first;
    const std::size_t end = std::min(places.size(), first + seenMax);
    for (std::size_t at = first; at < end && free.size() < freeMax; ++at) {
        if (m_lines[places[at]].isFree)
            free.push_back(places[at]);
    }
    return free;
}

bool LedgerLines::isOpen(const LineGroup &group) const
{
    return std::ranges::all_of(group.lines, [this](std::size_t place) {
        return m_lines[place].isFree && m_lines[place].toldAs.isEmpty();
    });
}

const LineGroup *LedgerLines::split(QDate day, const Decimal &sum)
{
    const auto found = m_groupsByDay.find({day.toJulianDay(), sum});
    if (found == m_groupsByDay.end())
        return nullptr;
    auto &[groups, first] = found->second;
    while (first < groups.size() && !isOpen(m_groups[groups[first]]))
        ++first;
    return first < groups.size() ? &m_groups[groups[first]] : nullptr;
}

const QStringList &LedgerLines::words(std::size_t place)
{
    const auto found = m_words.find(place);
    if (found != m_words.end())
        return found->second;
    const Transaction &transaction = *m_lines.at(place).transaction;
    const auto &text = transaction.description();
    const accounting::AccountCode &other = transaction.debiting().number() == m_account
                                               ? transaction.crediting()
                                               : transaction.debiting();
    const QString said = text ? Description::withoutIds(*text).toString() : QString();
    return m_words.emplace(place, tellingWords(said + u' ' + inPlainWords(other.name())))
        .first->second;
}

bool LedgerLines::canBeNamed(const LedgerLine &line) const
{
    return line.own != TransactionStatuses::Reconciled &&
           line.other != TransactionStatuses::Reconciled &&
           !m_closed.contains(line.transaction->debiting().number()) &&
           !m_closed.contains(line.transaction->crediting().number());
}

bool LedgerLines::isToldByOther(const LedgerLine &line) const
{
    const AccountNumber debit = line.transaction->debiting().number();
    const AccountNumber other = debit == m_account ? line.transaction->crediting().number() : debit;
    return line.own == TransactionStatuses::None && line.other != TransactionStatuses::None &&
           m_books.kept.contains(other);
}

QStringList tellingWords(const QString &text)
{
    QStringList words;
    QString word;
    const QString said = folded(text) + u' ';
    for (const QChar letter : said) {
        if (letter.isLetter() || letter.isSurrogate()) {
            word += letter;
            continue;
        }
        if (word.size() >= 3)
            words += word;
        word.clear();
    }
    return words;
}

} // namespace kiv::workbench::internal

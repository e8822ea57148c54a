// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/internal/statement_parts.h"

#include "interchange/draft.h"
#include "interchange/internal/faults.h"
#include "interchange/internal/statement_faults.h"
#include "interchange/internal/statement_notices.h"
#include "interchange/text_decoding.h"

#include "foundation/presentation.h"
#include "numira/error.h"

#include <algorithm>
#include <map>

namespace kiv::interchange::internal {

namespace {

/// Follows an account's balance from part to part.
class BalanceCheck {
public:
    explicit BalanceCheck(Statement &statement) : m_statement(statement) {}

    void add(const StatementPart &part)
    {
        take(part.opening);
        for (const StatementEntry &entry : part.entries) {
            try {
                m_balance = m_balance ? std::optional(*m_balance + entry.amount) : std::nullopt;
            } catch (const numira::Error &cause) {
                throw faults::tooLarge(entry.place, cause);
            }
        }
        take(part.closing);
        if (part.opening && !m_statement.opening)
            m_statement.opening = part.opening->amount;
        if (part.closing) {
            m_statement.closing = part.closing->amount;
            m_statement.closingOn = part.closing->day;
        }
    }

    void finish()
    {
        if (m_differing > 1)
            m_statement.notices += notices::furtherBalancesDiffer(m_differing - 1);
    }

private:
    void take(const std::optional<ToldBalance> &told)
    {
        if (!told)
            return;
        if (m_balance && *m_balance != told->amount && ++m_differing == 1)
            m_statement.notices +=
                notices::balanceDiffers(told->place, foundation::toQString(*m_balance),
                                        foundation::toQString(told->amount));
        m_balance = told->amount;
    }

    Statement &m_statement;
    std::optional<numira::Money> m_balance;
    qsizetype m_differing = 0;
};

/// The day with which a part begins; banks also send the newest statement first.
QDate dayOf(const StatementPart &part)
{
    for (const auto *balance : {&part.opening, &part.closing}) {
        if (*balance && (*balance)->day.isValid())
            return (*balance)->day;
    }
    return part.entries.empty() ? QDate() : part.entries.front().date;
}

/// Balances are followed by days where all parts have one.
void checkBalances(std::vector<const StatementPart *> parts, Statement &statement)
{
    const auto day = [](const StatementPart *part) { return dayOf(*part).toJulianDay(); };
    if (std::ranges::all_of(parts, [](const auto *part) { return dayOf(*part).isValid(); }))
        std::ranges::stable_sort(parts, {}, day);
    BalanceCheck check(statement);
    for (const StatementPart *part : parts)
        check.add(*part);
    check.finish();
}

} // namespace

void EntryCount::add(const StatementEntry &entry)
{
    if (++m_entries > transactionsMax)
        throw faults::tooManyTransactions(entry.place, transactionsMax);
    if (entry.text.size() > lineMax)
        throw faults::textTooLong(entry.place, lineMax);
    m_descriptions.add(entry.payee, entry.place);
    m_descriptions.add(entry.text, entry.place);
}

void EntryCount::addPart(const Place &place)
{
    if (++m_parts > transactionsMax)
        throw faults::tooManyTransactions(place, transactionsMax);
}

std::vector<Statement> joinedStatements(std::vector<StatementPart> parts)
{
    std::map<std::pair<QString, numira::Currency>, std::size_t> places;
    std::vector<std::vector<const StatementPart *>> partsOf;
    std::vector<Statement> statements;
    for (const StatementPart &part : parts) {
        const auto [found, isNew] =
            places.try_emplace({part.account, part.currency}, statements.size());
        if (isNew) {
            statements.push_back({part.account, part.currency, {}});
            partsOf.emplace_back();
        }
        partsOf[found->second].push_back(&part);
        statements[found->second].pending += part.pending;
        statements[found->second].notices += part.notices;
    }
    for (std::size_t at = 0; at < statements.size(); ++at) {
        if (const auto &goesOn = partsOf[at].back()->goesOn)
            statements[at].notices += notices::furtherPages(*goesOn);
        checkBalances(partsOf[at], statements[at]);
    }
    for (StatementPart &part : parts) {
        auto &entries = statements[places.at({part.account, part.currency})].entries;
        std::ranges::move(part.entries, std::back_inserter(entries));
    }
    return statements;
}

void requireCurrency(const numira::Currency &found, const numira::Currency &wanted,
                     const Place &place)
{
    if (found != wanted)
        throw faults::otherCurrency(place, foundation::toQString(found),
                                    foundation::toQString(wanted));
}

bool identifies(const QString &reference)
{
    return std::ranges::count_if(reference, [](QChar letter) { return letter.isDigit(); }) >= 4;
}

} // namespace kiv::interchange::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "surveying/completed_surveys.h"

#include "foundation/streams.h"

#include <algorithm>
#include <ranges>

namespace kiv::surveying {

std::optional<CompletedSurvey>
CompletedSurveys::lookUpSurvey(const banking::BankAccount &account) const
{
    const auto found = m_surveys.find(account);
    return found == end() ? std::nullopt : std::optional(found->second);
}

std::optional<CompletedSurvey>
CompletedSurveys::lookUpSurvey(const banking::BankName &bank,
                               accounting::AccountNumber number) const
{
    const auto found = find(bank, number);
    return found == end() ? std::nullopt : std::optional(found->second);
}

void CompletedSurveys::upsert(CompletedSurvey survey)
{
    banking::BankAccount key = survey.bankAccount();
    m_surveys.insert_or_assign(std::move(key), std::move(survey));
}

void CompletedSurveys::renamedBank(const banking::BankName &from, const banking::BankName &to)
{
    CompletedSurveys renamed;
    for (const auto &[account, survey] : m_surveys) {
        if (account.bank != from)
            renamed.upsert(survey);
    }
    // Only now, so that a renamed survey wins over one that was there.
    for (const auto &[account, survey] : m_surveys) {
        if (account.bank == from) {
            CompletedSurvey moved = survey;
            moved.renamed(from, to);
            renamed.upsert(std::move(moved));
        }
    }
    m_surveys = std::move(renamed.m_surveys);
}

void CompletedSurveys::renamedAccount(const banking::BankName &bank, accounting::AccountNumber from,
                                      accounting::AccountNumber to)
{
    const auto found = find(bank, from);
    if (found == end())
        return;
    CompletedSurvey moved = found->second;
    moved.renamed(from, to);
    m_surveys.erase(found);
    upsert(std::move(moved));
}

void CompletedSurveys::renamedItem(const budgeting::BudgetItemIdentifier &from,
                                   const budgeting::BudgetSource &to)
{
    const auto found = std::ranges::find_if(
        m_surveys, [&](const auto &entry) { return entry.second.distribution().contains(from); });
    if (found != m_surveys.end())
        found->second.renamed(from, to);
}

CompletedSurveys::const_iterator CompletedSurveys::find(const banking::BankName &bank,
                                                        accounting::AccountNumber number) const
{
    return std::ranges::find_if(m_surveys, [&](const auto &entry) {
        return entry.first.bank == bank && entry.first.account.number == number;
    });
}

std::ostream &operator<<(std::ostream &out, const CompletedSurveys &surveys)
{
    return foundation::streamRange(out, surveys | std::views::values);
}

} // namespace kiv::surveying

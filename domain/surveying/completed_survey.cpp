// SPDX-License-Identifier: GPL-3.0-or-later
#include "surveying/completed_survey.h"

#include "surveying/internal/faults.h"
#include "surveying/internal/stream_maps.h"

#include "foundation/streams.h"

namespace kiv::surveying {

CompletedSurvey::CompletedSurvey(banking::BankAccount account, const numira::Currency &currency)
    : m_reconciled(std::move(account), currency), m_nonDistributed(currency)
{
}

void CompletedSurvey::completed(QDate on, const numira::Money &balance, Distribution distribution,
                                const numira::Money &nonDistributed,
                                const foundation::Percentage &window)
{
    if (!on.isValid())
        throw internal::completedOnNoDay(bankAccount());
    m_reconciled = banking::ReconciledBankAccount(bankAccount(), balance, on);
    m_distribution = std::move(distribution);
    m_nonDistributed = nonDistributed;
    m_window = window;
}

void CompletedSurvey::renamed(const banking::BankName &from, const banking::BankName &to)
{
    if (bankAccount().bank == from)
        moveTo({to, bankAccount().account});
}

void CompletedSurvey::renamed(accounting::AccountNumber from, accounting::AccountNumber to)
{
    if (bankAccount().account.number == from)
        moveTo({bankAccount().bank, {to, bankAccount().account.type}});
}

void CompletedSurvey::renamed(const budgeting::BudgetItemIdentifier &from,
                              const budgeting::BudgetSource &to)
{
    auto entry = m_distribution.extract(from);
    if (entry.empty())
        return;
    entry.key().source = to;
    m_distribution.erase(entry.key());
    m_distribution.insert(std::move(entry));
}

void CompletedSurvey::moveTo(banking::BankAccount account)
{
    m_reconciled = banking::ReconciledBankAccount(std::move(account), m_reconciled.balance(),
                                                  m_reconciled.reconciledOn());
}

std::ostream &operator<<(std::ostream &out, const CompletedSurvey &survey)
{
    out << survey.reconciled() << ", distributed ";
    internal::streamMap(out, survey.distribution());
    return out << ", not distributed " << survey.nonDistributed() << ", within " << survey.window();
}

} // namespace kiv::surveying

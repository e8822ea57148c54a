// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/budget_totals.h"

#include "foundation/streams.h"

namespace kiv::budgeting {

BudgetTotals::BudgetTotals(const Budget &budget, const numira::Currency &currency,
                           EventFrequency frequency)
    : m_bills(budget.bills.total(currency, frequency)),
      m_debts(budget.debts.total(currency, frequency)),
      m_goals(budget.goals.total(currency, frequency)),
      m_nontracks(budget.nontracks.total(currency, frequency)),
      m_wages(budget.wages.total(currency, frequency)),
      m_frequency(frequency)
{
}

numira::Money BudgetTotals::outgoing() const
{
    return m_bills + m_debts + m_goals + m_nontracks;
}

numira::Money BudgetTotals::remaining() const
{
    return m_wages - outgoing();
}

std::ostream &operator<<(std::ostream &out, const BudgetTotals &totals)
{
    return out << totals.frequency() << ": bills " << totals.bills() << ", debts " << totals.debts()
               << ", goals " << totals.goals() << ", nontracks " << totals.nontracks() << ", wages "
               << totals.wages();
}

} // namespace kiv::budgeting

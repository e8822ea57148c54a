// SPDX-License-Identifier: GPL-3.0-or-later
#include "budgeting/budget_items.h"

#include <ostream>

namespace kiv::budgeting {

Bill::~Bill() = default;
Nontrack::~Nontrack() = default;
Wage::~Wage() = default;

Debt::Debt(BudgetSource source, const numira::Money &amount, EventFrequency period,
           QDate nextOccurOn, const numira::Money &borrowed)
    : ClonableItem(std::move(source), amount, period, nextOccurOn), m_borrowed(borrowed)
{
}

Debt::~Debt() = default;

std::strong_ordering Debt::compareKind(const BudgetedMoney &other) const
{
    return numira::compareExactly(m_borrowed, static_cast<const Debt &>(other).m_borrowed);
}

void Debt::streamKind(std::ostream &out) const
{
    out << " borrowed " << m_borrowed;
}

Goal::Goal(BudgetSource source, const numira::Money &amount, EventFrequency period,
           QDate nextOccurOn, const numira::Money &final)
    : ClonableItem(std::move(source), amount, period, nextOccurOn), m_final(final)
{
}

Goal::~Goal() = default;

std::strong_ordering Goal::compareKind(const BudgetedMoney &other) const
{
    return numira::compareExactly(m_final, static_cast<const Goal &>(other).m_final);
}

void Goal::streamKind(std::ostream &out) const
{
    out << " final " << m_final;
}

} // namespace kiv::budgeting

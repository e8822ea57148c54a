// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/budget.h"

#include "foundation/debug_stream.h"

namespace kiv::budgeting {

/// The totals of each kind of item in one currency per period, for the
/// dashboard and for judging the budget's health.
class KIV_BUDGETING_EXPORT BudgetTotals {
public:
    BudgetTotals() = default;
    /// Throws std::logic_error for a frequency above the known ones, and what a
    /// missing exchange rate throws.
    BudgetTotals(const Budget &budget, const numira::Currency &currency, EventFrequency frequency);

    /// What all bills come to.
    [[nodiscard]] const numira::Money &bills() const noexcept { return m_bills; }
    /// What all debts come to.
    [[nodiscard]] const numira::Money &debts() const noexcept { return m_debts; }
    /// What all goals come to.
    [[nodiscard]] const numira::Money &goals() const noexcept { return m_goals; }
    /// What all non-tracked items come to.
    [[nodiscard]] const numira::Money &nontracks() const noexcept { return m_nontracks; }
    /// What all wages come to.
    [[nodiscard]] const numira::Money &wages() const noexcept { return m_wages; }
    /// The period for which the totals are.
    [[nodiscard]] EventFrequency frequency() const noexcept { return m_frequency; }
    /// Bills, debts, goals and non-tracked items together.
    [[nodiscard]] numira::Money outgoing() const;
    /// Wages less outgoing.
    [[nodiscard]] numira::Money remaining() const;

    friend bool operator==(const BudgetTotals &, const BudgetTotals &) = default;

private:
    numira::Money m_bills;
    numira::Money m_debts;
    numira::Money m_goals;
    numira::Money m_nontracks;
    numira::Money m_wages;
    EventFrequency m_frequency = EventFrequency::None;
};

KIV_BUDGETING_EXPORT std::ostream &operator<<(std::ostream &out, const BudgetTotals &totals);
using foundation::operator<<;

} // namespace kiv::budgeting

Q_DECLARE_METATYPE(kiv::budgeting::BudgetTotals)

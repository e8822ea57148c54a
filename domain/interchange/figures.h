// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"

#include "accounting/account.h"
#include "budgeting/budget.h"

#include <QtCore/QStringList>

#include <map>
#include <set>
#include <vector>

/// The figures of a report, worked out of a ledger and a budget. All amounts
/// are exact and stay in their own currencies; none is converted.
namespace kiv::interchange {

/// The months that a report covers, up to a day within the last one.
class KIV_INTERCHANGE_EXPORT Period {
public:
    /// The longest period.
    static constexpr int monthsMax = 120;

    /// From the month of `from` to the day `to`. Throws foundation::Error when
    /// that is no month or more than monthsMax, or when a day is invalid.
    Period(QDate from, QDate to);

    /// The first day of the first month.
    [[nodiscard]] QDate from() const noexcept { return m_from; }
    /// The last day.
    [[nodiscard]] QDate to() const noexcept { return m_to; }
    /// How many there are, at least one.
    [[nodiscard]] std::size_t months() const noexcept { return m_months; }
    /// The day's month from 0 on; negative before the first one. Nothing after
    /// the last day.
    [[nodiscard]] std::optional<int> monthOf(QDate day) const noexcept;
    /// "2026-01".
    [[nodiscard]] QStringList labels() const;

private:
    QDate m_from; ///< the first of the month
    QDate m_to;
    std::size_t m_months;
};

/// One account at the period's end.
struct BalanceFigure {
    QString path;                  ///< see accountPaths
    accounting::AccountTypes type; ///< its kind
    numira::Money balance;         ///< positive on the kind's own side
};

/// One budget item: what it comes to every month as it is planned now, and what
/// moved in each month of the period. For bills and non-tracked items that is
/// what was spent, for wages what was earned, for goals what was put aside, for
/// debts what was paid back.
struct ItemFigure {
    budgeting::BudgetItemTypes kind;   ///< bill, debt, goal, non-tracked item or wage
    QString name;                      ///< its source's
    numira::Money planned;             ///< a month, rounded to the minor unit
    std::vector<numira::Money> actual; ///< month by month
};

/// What one currency comes to, month by month.
struct CurrencyFigures {
    std::vector<numira::Money> netWorth; ///< assets less liabilities, at each month's end
    std::vector<numira::Money> income;   ///< what income accounts took in
    std::vector<numira::Money> expenses; ///< what expense accounts took in
    numira::Money planned;               ///< its items that money goes out for, every month
    std::vector<numira::Money> outgoing; ///< what went out in it for items of any currency
    bool hasItems = false;               ///< whether anything is planned, or went out
};

/// All figures of a report.
struct Figures {
    Period period;                       ///< what they are about
    std::vector<BalanceFigure> balances; ///< by path, but for empty accounts
    std::vector<ItemFigure> items;       ///< kinds in their order, names in theirs
    std::map<numira::Currency, CurrencyFigures> currencies; ///< of all accounts
};

/// Works the figures out in one pass over the transactions, all of which are
/// between `accounts`. Throws what adding the amounts throws.
[[nodiscard]] KIV_INTERCHANGE_EXPORT Figures figuresOf(
    const Period &period, const std::set<accounting::Account> &accounts,
    const std::vector<accounting::Transaction> &transactions, const budgeting::Budget &budget);

} // namespace kiv::interchange

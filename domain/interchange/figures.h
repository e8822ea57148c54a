// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/export.h"

#include "accounting/account.h"
#include "budgeting/budget.h"

#include <QtCore/QStringList>

#include <map>
#include <set>
#include <vector>

/// The figures of a report on a ledger and a budget. All amounts are exact and stay in
/// their own currency.
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

/// One budget item: its planned amount per month today, and the actual amount of each
/// month. Actual means spent for bills and non-tracked items, earned for wages, put aside
/// for goals, and paid back for debts.
struct ItemFigure {
    budgeting::BudgetItemTypes kind;   ///< bill, debt, goal, non-tracked item or wage
    QString name;                      ///< its source's
    numira::Money planned;             ///< a month, rounded to the minor unit
    std::vector<numira::Money> actual; ///< month by month
};

/// The figures of one currency, month by month.
struct CurrencyFigures {
    std::vector<numira::Money> netWorth; ///< assets less liabilities, at each month's end
    std::vector<numira::Money> income;   ///< of income accounts
    std::vector<numira::Money> expenses; ///< of expense accounts
    numira::Money planned;               ///< of all items but wages, per month
    std::vector<numira::Money> outgoing; ///< spent on such items, also on those in other currencies
    bool hasItems = false;               ///< whether anything is planned, or went out
};

/// All figures of a report.
struct Figures {
    Period period;                       ///< what they are about
    std::vector<BalanceFigure> balances; ///< by path, but for empty accounts
    std::vector<ItemFigure> items;       ///< kinds in their order, names in theirs
    std::map<numira::Currency, CurrencyFigures> currencies; ///< of all accounts
};

/// Computes the figures in one pass over the transactions. All transactions must be between
/// `accounts`. Throws what adding the amounts throws.
[[nodiscard]] KIV_INTERCHANGE_EXPORT Figures figuresOf(
    const Period &period, const std::set<accounting::Account> &accounts,
    const std::vector<accounting::Transaction> &transactions, const budgeting::Budget &budget);

} // namespace kiv::interchange

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/groups.h"
#include "interchange/in_currency.h"
#include "interchange/period.h"
#include "interchange/transaction_source.h"

#include "budgeting/budget.h"

#include <map>
#include <set>
#include <vector>

/// The figures of a report on a ledger and a budget. All amounts are exact and stay in
/// their own currency.
namespace kiv::interchange {

/// One account at the period's end, and what moved on it within.
struct BalanceFigure {
    QString path;                  ///< see accountPaths
    QString plainPath;             ///< the same, with items under their own names
    accounting::AccountTypes type; ///< its kind
    numira::Money balance;         ///< positive on the kind's own side
    numira::Money change;          ///< of the balance, within the period
};

/// One budget item: its planned amount per span today, and the actual amount of each
/// span. Actual means spent for bills and non-tracked items, earned for wages, put aside
/// for goals, and paid back for debts.
struct ItemFigure {
    budgeting::BudgetItemTypes kind;   ///< bill, debt, goal, non-tracked item or wage
    QString name;                      ///< its source's
    numira::Money planned;             ///< a span, rounded to the minor unit
    std::vector<numira::Money> actual; ///< span by span
    numira::Money average;             ///< of a span, rounded likewise
};

/// The figures of one currency, span by span.
struct CurrencyFigures {
    std::vector<numira::Money> netWorth; ///< assets less liabilities, at each span's end
    std::vector<numira::Money> income;   ///< of income accounts
    std::vector<numira::Money> expenses; ///< of expense accounts
    numira::Money planned;               ///< of all items but wages, per span
    std::vector<numira::Money> outgoing; ///< spent on such items, also on those in other currencies
    bool hasItems = false;               ///< whether anything is planned, or went out

    /// Nothing in so many spans.
    [[nodiscard]] static CurrencyFigures zeros(const numira::Currency &currency, std::size_t spans)
    {
        const numira::Money zero(currency);
        const std::vector<numira::Money> none(spans, zero);
        return {none, none, none, zero, none, false};
    }
};

/// All figures of a report.
struct Figures {
    Period period; ///< what they are about
    std::vector<BalanceFigure>
        balances;                  ///< by path, but for accounts that are empty and did not change
    std::vector<ItemFigure> items; ///< kinds in their order, names in theirs
    std::map<numira::Currency, CurrencyFigures> currencies; ///< of all accounts
};

/// The accounts of the items that have one.
using ItemAccounts = std::map<budgeting::BudgetItemIdentifier, accounting::AccountNumber>;

/// The days on which a wage came in, in rising order: of the wage that did so on most days.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::vector<QDate>
paydaysOf(const TransactionSource &transactions, const ItemAccounts &itemAccounts);

/// Computes the figures in one pass over the transactions, which must be between `accounts`. Those
/// from the period's first day on are needed, also those after its last one: what was before is in
/// the accounts' balances. Throws what adding the amounts throws.
[[nodiscard]] KIV_INTERCHANGE_EXPORT Figures
figuresOf(const Period &period, const std::set<accounting::Account> &accounts,
          const TransactionSource &transactions, const budgeting::Budget &budget,
          const ItemAccounts &itemAccounts);

/// The figures with all that has a rate in one currency; the rest stays as it is.
[[nodiscard]] KIV_INTERCHANGE_EXPORT Figures inCurrency(const Figures &figures,
                                                        const InCurrency &in);

/// What came in and was spent in one currency, with its totals.
[[nodiscard]] KIV_INTERCHANGE_EXPORT FlowFigures flowOf(const CurrencyFigures &figures);

} // namespace kiv::interchange

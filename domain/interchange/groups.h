// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "interchange/in_currency.h"
#include "interchange/period.h"
#include "interchange/transaction_source.h"

#include "foundation/percentage.h"

#include <map>

namespace kiv::interchange {

/// The names under which an amount counts: the payee, say, or all tags of an item. Without
/// any, it counts under none, but in the totals.
using GroupsOf = std::function<const QStringList &(const accounting::Transaction &,
                                                   const accounting::Account &)>;

/// Which accounts are grouped.
enum class Grouped : std::uint8_t {
    Flows,   ///< of expenses and income
    Accounts ///< all
};

/// What moved under one name, on accounts of one kind and currency.
struct GroupFigure {
    accounting::AccountTypes type;      ///< the kind of the accounts
    QString name;                       ///< empty for what has none
    std::vector<numira::Money> amounts; ///< span by span, positive on the kind's own side
    numira::Money total;                ///< of all spans
    numira::Money average;              ///< of a span, rounded to the minor unit
};

/// Income and expenses of one currency, span by span.
struct KIV_INTERCHANGE_EXPORT FlowFigures {
    std::vector<numira::Money> income;   ///< of income accounts
    std::vector<numira::Money> expenses; ///< of expense accounts
    numira::Money totalIncome;           ///< of all spans
    numira::Money totalExpenses;         ///< of all spans

    /// Whether nothing moved in any span.
    [[nodiscard]] bool isEmpty() const;
    /// The part of the income that was not spent, with one decimal; negative when more was
    /// spent. Nothing without income.
    [[nodiscard]] static std::optional<foundation::Percentage>
    savingsRate(const numira::Money &income, const numira::Money &expenses);
};

/// Which part of the whole an amount in the same currency is, with one decimal. Nothing if the
/// whole is not positive.
[[nodiscard]] KIV_INTERCHANGE_EXPORT std::optional<foundation::Percentage>
partOf(const numira::Money &part, const numira::Money &whole);

/// Where the money went and came from.
struct Groups {
    Period period; ///< what they are about
    /// Expenses, then income, then the other kinds; currencies in their order, and within one
    /// the largest total first.
    std::vector<GroupFigure> figures;
    std::map<numira::Currency, FlowFigures> currencies; ///< those in which something moved
    QString unnamed; ///< what people call the figures that have no name; the caller sets it
};

/// The figure's name for people.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QString nameOf(const Groups &groups,
                                                    const GroupFigure &figure);

/// Adds up what moved, each account in its own currency: refunds count against what they
/// refund, and what moves between the household's own accounts is neither income nor expense.
/// All transactions must be between `accounts`. Throws what adding the amounts throws.
[[nodiscard]] KIV_INTERCHANGE_EXPORT Groups groupsOf(const Period &period,
                                                     const std::set<accounting::Account> &accounts,
                                                     const TransactionSource &transactions,
                                                     const GroupsOf &groups,
                                                     Grouped grouped = Grouped::Flows);

/// The groups with all that has a rate in one currency: figures of one kind and name are then one.
/// What has no rate stays as it is.
[[nodiscard]] KIV_INTERCHANGE_EXPORT Groups inCurrency(const Groups &groups, const InCurrency &in);

/// The groups as a CSV table with headings (RFC 4180): kind, name and currency, the spans,
/// total and average. No cell can be taken for a formula by a spreadsheet.
[[nodiscard]] KIV_INTERCHANGE_EXPORT QByteArray toCsv(const Groups &groups);

} // namespace kiv::interchange

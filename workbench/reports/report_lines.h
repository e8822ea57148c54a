// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/reports/budget_report.h"

#include "foundation/percentage.h"
#include "interchange/chart.h"

namespace kiv::workbench {

/// What a side of a transaction adds to a line; nothing if it is no part of it. `change` is that of
/// the account's balance.
using LineShare = std::function<std::optional<numira::Money>(
    const accounting::Transaction &transaction, const accounting::Account &account,
    const numira::Money &change)>;

/// A line of a report, with its chart and what it is made of.
struct ReportLine {
    QString key;          ///< that no other line of the report has
    QString name;         ///< of the group, the item or the sum
    QString kind;         ///< "Expense" or "bill"
    QString sentence;     ///< what it says of the whole report; empty for most lines
    bool isSum = false;   ///< of the lines of its kind
    bool isLevel = false; ///< its values are levels, and its entries change them
    std::optional<numira::Money> planned; ///< a span, of items
    std::optional<numira::Money> total;   ///< of all spans; nothing for what is owned at their ends
    std::optional<numira::Money> average; ///< of a span
    std::optional<foundation::Percentage> part; ///< of its kind in this currency
    interchange::Chart chart; ///< over the spans, or over lines if `peers` says so
    QStringList peers;        ///< the keys of the lines over whose names the chart goes; else empty
    std::optional<interchange::FlowFigures> flow; ///< of sums of income and expenses
    LineShare share;                              ///< see entriesOf()
};

/// The lines of the report: those of a grouping, or without one what came in, was spent, planned
/// and is owned; of a search only what came in and was spent. Sums come first.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<ReportLine>
reportLines(const BudgetReport &report, std::optional<Grouping> grouping);

/// What came in, was spent and saved in each currency, or is owned, in a sentence each; and which
/// search counts.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList
reportSentences(const BudgetReport &report, const std::vector<ReportLine> &lines);

/// A part of a line's amount.
struct ReportEntry {
    accounting::Transaction transaction; ///< the entry as a whole
    accounting::AccountNumber account;   ///< the side that adds it
    numira::Money amount;                ///< in the currency of the account
};

/// What the line is made of in one span, in the order of days.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<ReportEntry>
entriesOf(const BudgetReport &report, const ReportLine &line, std::size_t span);

} // namespace kiv::workbench

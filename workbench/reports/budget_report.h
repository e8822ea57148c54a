// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/document/document.h"
#include "workbench/reports/grouping.h"
#include "workbench/requests/exchange_rates.h"
#include "workbench/search/transaction_filter.h"

#include "interchange/figures.h"
#include "interchange/html_report.h"

namespace kiv::workbench {

/// What a report is asked for.
struct ReportQuestion {
    interchange::SpanLength length = interchange::SpanLength::Month; ///< of its spans
    std::optional<QDate> from;          ///< a day in the first span; see reportPeriod()
    QDate to;                           ///< the last day
    QString words;                      ///< a search; only what it finds counts
    QDate today;                        ///< what words such as "this month" mean
    std::optional<numira::Currency> in; ///< converted into this currency; else none is
};

/// What a report is called if nobody says otherwise.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString reportTitle();

class BudgetReport;
/// All accounts together on the days to come, in the currency of the report; nothing if it ends
/// before today, or without an account.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::optional<interchange::Chart>
comingChart(const BudgetReport &report, Document &document);

/// The books as they are when it is made, and what is added up from them. Nothing is added up
/// before it is asked for.
class KIV_WORKBENCH_EXPORT BudgetReport {
public:
    /// Throws what Period, TransactionFilter and the requests throw. The requests must outlive
    /// it.
    BudgetReport(Requests &requests, const ReportQuestion &question);
    BudgetReport(const BudgetReport &) = delete;
    BudgetReport &operator=(const BudgetReport &) = delete;

    /// The accounts.
    [[nodiscard]] const AccountIndex &index() const noexcept { return m_index; }
    /// Its days and spans.
    [[nodiscard]] const interchange::Period &period() const noexcept { return m_period; }
    /// The search as typed; empty if all transactions count.
    [[nodiscard]] QString filter() const;
    /// The currency into which amounts are converted; nothing if none is.
    [[nodiscard]] const std::optional<numira::Currency> &in() const noexcept
    {
        return m_question.in;
    }

    /// Whether amounts of this currency come into that one.
    [[nodiscard]] bool converts(const numira::Currency &currency) const;

    /// Where the money went and came from.
    [[nodiscard]] interchange::Groups groups(Grouping grouping) const;
    /// The names under which `grouping` counts a side of a transaction.
    [[nodiscard]] interchange::GroupsOf names(Grouping grouping) const;
    /// What was planned, came in, was spent and is owned. The search does not count here: all
    /// transactions do.
    [[nodiscard]] interchange::Figures figures() const;
    /// The account of an item; nothing if it has none yet.
    [[nodiscard]] std::optional<accounting::AccountNumber>
    accountOf(budgeting::BudgetItemTypes kind, const QString &name) const;
    /// Calls `visit` with each transaction that counts in the span, or in all of them.
    void visit(const std::function<void(const accounting::Transaction &)> &visit,
               std::optional<std::size_t> span = {}) const;

    /// The exchange rates that groups() and figures() have used, with their days, and the
    /// currencies that stay apart for want of one, in sentences; none if nothing is converted.
    [[nodiscard]] QStringList rateTexts() const;
    /// The same rates.
    [[nodiscard]] std::vector<UsedRate> rates() const;

    /// Makes a chart when the page needs it.
    using MakeChart = std::function<std::optional<interchange::Chart>()>;
    /// The report as a page, see interchange::toHtml(). With `ahead` what is to come stands first,
    /// unless the report is about a search.
    [[nodiscard]] QByteArray page(Grouping grouping, const QString &title,
                                  const MakeChart &ahead = {},
                                  const interchange::DrawChart &draw = interchange::toSvg) const;
    /// How amounts are shown.
    [[nodiscard]] navigation::CurrencyDisplayOptions displayAs() const
    {
        return m_requests.displayAs();
    }

private:
    [[nodiscard]] interchange::Period periodOf(const ReportQuestion &question) const;
    [[nodiscard]] std::optional<interchange::InCurrency> conversion() const;

    Requests &m_requests;
    ReportQuestion m_question;
    AccountIndex m_index;
    BudgetView m_view;
    interchange::ItemAccounts m_itemAccounts;
    interchange::Period m_period;
    std::optional<TransactionFilter> m_filter;
    mutable std::set<numira::Currency> m_met; ///< in which something was added up
};

} // namespace kiv::workbench

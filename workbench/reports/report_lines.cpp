// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/reports/report_lines.h"

#include "workbench/entry/kind_words.h"
#include "workbench/entry/money_text.h"
#include "workbench/requests/balances.h"

#include "foundation/presentation.h"
#include "interchange/figure_charts.h"

#include <ranges>

namespace kiv::workbench {

using accounting::Account;
using accounting::AccountTypes;
using accounting::Transaction;
using foundation::presentationText;
using interchange::Chart;
using interchange::ChartKind;
using interchange::FlowFigures;
using interchange::GroupFigure;
using interchange::Groups;
using interchange::Period;
using numira::Currency;
using numira::Money;

namespace {

/// A chart over more names than that cannot be read.
constexpr std::size_t namesMax = 12;

/// Whether amounts of this currency are part of a line: they are in its currency, or were
/// converted into it.
std::function<bool(const Currency &)> belongsTo(const BudgetReport &report, const Currency &line)
{
    return [&report, line](const Currency &currency) {
        return currency == line || (report.in() == line && report.converts(currency));
    };
}

LineShare shareOf(const BudgetReport &report, AccountTypes type, const Currency &currency)
{
    return
        [type, belongs = belongsTo(report, currency)](const Transaction &, const Account &account,
                                                      const Money &change) -> std::optional<Money> {
            if (account.type() != type || !belongs(change.code()))
                return std::nullopt;
            return change;
        };
}

LineShare shareOfGroup(const BudgetReport &report, const GroupFigure &figure,
                       const interchange::GroupsOf &names)
{
    return [all = shareOf(report, figure.type, figure.total.code()), names,
            name = figure.name](const Transaction &transaction, const Account &account,
                                const Money &change) -> std::optional<Money> {
        auto share = all(transaction, account, change);
        if (share && !names(transaction, account).contains(name))
            share.reset();
        return share;
    };
}

LineShare shareOfWorth(const BudgetReport &report, const Currency &currency)
{
    return [&report, belongs = belongsTo(report, currency)](
               const Transaction &transaction, const Account &account,
               const Money &change) -> std::optional<Money> {
        const auto *debited = report.index().find(transaction.debiting().number());
        const auto *credited = report.index().find(transaction.crediting().number());
        // What moves between accounts of the household changes nothing.
        const bool isMoved = keepsMoney(*debited) && keepsMoney(*credited) &&
                             transaction.debitAmount().code() == transaction.creditAmount().code();
        if (!keepsMoney(account) || isMoved || !belongs(change.code()))
            return std::nullopt;
        return account.type() == AccountTypes::Liability ? -change : change;
    };
}

/// Growth of a debt is no payment.
LineShare shareOfItems(std::set<accounting::AccountNumber> accounts)
{
    return [accounts = std::move(accounts)](const Transaction &transaction, const Account &account,
                                            const Money &change) -> std::optional<Money> {
        if (!accounts.contains(account.code().number()))
            return std::nullopt;
        if (account.type() != AccountTypes::Liability)
            return change;
        if (transaction.debiting().number() != account.code().number())
            return std::nullopt;
        return transaction.debitAmount();
    };
}

Money averageOf(const Money &total, const Period &period)
{
    return total.scaled(1, static_cast<std::int64_t>(period.size())).rounded();
}

Money sumOf(const Currency &currency, const std::vector<Money> &amounts)
{
    return numira::math::sum(currency, amounts, [](const Money &money) { return money; });
}

QString sentenceOf(const FlowFigures &flow, navigation::CurrencyDisplayOptions displayAs)
{
    const auto text = [displayAs](const Money &money) { return amountText(money, displayAs); };
    const Money kept = flow.totalIncome - flow.totalExpenses;
    const auto rate = FlowFigures::savingsRate(flow.totalIncome, flow.totalExpenses);
    const QString flowed =
        QObject::tr("%1 spent, %2 received").arg(text(flow.totalExpenses), text(flow.totalIncome));
    if (kept.isNegative())
        return QObject::tr("%1; %2 more spent than received.").arg(flowed, text(-kept));
    if (rate)
        return QObject::tr("%1; %2 kept, which is %3.")
            .arg(flowed, text(kept), presentationText(*rate));
    return QObject::tr("%1; %2 kept.").arg(flowed, text(kept));
}

/// The sums of income and of expenses in one currency, with one chart for both.
void addFlow(const BudgetReport &report, const Currency &currency, const FlowFigures &flow,
             std::vector<ReportLine> &lines)
{
    const Period &period = report.period();
    const QString code = presentationText(currency);
    const auto add = [&](AccountTypes type, const QString &name, const Money &total) {
        ReportLine line;
        line.key = QStringLiteral("sum/%1/%2").arg(accounting::toQString(type), code);
        line.name = name.arg(code);
        line.kind = accounting::presentationText(type);
        line.isSum = true;
        line.total = total;
        line.average = averageOf(total, period);
        line.chart = interchange::flowChart(period, currency, flow);
        line.flow = flow;
        line.share = shareOf(report, type, currency);
        lines.push_back(std::move(line));
    };
    add(AccountTypes::Expense, QObject::tr("All expenses, %1"), flow.totalExpenses);
    lines.back().sentence = sentenceOf(flow, report.displayAs());
    add(AccountTypes::Income, QObject::tr("All income, %1"), flow.totalIncome);
}

std::optional<foundation::Percentage> partOf(const Money &total, const Groups &groups,
                                             AccountTypes type)
{
    const auto flow = groups.currencies.find(total.code());
    if (flow == groups.currencies.end())
        return std::nullopt;
    if (type != AccountTypes::Expense && type != AccountTypes::Income)
        return std::nullopt;
    const Money &all =
        type == AccountTypes::Expense ? flow->second.totalExpenses : flow->second.totalIncome;
    return interchange::partOf(total, all);
}

/// The largest lines, of which `at` is one, or the last one instead.
std::vector<const ReportLine *> largest(const std::vector<ReportLine> &peers, std::size_t at)
{
    std::vector<const ReportLine *> shown;
    for (const ReportLine &peer : peers | std::views::take(namesMax))
        shown.push_back(&peer);
    if (at >= shown.size())
        shown.back() = &peers[at];
    return shown;
}

/// The groups over their names, for a report of one span.
Chart chartOfNames(const Groups &groups, const GroupFigure &first,
                   const std::vector<const ReportLine *> &shown)
{
    const QString title =
        QObject::tr("%1, %2", "such as: Expense, USD")
            .arg(accounting::presentationText(first.type), presentationText(first.total.code()));
    Chart chart{ChartKind::Bars,
                title,
                QObject::tr("%1 for %2. The largest: %3 with %4.")
                    .arg(title, groups.period.labels().front(), nameOf(groups, first),
                         presentationText(first.total)),
                {},
                {{title, {}}}};
    for (const ReportLine *peer : shown) {
        chart.labels += peer->name;
        chart.series.front().values.push_back(*peer->total);
    }
    return chart;
}

ReportLine lineOf(const BudgetReport &report, const Groups &groups, const GroupFigure &figure,
                  const interchange::GroupsOf &names)
{
    ReportLine line;
    line.key = QStringLiteral("group/%1/%2/%3")
                   .arg(accounting::toQString(figure.type), presentationText(figure.total.code()),
                        figure.name);
    line.name = nameOf(groups, figure);
    line.kind = accounting::presentationText(figure.type);
    line.total = figure.total;
    line.average = figure.average;
    line.part = partOf(figure.total, groups, figure.type);
    line.chart = {
        ChartKind::Bars,
        line.name,
        QObject::tr("%1: %2 together, %3 on average.")
            .arg(line.name, presentationText(figure.total), presentationText(figure.average)),
        groups.period.labels(),
        {{line.name, figure.amounts}}};
    line.share = shareOfGroup(report, figure, names);
    return line;
}

std::vector<ReportLine> groupLines(const BudgetReport &report, Grouping grouping)
{
    const Groups groups = report.groups(grouping);
    const interchange::GroupsOf names = report.names(grouping);
    std::vector<ReportLine> lines;
    for (const auto &[currency, flow] : groups.currencies)
        addFlow(report, currency, flow, lines);
    for (std::size_t at = 0; at < groups.figures.size();) {
        const GroupFigure &first = groups.figures[at];
        std::vector<ReportLine> peers;
        for (; at < groups.figures.size() && groups.figures[at].type == first.type &&
               groups.figures[at].total.code() == first.total.code();
             ++at)
            peers.push_back(lineOf(report, groups, groups.figures[at], names));
        for (std::size_t peer = 0; groups.period.size() == 1 && peer < peers.size(); ++peer) {
            const auto shown = largest(peers, peer);
            peers[peer].chart = chartOfNames(groups, first, shown);
            for (const ReportLine *one : shown)
                peers[peer].peers += one->key;
        }
        std::ranges::move(peers, std::back_inserter(lines));
    }
    return lines;
}

ReportLine lineOf(const BudgetReport &report, const interchange::ItemFigure &item)
{
    ReportLine line;
    line.kind = budgeting::presentationText(item.kind);
    line.key = QStringLiteral("item/%1/%2").arg(kindWord(item.kind), item.name);
    line.name = item.name;
    line.planned = item.planned;
    const Currency currency = item.actual.front().code();
    line.total = sumOf(currency, item.actual);
    line.average = item.average;
    line.chart = {
        ChartKind::Bars,
        QObject::tr("%1, planned and actual").arg(item.name),
        QObject::tr("%1: %2 planned for each span, %3 on average.")
            .arg(item.name, presentationText(item.planned), presentationText(item.average)),
        report.period().labels(),
        {{QObject::tr("Actual"), item.actual}}};
    // One chart has one currency; an account can have another than its item.
    if (item.planned.code() == currency)
        line.chart.series.insert(
            line.chart.series.begin(),
            {QObject::tr("Planned"), std::vector(item.actual.size(), item.planned)});
    const auto account = report.accountOf(item.kind, item.name);
    line.share = shareOfItems(account ? std::set{*account} : std::set<accounting::AccountNumber>());
    return line;
}

std::vector<ReportLine> overviewLines(const BudgetReport &report)
{
    std::vector<ReportLine> lines;
    // Plans and what is owned are of all transactions, and nothing to compare a search with.
    if (!report.filter().isEmpty()) {
        for (const auto &[currency, flow] : report.groups(Grouping::Category).currencies)
            addFlow(report, currency, flow, lines);
        return lines;
    }
    const interchange::Figures figures = report.figures();
    const Period &period = report.period();
    std::map<Currency, std::set<accounting::AccountNumber>> outgoing;
    for (const interchange::ItemFigure &item : figures.items) {
        const auto account = report.accountOf(item.kind, item.name);
        if (account && item.kind != budgeting::BudgetItemTypes::Wage)
            outgoing[item.actual.front().code()].insert(*account);
    }
    for (const auto &[currency, sums] : figures.currencies) {
        const QString code = presentationText(currency);
        if (auto chart = interchange::netWorthChart(period, currency, sums)) {
            ReportLine line;
            line.key = QStringLiteral("worth/") + code;
            line.name = QObject::tr("Net worth, %1").arg(code);
            line.kind = QObject::tr("at the end of each span");
            line.isSum = true;
            line.isLevel = true;
            line.sentence = chart->description;
            line.chart = std::move(*chart);
            line.share = shareOfWorth(report, currency);
            lines.push_back(std::move(line));
        }
        const FlowFigures flow = interchange::flowOf(sums);
        if (!flow.isEmpty())
            addFlow(report, currency, flow, lines);
        if (auto chart = interchange::budgetChart(period, currency, sums)) {
            ReportLine line;
            line.key = QStringLiteral("budget/") + code;
            line.name = QObject::tr("All items but wages, %1").arg(code);
            line.kind = QObject::tr("Budget");
            line.isSum = true;
            line.planned = sums.planned;
            line.total = sumOf(currency, sums.outgoing);
            line.average = averageOf(*line.total, period);
            line.chart = std::move(*chart);
            line.share = shareOfItems(outgoing[currency]);
            lines.push_back(std::move(line));
        }
    }
    for (const interchange::ItemFigure &item : figures.items)
        lines.push_back(lineOf(report, item));
    return lines;
}

} // namespace

std::vector<ReportLine> reportLines(const BudgetReport &report, std::optional<Grouping> grouping)
{
    return grouping ? groupLines(report, *grouping) : overviewLines(report);
}

QStringList reportSentences(const BudgetReport &report, const std::vector<ReportLine> &lines)
{
    QStringList sentences;
    for (const ReportLine &line : lines) {
        if (!line.sentence.isEmpty())
            sentences += line.sentence;
    }
    if (sentences.isEmpty())
        sentences += QObject::tr("Nothing was spent or earned.");
    if (!report.filter().isEmpty())
        sentences += QObject::tr("Only what fits: %1").arg(report.filter());
    return sentences;
}

std::vector<ReportEntry> entriesOf(const BudgetReport &report, const ReportLine &line,
                                   std::size_t span)
{
    std::map<std::pair<QDate, accounting::TransactionNumber>, std::vector<ReportEntry>> found;
    report.visit(
        [&](const Transaction &transaction) {
            for (const accounting::AccountCode &side :
                 {transaction.debiting(), transaction.crediting()}) {
                const Account &account = *report.index().find(side.number());
                const auto share = line.share(transaction, account, changeOf(transaction, account));
                if (share)
                    found[{transaction.occurredOn(), transaction.number().value()}].push_back(
                        {transaction, side.number(), *share});
            }
        },
        span);
    std::vector<ReportEntry> entries;
    for (const auto &[when, parts] : found)
        entries.insert(entries.end(), parts.begin(), parts.end());
    return entries;
}

} // namespace kiv::workbench

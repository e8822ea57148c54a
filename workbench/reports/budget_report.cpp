// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/reports/budget_report.h"

#include "workbench/outlook/outlook_chart.h"
#include "workbench/requests/paying_account.h"

#include "foundation/clock.h"
#include "foundation/presentation.h"

namespace kiv::workbench {

using accounting::Transaction;
using interchange::Period;
using interchange::SpanLength;
using interchange::TransactionSource;
using numira::Currency;

namespace {

interchange::ItemAccounts accountsOfItems(const Requests::Data &data)
{
    interchange::ItemAccounts accounts;
    data.budget.forEach([&](const budgeting::BudgetedMoney &item) {
        const budgeting::BudgetItemIdentifier id = identify(item);
        if (const auto account = workbench::accountOf(data, id))
            accounts.emplace(id, *account);
    });
    return accounts;
}

std::optional<TransactionFilter> filterOf(const ReportQuestion &question, const AccountIndex &index)
{
    if (question.words.trimmed().isEmpty())
        return std::nullopt;
    return TransactionFilter(question.words, index, question.today);
}

} // namespace

QString reportTitle()
{
    return QObject::tr("Household report");
}

BudgetReport::BudgetReport(Requests &requests, const ReportQuestion &question)
    : m_requests(requests),
      m_question(question),
      m_index(requests.accounts()),
      m_view(requests),
      m_itemAccounts(accountsOfItems(requests.present())),
      m_period(periodOf(question)),
      m_filter(filterOf(question, m_index))
{
}

Period BudgetReport::periodOf(const ReportQuestion &question) const
{
    std::vector<QDate> paydays;
    if (question.length == SpanLength::Payday)
        paydays =
            interchange::paydaysOf(interchange::transactionsOf(m_index.accounts()), m_itemAccounts);
    return reportPeriod(question.length, question.from, question.to, paydays, m_index.accounts());
}

QString BudgetReport::filter() const
{
    return m_filter ? filterText(m_filter->parts()) : QString();
}

void BudgetReport::visit(const std::function<void(const Transaction &)> &visit,
                         std::optional<std::size_t> span) const
{
    QDate first = m_period.from();
    QDate last = m_period.to();
    if (span) {
        first = m_period.begins()[*span];
        if (*span + 1 < m_period.size())
            last = m_period.begins()[*span + 1].addDays(-1);
    }
    interchange::transactionsOf(m_index.accounts(), first, last)([&](const Transaction &each) {
        if (!m_filter || m_filter->matches(each))
            visit(each);
    });
}

bool BudgetReport::converts(const Currency &currency) const
{
    return m_question.in &&
           convertedIfKnown(numira::Money(currency, 1, 0), *m_question.in).has_value();
}

interchange::GroupsOf BudgetReport::names(Grouping grouping) const
{
    return groupNames(grouping, m_view, m_itemAccounts, m_index);
}

interchange::Groups BudgetReport::groups(Grouping grouping) const
{
    const TransactionSource counted = [this](const auto &each) { visit(each); };
    interchange::Groups groups =
        interchange::groupsOf(m_period, m_index.accounts(), counted, names(grouping),
                              grouping == Grouping::Account ? interchange::Grouped::Accounts
                                                            : interchange::Grouped::Flows);
    groups.unnamed = unnamedText(grouping);
    for (const interchange::GroupFigure &figure : groups.figures)
        m_met.insert(figure.total.code());
    const auto in = conversion();
    return in ? interchange::inCurrency(groups, *in) : groups;
}

interchange::Figures BudgetReport::figures() const
{
    interchange::Figures figures =
        interchange::figuresOf(m_period, m_index.accounts(),
                               interchange::transactionsOf(m_index.accounts(), m_period.from()),
                               m_view.budget(), m_itemAccounts);
    for (const interchange::BalanceFigure &figure : figures.balances)
        m_met.insert(figure.balance.code());
    for (const interchange::ItemFigure &item : figures.items)
        m_met.insert({item.planned.code(), item.actual.front().code()});
    const auto in = conversion();
    return in ? interchange::inCurrency(figures, *in) : figures;
}

std::optional<accounting::AccountNumber> BudgetReport::accountOf(budgeting::BudgetItemTypes kind,
                                                                 const QString &name) const
{
    const auto found = m_itemAccounts.find({kind, budgeting::BudgetSource(name)});
    return found == m_itemAccounts.end() ? std::nullopt : std::optional(found->second);
}

std::optional<interchange::InCurrency> BudgetReport::conversion() const
{
    if (!m_question.in)
        return std::nullopt;
    const Currency wanted = *m_question.in;
    return interchange::InCurrency{
        wanted, [wanted](const numira::Money &money) { return convertedIfKnown(money, wanted); }};
}

std::vector<UsedRate> BudgetReport::rates() const
{
    if (!m_question.in)
        return {};
    return usedRates(presentRates(m_requests), m_met, *m_question.in);
}

QStringList BudgetReport::rateTexts() const
{
    if (!m_question.in)
        return {};
    QStringList texts;
    for (const UsedRate &rate : rates())
        texts += QObject::tr("%1 (%2)").arg(presentationText(rate),
                                            foundation::presentationText(rate.origin.day));
    QStringList lacking;
    for (const Currency &currency : m_met) {
        if (!converts(currency))
            lacking += foundation::presentationText(currency);
    }
    if (!lacking.isEmpty())
        texts += QObject::tr("Without an exchange rate, and apart: %1")
                     .arg(lacking.join(QStringLiteral(", ")));
    return texts;
}

std::optional<interchange::Chart> comingChart(const BudgetReport &report, Document &document)
{
    OutlookQuestion question;
    question.first = foundation::today();
    if (report.period().to() < question.first)
        return std::nullopt;
    const LookingAhead ahead =
        lookAhead(document.present(), question,
                  report.in().value_or(document.requests().preferredCurrency()));
    if (!ahead.together)
        return std::nullopt;
    return outlookChart(ahead, *ahead.together, QObject::tr("All together"), {}, report.index(),
                        report.displayAs());
}

QByteArray BudgetReport::page(Grouping grouping, const QString &title, const MakeChart &ahead,
                              const interchange::DrawChart &draw) const
{
    // What the budget planned, the household owns and is to come is of all transactions.
    std::optional<interchange::Figures> all;
    std::optional<interchange::Chart> coming;
    if (!m_filter) {
        all = figures();
        if (ahead)
            coming = ahead();
    }
    const interchange::Groups grouped = groups(grouping);
    return interchange::toHtml(all ? &*all : nullptr, grouped,
                               {title, presentationText(grouping), filter(), rateTexts(), draw},
                               coming);
}

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/reports/budget_report.h"

#include "foundation/presentation.h"

namespace kiv::workbench {

using accounting::Transaction;
using interchange::Period;
using interchange::SpanLength;
using interchange::TransactionSource;
using numira::Currency;

namespace {

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
      m_period(periodOf(question)),
      m_filter(filterOf(question, m_index))
{
}

Period BudgetReport::periodOf(const ReportQuestion &question) const
{
    std::vector<QDate> paydays;
    if (question.length == SpanLength::Payday)
        paydays = interchange::paydaysOf(
            m_index.accounts(), interchange::transactionsOf(m_index.accounts()), m_view.budget());
    return reportPeriod(question.length, question.from, question.to, paydays,
                        interchange::firstDayOf(m_index.accounts()));
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

interchange::GroupsOf BudgetReport::names(Grouping grouping) const
{
    return groupNames(grouping, m_requests, m_view, m_index);
}

interchange::Groups BudgetReport::groups(Grouping grouping) const
{
    const TransactionSource counted = [this](const auto &each) { visit(each); };
    interchange::Groups groups =
        interchange::groupsOf(m_period, m_index.accounts(), counted, names(grouping),
                              grouping == Grouping::Account ? interchange::Grouped::Accounts
                                                            : interchange::Grouped::Flows);
    groups.unnamed = unnamedText(grouping);
    const auto in = conversion();
    return in ? interchange::inCurrency(groups, *in) : groups;
}

interchange::Figures BudgetReport::figures() const
{
    interchange::Figures figures =
        interchange::figuresOf(m_period, m_index.accounts(),
                               interchange::transactionsOf(m_index.accounts()), m_view.budget());
    const auto in = conversion();
    return in ? interchange::inCurrency(figures, *in) : figures;
}

std::optional<accounting::AccountNumber> BudgetReport::accountOf(budgeting::BudgetItemTypes kind,
                                                                 const QString &name) const
{
    return m_requests.accountOf({kind, budgeting::BudgetSource(name)});
}

std::optional<interchange::InCurrency> BudgetReport::conversion() const
{
    if (!m_question.in)
        return std::nullopt;
    const Currency wanted = *m_question.in;
    return interchange::InCurrency{
        wanted, [wanted](const numira::Money &money) { return convertedIfKnown(money, wanted); }};
}

std::set<Currency> BudgetReport::currencies() const
{
    std::set<Currency> all;
    for (const accounting::Account &account : m_index.accounts())
        all.insert(account.balance().code());
    return all;
}

std::vector<UsedRate> BudgetReport::rates() const
{
    if (!m_question.in)
        return {};
    return usedRates(presentRates(m_requests), currencies(), *m_question.in);
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
    for (const Currency &currency : currencies()) {
        if (!convertedIfKnown(numira::Money(currency, 1, 0), *m_question.in))
            lacking += foundation::presentationText(currency);
    }
    if (!lacking.isEmpty())
        texts += QObject::tr("Without an exchange rate, and apart: %1")
                     .arg(lacking.join(QStringLiteral(", ")));
    return texts;
}

QByteArray BudgetReport::page(Grouping grouping, const QString &title,
                              const std::optional<interchange::Chart> &ahead,
                              const interchange::DrawChart &draw) const
{
    // What the budget planned and the household owns is of all transactions.
    std::optional<interchange::Figures> all;
    if (!m_filter)
        all = figures();
    return interchange::toHtml(all ? &*all : nullptr, groups(grouping),
                               {title, presentationText(grouping), filter(), rateTexts(), draw},
                               m_filter ? std::nullopt : ahead);
}

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/groups.h"

#include "interchange/csv_table.h"

#include "foundation/presentation.h"

#include <QtCore/QHash>
#include <QtCore/QObject>

#include <algorithm>
#include <cmath>

namespace kiv::interchange {

using accounting::Account;
using accounting::AccountNumber;
using accounting::AccountTypes;
using accounting::Transaction;
using numira::Currency;
using numira::Money;

namespace {

using Amounts = std::vector<Money>;

/// The groups of one kind and currency by their names.
using Named = QHash<QString, Amounts>;

/// The groups by rank, currency and kind.
using Keyed = std::map<std::tuple<int, Currency, AccountTypes>, Named>;
using Flows = std::map<Currency, FlowFigures>;

/// In the order in which a household asks.
int rankOf(AccountTypes type)
{
    if (type == AccountTypes::Expense)
        return -2;
    return type == AccountTypes::Income ? -1 : static_cast<int>(type);
}

Money totalOf(const Amounts &amounts, const Currency &currency)
{
    return numira::math::sum(currency, amounts, [](const Money &money) { return money; });
}

/// Adds span by span.
void addTo(Amounts &sums, const Amounts &amounts)
{
    if (sums.empty())
        sums = amounts;
    else
        std::ranges::transform(sums, amounts, sums.begin(), std::plus<>());
}

/// The figures in their order, with totals and averages.
Groups assembled(const Period &period, const Keyed &keyed, const Flows &flows)
{
    Groups all{period, {}, flows, {}};
    for (const auto &[key, named] : keyed) {
        const auto &[rank, currency, type] = key;
        std::vector<GroupFigure> figures;
        for (auto group = named.begin(); group != named.end(); ++group) {
            const Money total = totalOf(group.value(), currency);
            figures.push_back({type, group.key(), group.value(), total,
                               total.scaled(1, std::ssize(group.value())).rounded()});
        }
        std::ranges::sort(figures, [](const GroupFigure &a, const GroupFigure &b) {
            const auto order = numira::compareExactly(b.total, a.total);
            return order != 0 ? order < 0 : a.name < b.name;
        });
        std::ranges::move(figures, std::back_inserter(all.figures));
    }
    for (auto &[currency, flow] : all.currencies) {
        flow.totalIncome = totalOf(flow.income, currency);
        flow.totalExpenses = totalOf(flow.expenses, currency);
    }
    return all;
}

class Sums {
public:
    Sums(const Period &period, const std::set<Account> &accounts, Grouped grouped)
        : m_period(period), m_grouped(grouped)
    {
        for (const Account &account : accounts)
            m_accounts.emplace(account.code().number(), &account);
    }

    void add(const Transaction &transaction, const GroupsOf &groups)
    {
        const std::optional<int> span = m_period.spanOf(transaction.occurredOn());
        if (!span || *span < 0)
            return;
        const auto at = static_cast<std::size_t>(*span);
        addSide(transaction, transaction.debiting().number(), transaction.debitAmount(), true, at,
                groups);
        addSide(transaction, transaction.crediting().number(), transaction.creditAmount(), false,
                at, groups);
    }

    [[nodiscard]] Groups groups() const { return assembled(m_period, m_groups, m_flows); }

private:
    [[nodiscard]] Amounts zeros(const Currency &currency) const
    {
        return {m_period.size(), Money(currency)};
    }

    void addSide(const Transaction &transaction, AccountNumber number, const Money &amount,
                 bool isDebit, std::size_t span, const GroupsOf &groups)
    {
        const Account &account = *m_accounts.at(number);
        const AccountTypes type = account.type();
        const bool isIncome = type == AccountTypes::Income;
        const bool isFlow = isIncome || type == AccountTypes::Expense;
        if (!isFlow && m_grouped == Grouped::Flows)
            return;
        const Currency currency = amount.code();
        const Money change = isDebit == accounting::isDebitNormal(type) ? amount : -amount;
        if (isFlow) {
            const auto [found, isNew] = m_flows.try_emplace(currency);
            if (isNew)
                found->second = {zeros(currency), zeros(currency), {}, {}};
            (isIncome ? found->second.income : found->second.expenses)[span] += change;
        }
        Named &named = m_groups[{rankOf(type), currency, type}];
        for (const QString &name : groups(transaction, account)) {
            Amounts &amounts = named[name];
            if (amounts.empty())
                amounts = zeros(currency);
            amounts[span] += change;
        }
    }

    const Period &m_period;
    Grouped m_grouped;
    std::map<AccountNumber, const Account *> m_accounts;
    Keyed m_groups;
    Flows m_flows;
};

} // namespace

QString nameOf(const Groups &groups, const GroupFigure &figure)
{
    return figure.name.isEmpty() ? groups.unnamed : figure.name;
}

bool FlowFigures::isEmpty() const
{
    return std::ranges::all_of(income, &Money::isZero) &&
           std::ranges::all_of(expenses, &Money::isZero);
}

std::optional<foundation::Percentage> FlowFigures::savingsRate(const Money &income,
                                                               const Money &expenses)
{
    return partOf(income - expenses, income);
}

std::optional<foundation::Percentage> partOf(const Money &part, const Money &whole)
{
    if (!whole.isPositive())
        return std::nullopt;
    const double ratio = part.amount().toDouble() / whole.amount().toDouble();
    return foundation::Percentage(std::round(ratio * 1000) / 10, 1);
}

Groups groupsOf(const Period &period, const std::set<Account> &accounts,
                const TransactionSource &transactions, const GroupsOf &groups, Grouped grouped)
{
    Sums sums(period, accounts, grouped);
    transactions([&](const Transaction &transaction) { sums.add(transaction, groups); });
    return sums.groups();
}

Groups inCurrency(const Groups &groups, const InCurrency &in)
{
    Keyed keyed;
    for (const GroupFigure &figure : groups.figures) {
        const Amounts amounts = in(figure.amounts);
        addTo(keyed[{rankOf(figure.type), amounts.front().code(), figure.type}][figure.name],
              amounts);
    }
    Flows flows;
    for (const auto &[currency, flow] : groups.currencies) {
        // Both or none, so that one can be compared with the other.
        Amounts both = flow.income;
        both.insert(both.end(), flow.expenses.begin(), flow.expenses.end());
        both = in(std::move(both));
        const auto middle = both.begin() + std::ssize(flow.income);
        FlowFigures &sums = flows[both.front().code()];
        addTo(sums.income, {both.begin(), middle});
        addTo(sums.expenses, {middle, both.end()});
    }
    Groups converted = assembled(groups.period, keyed, flows);
    converted.unnamed = groups.unnamed;
    return converted;
}

QByteArray toCsv(const Groups &groups)
{
    QStringList headings{QStringLiteral("kind"), QStringLiteral("name"),
                         QStringLiteral("currency")};
    headings += groups.period.labels();
    headings += {QStringLiteral("total"), QStringLiteral("average")};
    QString text = headings.join(u',') + QStringLiteral("\r\n");
    for (const GroupFigure &figure : groups.figures) {
        // Amounts are no formulas, whatever their sign.
        QStringList amounts;
        for (const Money &amount : figure.amounts)
            amounts += foundation::toQString(amount);
        amounts += {foundation::toQString(figure.total), foundation::toQString(figure.average)};
        text += csvLine({accounting::toQString(figure.type), figure.name,
                         foundation::toQString(figure.total.code())})
                    .chopped(2) +
                u',' + amounts.join(u',') + QStringLiteral("\r\n");
    }
    return text.toUtf8();
}

} // namespace kiv::interchange

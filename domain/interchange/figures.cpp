// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/figures.h"

#include "interchange/account_paths.h"
#include "interchange/internal/faults.h"

#include "budgeting/item_account.h"

namespace kiv::interchange {

using accounting::Account;
using accounting::AccountNumber;
using accounting::AccountTypes;
using accounting::Transaction;
using budgeting::BudgetItemTypes;
using numira::Money;

namespace {

int monthsBetween(QDate from, QDate to)
{
    return (to.year() - from.year()) * 12 + to.month() - from.month();
}

/// What moved on one account, month by month.
struct Flow {
    explicit Flow(const Account &opened, std::size_t months)
        : account(opened),
          before(opened.balance().code()),
          debits(months, before),
          credits(months, before)
    {
    }

    /// How the balance changed in a month, positive on the account's own side.
    [[nodiscard]] Money change(std::size_t month) const
    {
        return accounting::isDebitNormal(account.type()) ? debits[month] - credits[month]
                                                         : credits[month] - debits[month];
    }

    const Account &account;
    Money before; ///< on the account's own side
    std::vector<Money> debits;
    std::vector<Money> credits;
};

using Flows = std::map<AccountNumber, Flow>;

Flows flowsOf(const Period &period, const std::set<Account> &accounts,
              const std::vector<Transaction> &transactions)
{
    Flows flows;
    for (const Account &account : accounts)
        flows.try_emplace(account.code().number(), account, period.months());
    for (const Transaction &transaction : transactions) {
        const std::optional<int> month = period.monthOf(transaction.occurredOn());
        if (!month)
            continue;
        const auto add = [&](AccountNumber number, const Money &amount, bool isDebit) {
            Flow &flow = flows.at(number);
            if (*month >= 0) {
                (isDebit ? flow.debits : flow.credits)[static_cast<std::size_t>(*month)] += amount;
            } else if (isDebit == accounting::isDebitNormal(flow.account.type())) {
                flow.before += amount;
            } else {
                flow.before -= amount;
            }
        };
        add(transaction.debiting().number(), transaction.debitAmount(), true);
        add(transaction.crediting().number(), transaction.creditAmount(), false);
    }
    return flows;
}

void addAccount(const Flow &flow, const QString &path, Figures &figures)
{
    const std::size_t months = figures.period.months();
    const AccountTypes type = flow.account.type();
    const numira::Currency currency = flow.account.balance().code();
    const auto [found, isNew] = figures.currencies.try_emplace(currency);
    CurrencyFigures &sums = found->second;
    if (isNew) {
        const std::vector<Money> zeros(months, Money(currency));
        sums = {zeros, zeros, zeros, Money(currency), zeros, false};
    }
    Money balance = flow.before;
    for (std::size_t month = 0; month < months; ++month) {
        balance += flow.change(month);
        if (type == AccountTypes::Asset)
            sums.netWorth[month] += balance;
        else if (type == AccountTypes::Liability)
            sums.netWorth[month] -= balance;
        else if (type == AccountTypes::Income)
            sums.income[month] += flow.change(month);
        else if (type == AccountTypes::Expense)
            sums.expenses[month] += flow.change(month);
    }
    if (!balance.isZero())
        figures.balances.push_back({path, type, balance});
}

/// The flow of the account that the item owns; null when it has none.
template <typename Item>
const Flow *flowOf(const Item &item, const Flows &flows)
{
    const QString name = budgeting::itemAccountName(item.source());
    const auto found = std::ranges::find_if(flows, [&name](const auto &flow) {
        return flow.second.account.type() == budgeting::ItemTraits<Item>::accountType &&
               flow.second.account.code().name() == name;
    });
    return found == flows.end() ? nullptr : &found->second;
}

template <typename Item>
void addItem(const Item &item, const Flows &flows, Figures &figures)
{
    constexpr BudgetItemTypes kind = budgeting::ItemTraits<Item>::type;
    const Money planned =
        budgeting::accumulateOver(budgeting::EventFrequency::Monthly, item.amount(), item.period())
            .rounded();
    const numira::Currency currency = item.amount().code();
    const std::size_t months = figures.period.months();
    ItemFigure figure{kind, item.source().name(), planned, std::vector(months, Money(currency))};
    const Flow *flow = flowOf(item, flows);
    const auto found = figures.currencies.find(currency);
    CurrencyFigures *sums = found == figures.currencies.end() ? nullptr : &found->second;
    const bool isOutgoing = kind != BudgetItemTypes::Wage;
    if (sums && isOutgoing) {
        sums->planned += planned;
        sums->hasItems = true;
    }
    for (std::size_t month = 0; flow && month < months; ++month) {
        // Growth of a debt is no payment.
        figure.actual[month] =
            kind == BudgetItemTypes::Debt ? flow->debits[month] : flow->change(month);
        if (!isOutgoing)
            continue;
        const Money &actual = figure.actual[month];
        CurrencyFigures &own = figures.currencies.at(actual.code()); // the account brought them
        own.outgoing[month] += actual;
        own.hasItems = own.hasItems || !actual.isZero();
    }
    figures.items.push_back(std::move(figure));
}

} // namespace

Period::Period(QDate from, QDate to) : m_from(from.year(), from.month(), 1), m_to(to), m_months(0)
{
    if (!from.isValid() || !to.isValid() || from > to)
        throw faults::reportEndsFirst();
    const int months = monthsBetween(m_from, m_to) + 1;
    if (months > monthsMax)
        throw faults::reportTooLong(monthsMax);
    m_months = static_cast<std::size_t>(months);
}

std::optional<int> Period::monthOf(QDate day) const noexcept
{
    return day > m_to ? std::nullopt : std::optional(monthsBetween(m_from, day));
}

QStringList Period::labels() const
{
    QStringList labels;
    for (std::size_t month = 0; month < m_months; ++month)
        labels += m_from.addMonths(static_cast<int>(month)).toString(QStringLiteral("yyyy-MM"));
    return labels;
}

Figures figuresOf(const Period &period, const std::set<Account> &accounts,
                  const std::vector<Transaction> &transactions, const budgeting::Budget &budget)
{
    Figures figures{period, {}, {}, {}};
    const std::map<AccountNumber, QString> paths = accountPaths(accounts);
    const Flows flows = flowsOf(period, accounts, transactions);
    for (const auto &[number, flow] : flows)
        addAccount(flow, paths.at(number), figures);
    std::ranges::sort(figures.balances, {}, &BalanceFigure::path);
    budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        for (const auto &[source, item] : budget.items<Item>())
            addItem(item, flows, figures);
    });
    return figures;
}

} // namespace kiv::interchange

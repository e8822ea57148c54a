// SPDX-License-Identifier: GPL-3.0-or-later
#include "interchange/figures.h"

#include "interchange/account_paths.h"
#include "interchange/internal/faults.h"

#include "budgeting/item_account.h"
#include "budgeting/item_traits.h"

namespace kiv::interchange {

using accounting::Account;
using accounting::AccountNumber;
using accounting::AccountTypes;
using accounting::Transaction;
using budgeting::BudgetItemTypes;
using numira::Money;

namespace {

/// The plan of an item, restated per span of a report.
Money plannedPer(const Period &period, const budgeting::BudgetedMoney &item)
{
    using budgeting::EventFrequency;
    const auto per = [&item](EventFrequency frequency) {
        return budgeting::accumulateOver(frequency, item.amount(), item.period()).rounded();
    };
    switch (period.length()) {
    case SpanLength::Week:
        return per(EventFrequency::Weekly);
    case SpanLength::TwoWeeks:
        return per(EventFrequency::EveryTwoWeeks);
    case SpanLength::Month:
        return per(EventFrequency::Monthly);
    case SpanLength::Quarter:
        return per(EventFrequency::Quarterly);
    case SpanLength::Year:
        return per(EventFrequency::Yearly);
    case SpanLength::Payday:
    case SpanLength::Whole:
        break;
    }
    // Such spans have any number of days: those of an average one.
    const qint64 days = period.from().daysTo(period.to()) + 1;
    return budgeting::accumulateOver(EventFrequency::Yearly, item.amount(), item.period())
        .scaled(days, 365 * static_cast<std::int64_t>(period.size()))
        .rounded();
}

Money sumOf(const std::vector<Money> &amounts)
{
    return numira::math::sum(amounts.front().code(), amounts,
                             [](const Money &money) { return money; });
}

/// Rounded to the minor unit.
Money averageOf(const std::vector<Money> &amounts)
{
    return sumOf(amounts).scaled(1, std::ssize(amounts)).rounded();
}

/// What moved on one account, span by span.
struct Flow {
    explicit Flow(const Account &opened, std::size_t spans)
        : account(opened),
          before(opened.balance()),
          debits(spans, numira::Money(before.code())),
          credits(debits)
    {
    }

    /// Takes a change in, which the balance has already: in a span, or after the last one.
    void add(std::optional<int> span, const Money &amount, bool isDebit)
    {
        if (isDebit == accounting::isDebitNormal(account.type()))
            before -= amount;
        else
            before += amount;
        if (span)
            (isDebit ? debits : credits)[static_cast<std::size_t>(*span)] += amount;
    }

    /// How the balance changed in a span, positive on the account's own side.
    [[nodiscard]] Money change(std::size_t span) const
    {
        return accounting::isDebitNormal(account.type()) ? debits[span] - credits[span]
                                                         : credits[span] - debits[span];
    }

    const Account &account;
    Money before; ///< the period, on the account's own side
    std::vector<Money> debits;
    std::vector<Money> credits;
};

using FlowByAccount = std::map<AccountNumber, Flow>;

FlowByAccount flowsOf(const Period &period, const std::set<Account> &accounts,
                      const TransactionSource &transactions)
{
    FlowByAccount flows;
    for (const Account &account : accounts)
        flows.try_emplace(account.code().number(), account, period.size());
    transactions([&](const Transaction &transaction) {
        const std::optional<int> span = period.spanOf(transaction.occurredOn());
        if (span && *span < 0)
            return;
        flows.at(transaction.debiting().number()).add(span, transaction.debitAmount(), true);
        flows.at(transaction.crediting().number()).add(span, transaction.creditAmount(), false);
    });
    return flows;
}

void addAccount(const Flow &flow, const QString &path, const QString &plainPath, Figures &figures)
{
    const std::size_t spans = figures.period.size();
    const AccountTypes type = flow.account.type();
    const numira::Currency currency = flow.account.balance().code();
    const auto [found, isNew] = figures.currencies.try_emplace(currency);
    CurrencyFigures &sums = found->second;
    if (isNew)
        sums = CurrencyFigures::zeros(currency, spans);
    Money balance = flow.before;
    for (std::size_t span = 0; span < spans; ++span) {
        balance += flow.change(span);
        if (type == AccountTypes::Asset)
            sums.netWorth[span] += balance;
        else if (type == AccountTypes::Liability)
            sums.netWorth[span] -= balance;
        else if (type == AccountTypes::Income)
            sums.income[span] += flow.change(span);
        else if (type == AccountTypes::Expense)
            sums.expenses[span] += flow.change(span);
    }
    const Money change = balance - flow.before;
    if (!balance.isZero() || !change.isZero())
        figures.balances.push_back({path, plainPath, type, balance, change});
}

template <typename Item>
void addItem(const Item &item, const Flow *flow, Figures &figures)
{
    constexpr BudgetItemTypes kind = budgeting::ItemTraits<Item>::type;
    const Money planned = plannedPer(figures.period, item);
    const numira::Currency currency = item.amount().code();
    const std::size_t spans = figures.period.size();
    ItemFigure figure{kind, item.source().name(), planned, std::vector(spans, Money(currency)),
                      Money(currency)};
    const auto found = figures.currencies.find(currency);
    CurrencyFigures *sums = found == figures.currencies.end() ? nullptr : &found->second;
    const bool isOutgoing = kind != BudgetItemTypes::Wage;
    if (sums && isOutgoing) {
        sums->planned += planned;
        sums->hasItems = true;
    }
    for (std::size_t span = 0; flow && span < spans; ++span) {
        // Growth of a debt is no payment.
        figure.actual[span] =
            kind == BudgetItemTypes::Debt ? flow->debits[span] : flow->change(span);
        if (!isOutgoing)
            continue;
        const Money &actual = figure.actual[span];
        CurrencyFigures &own = figures.currencies.at(actual.code()); // the account brought them
        own.outgoing[span] += actual;
        own.hasItems = own.hasItems || !actual.isZero();
    }
    figure.average = averageOf(figure.actual);
    figures.items.push_back(std::move(figure));
}

/// Adds the sums of a currency to those of the one into which they are converted.
void addConverted(const CurrencyFigures &sums, const InCurrency &in, Figures &converted)
{
    constexpr std::array rows{&CurrencyFigures::netWorth, &CurrencyFigures::income,
                              &CurrencyFigures::expenses, &CurrencyFigures::outgoing};
    // All or none, so that they stay comparable.
    std::vector<Money> all{sums.planned};
    for (const auto row : rows)
        all.insert(all.end(), (sums.*row).begin(), (sums.*row).end());
    all = in(std::move(all));
    const numira::Currency currency = all.front().code();
    const std::size_t spans = sums.netWorth.size();
    const auto [found, isNew] = converted.currencies.try_emplace(currency);
    CurrencyFigures &into = found->second;
    if (isNew)
        into = CurrencyFigures::zeros(currency, spans);
    into.hasItems = into.hasItems || sums.hasItems;
    into.planned += all.front();
    auto amount = all.begin() + 1;
    for (const auto row : rows) {
        for (std::size_t span = 0; span < spans; ++span)
            (into.*row)[span] += *amount++;
    }
}

} // namespace

std::vector<QDate> paydaysOf(const TransactionSource &transactions,
                             const ItemAccounts &itemAccounts)
{
    std::map<AccountNumber, std::set<QDate>> paydays;
    for (const auto &[item, account] : itemAccounts) {
        if (item.type == BudgetItemTypes::Wage)
            paydays.try_emplace(account);
    }
    transactions([&paydays](const Transaction &transaction) {
        const auto found = paydays.find(transaction.crediting().number());
        if (found != paydays.end())
            found->second.insert(transaction.occurredOn());
    });
    const auto most =
        std::ranges::max_element(paydays, {}, [](const auto &wage) { return wage.second.size(); });
    if (most == paydays.end())
        return {};
    return {most->second.begin(), most->second.end()};
}

Figures figuresOf(const Period &period, const std::set<Account> &accounts,
                  const TransactionSource &transactions, const budgeting::Budget &budget,
                  const ItemAccounts &itemAccounts)
{
    Figures figures{period, {}, {}, {}};
    const std::map<AccountNumber, QString> paths = accountPaths(accounts);
    const std::map<AccountNumber, QString> plainPaths =
        accountPaths(accounts, [](const Account &account) {
            const QString mark = u' ' + budgeting::itemAccountSuffix();
            const QString &name = account.code().name();
            return name.endsWith(mark) ? name.chopped(mark.size()) : name;
        });
    const FlowByAccount flows = flowsOf(period, accounts, transactions);
    for (const auto &[number, flow] : flows)
        addAccount(flow, paths.at(number), plainPaths.at(number), figures);
    std::ranges::sort(figures.balances, {}, &BalanceFigure::path);
    budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        for (const auto &[source, item] : budget.items<Item>()) {
            const auto account = itemAccounts.find({budgeting::ItemTraits<Item>::type, source});
            const auto flow =
                account == itemAccounts.end() ? flows.end() : flows.find(account->second);
            addItem(item, flow == flows.end() ? nullptr : &flow->second, figures);
        }
    });
    return figures;
}

Figures inCurrency(const Figures &figures, const InCurrency &in)
{
    Figures converted{figures.period, {}, {}, {}};
    for (BalanceFigure figure : figures.balances) {
        const std::vector<Money> amounts = in({figure.balance, figure.change});
        figure.balance = amounts[0];
        figure.change = amounts[1];
        converted.balances.push_back(std::move(figure));
    }
    for (ItemFigure figure : figures.items) {
        figure.planned = in({figure.planned}).front();
        figure.actual = in(std::move(figure.actual));
        figure.average = averageOf(figure.actual);
        converted.items.push_back(std::move(figure));
    }
    for (const auto &[currency, sums] : figures.currencies)
        addConverted(sums, in, converted);
    return converted;
}

FlowFigures flowOf(const CurrencyFigures &figures)
{
    return {figures.income, figures.expenses, sumOf(figures.income), sumOf(figures.expenses)};
}

} // namespace kiv::interchange

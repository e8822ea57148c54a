// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/item_figures.h"

#include "workbench/requests/balances.h"
#include "workbench/requests/budget_view.h"
#include "workbench/requests/exchange_rates.h"
#include "workbench/requests/paying_account.h"

#include "budgeting/item_traits.h"
#include "foundation/presentation.h"
#include "numira/error.h"

namespace kiv::workbench {

using budgeting::BudgetedMoney;
using budgeting::EventFrequency;
using numira::Money;
using storage::BudgetStorage;

namespace {

std::optional<int> percentOf(const Money &done, const Money &whole)
{
    if (done.code() != whole.code() || !whole.isPositive())
        return std::nullopt;
    int percent = 0;
    while (percent < 100 && whole.amount().scaled(percent + 1, 100) <= done.amount())
        ++percent;
    return percent;
}

std::map<numira::Currency, Money> totalsApart(const budgeting::Budget &budget,
                                              budgeting::BudgetItemTypes kind)
{
    std::map<numira::Currency, Money> totals;
    budget.forEach([&](const BudgetedMoney &item) {
        if (budgeting::toBudgetItemTypes(item) != kind)
            return;
        const Money monthly =
            budgeting::accumulateOver(EventFrequency::Monthly, item.amount(), item.period());
        totals.try_emplace(monthly.code(), Money(monthly.code())).first->second += monthly;
    });
    return totals;
}

} // namespace

std::optional<ItemProgress> progressOf(const BudgetStorage::Data &data, const BudgetedMoney &item)
{
    const auto account = accountOf(data, identify(item));
    if (!account || !data.generalLedger.hasLedger(*account))
        return std::nullopt;
    const Money balance = data.generalLedger.ledger(*account).balance();
    if (const auto *goal = dynamic_cast<const budgeting::Goal *>(&item))
        return ItemProgress{balance, goal->final(), percentOf(balance, goal->final())};
    const auto *debt = dynamic_cast<const budgeting::Debt *>(&item);
    if (!debt)
        return std::nullopt;
    const Money &whole = debt->borrowed();
    if (balance.code() != whole.code())
        return ItemProgress{balance, whole, std::nullopt};
    return ItemProgress{balance, whole, percentOf(whole - balance, whole)};
}

std::map<numira::Currency, Money> monthlyTotals(const budgeting::Budget &budget,
                                                budgeting::BudgetItemTypes kind,
                                                const numira::Currency &preferred)
{
    std::map<numira::Currency, Money> totals;
    const auto total = [&]<typename Item>(std::type_identity<Item>) {
        if (budgeting::ItemTraits<Item>::type == kind)
            totals.emplace(preferred,
                           budget.items<Item>().total(preferred, EventFrequency::Monthly));
    };
    try {
        budgeting::forEachItemClass(total);
    } catch (const numira::Error &) {
        totals = totalsApart(budget, kind);
    } catch (const foundation::Error &) {
        totals = totalsApart(budget, kind);
    }
    for (auto &[currency, money] : totals)
        money = money.rounded();
    return totals;
}

QString monthlyTotalText(Requests &requests, budgeting::BudgetItemTypes kind)
{
    const Sums totals =
        monthlyTotals(requests.present().budget, kind, requests.preferredCurrency());
    return QObject::tr("Together a month: %1").arg(sumsText(totals, requests.displayAs()));
}

ConvertibleBudget convertibleBudget(budgeting::Budget budget, const numira::Currency &currency)
{
    ConvertibleBudget made{std::move(budget), {}};
    made.budget.forEach([&](const BudgetedMoney &item) {
        if (!convertedIfKnown(item.amount(), currency))
            made.leftOut.push_back(identify(item));
    });
    for (const budgeting::BudgetItemIdentifier &id : made.leftOut) {
        budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
            if (budgeting::ItemTraits<Item>::type == id.type)
                made.budget.items<Item>().remove(id.source);
        });
    }
    return made;
}

QStringList leftOutTexts(const ConvertibleBudget &convertible, const budgeting::Budget &budget,
                         const numira::Currency &currency)
{
    QStringList texts;
    for (const budgeting::BudgetItemIdentifier &id : convertible.leftOut) {
        const BudgetedMoney *item = budgeting::findBudgetItem(id, budget);
        texts += QObject::tr("The totals leave '%1' out: there is no exchange rate between %2 and "
                             "%3.")
                     .arg(id.source.name(), foundation::toQString(item->amount().code()),
                          foundation::toQString(currency));
    }
    return texts;
}

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/outlook/item_outlook.h"

#include "workbench/entry/money_text.h"
#include "workbench/requests/budget_view.h"
#include "workbench/requests/paying_account.h"

#include "budgeting/item_traits.h"
#include "foundation/error.h"
#include "foundation/presentation.h"

#include <QtCore/QObject>

namespace kiv::workbench {

using budgeting::BudgetedMoney;
using navigation::CurrencyDisplayOptions;
using storage::BudgetStorage;

namespace {

QString goalText(const ItemOutlook &goal, CurrencyDisplayOptions displayAs)
{
    const ItemProgress &progress = goal.progress;
    const QString name = goal.item.source.name();
    const QString part = amountText(progress.part, displayAs);
    if (goal.isEnded)
        return QObject::tr("The goal '%1' is reached: %2.").arg(name, part);
    const QString whole = amountText(progress.whole, displayAs);
    return progress.percent ? QObject::tr("The goal '%1' has %2 of %3, %4 %.")
                                  .arg(name, part, whole, QString::number(*progress.percent))
                            : QObject::tr("The goal '%1' has %2 of %3.").arg(name, part, whole);
}

QString debtText(const ItemOutlook &debt, CurrencyDisplayOptions displayAs)
{
    const QString name = debt.item.source.name();
    if (debt.isEnded)
        return QObject::tr("The debt '%1' is paid off.").arg(name);
    const QString part = amountText(debt.progress.part, displayAs);
    if (!debt.payoff)
        return QObject::tr("Of the debt '%1' are %2 left; as it is paid now, it has no end.")
            .arg(name, part);
    const Payoff &payoff = *debt.payoff;
    const QString end = foundation::presentationText(payoff.end());
    const auto payments = static_cast<int>(payoff.payments.size());
    if (payoff.interest)
        return QObject::tr("Of the debt '%1' are %2 left: paid off on %3, after %n payments, with "
                           "interest of about %4 a year.",
                           nullptr, payments)
            .arg(name, part, end, rateText(*payoff.interest));
    return QObject::tr("Of the debt '%1' are %2 left: paid off on %3, after %n payments, without "
                       "interest.",
                       nullptr, payments)
        .arg(name, part, end);
}

/// Nothing if it is not paid regularly or has no end.
std::optional<Payoff> endingPayoff(const BudgetStorage::Data &data, const budgeting::Debt &debt)
{
    try {
        Payoff payoff = payoffOf(data, debt, {});
        return payoff.payments.empty() ? std::nullopt : std::optional(std::move(payoff));
    } catch (const foundation::Error &) {
        return std::nullopt;
    }
}

} // namespace

std::optional<ItemOutlook> outlookOf(const BudgetStorage::Data &data, const BudgetedMoney &item,
                                     CurrencyDisplayOptions displayAs)
{
    const std::optional<ItemProgress> progress = progressOf(data, item);
    if (!progress)
        return std::nullopt;
    ItemOutlook outlook;
    outlook.item = identify(item);
    outlook.progress = *progress;
    outlook.recurs = item.period() != budgeting::EventFrequency::None;
    // What has a progress has an account.
    outlook.isOpen = !data.generalLedger.ledger(*accountOf(data, outlook.item)).isClosed();
    if (const auto *debt = dynamic_cast<const budgeting::Debt *>(&item)) {
        outlook.isEnded = !progress->part.isPositive();
        outlook.payoff = endingPayoff(data, *debt);
        outlook.sentence = debtText(outlook, displayAs);
    } else {
        outlook.isEnded = progress->isReached();
        outlook.sentence = goalText(outlook, displayAs);
    }
    return outlook;
}

std::vector<ItemOutlook> outlooksOf(const BudgetStorage::Data &data,
                                    CurrencyDisplayOptions displayAs)
{
    std::vector<ItemOutlook> all;
    const auto add = [&](const auto &items) {
        for (const auto &[source, item] : items) {
            if (const auto outlook = outlookOf(data, item, displayAs))
                all.push_back(*outlook);
        }
    };
    add(data.budget.goals);
    add(data.budget.debts);
    return all;
}

} // namespace kiv::workbench

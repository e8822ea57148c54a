// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/due_items.h"

#include "workbench/internal/faults.h"

#include "foundation/clock.h"
#include "foundation/dates.h"

namespace kiv::workbench {

using budgeting::BudgetedMoney;
using budgeting::BudgetItemAmountDue;
using budgeting::BudgetItemDueIdentifier;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using navigation::Navigator;

namespace {

QString namesOf(const std::vector<BudgetItemIdentifier> &items)
{
    QStringList names;
    for (const BudgetItemIdentifier &item : items)
        names += item.source.name();
    return names.join(QStringLiteral(", "));
}

PostedItem
posted(const std::vector<Answer<const BudgetItemDueIdentifier &,
                                const std::optional<accounting::TransactionNumber> &>> &answers)
{
    const auto &[id, number] = answers.at(0);
    return {id, number.value()};
}

} // namespace

std::vector<BudgetItemAmountDue>
dueItems(Requests &requests, std::optional<std::chrono::days> within, std::optional<QDate> today)
{
    auto answer = requests.ask(&Navigator::showProcessBudgetItems,
                               &Navigator::onPrepareShowProcessBudgetItems);
    if (!within && !today)
        return std::get<std::vector<BudgetItemAmountDue>>(std::move(answer));
    return budgeting::budgetItemsDue(within.value_or(std::get<std::chrono::days>(answer)),
                                     BudgetView(requests).budget(),
                                     today.value_or(foundation::today()));
}

BudgetItemAmountDue dueOf(const BudgetedMoney &item)
{
    return {{budgeting::toBudgetItemTypes(item), item.source(), item.nextOccurOn()}, item.amount()};
}

std::optional<QDate> dayAfterNext(const BudgetedMoney &item)
{
    if (item.period() == budgeting::EventFrequency::None)
        return std::nullopt;
    try {
        return budgeting::nextOccurrence(item.period(), item.nextOccurOn(), item.dayOfMonth());
    } catch (const foundation::Error &) {
        return std::nullopt; // past the year 9999
    }
}

QString whenText(QDate due, QDate today)
{
    const auto days = static_cast<int>(foundation::daysBetween(today, due));
    if (days < 0)
        return QObject::tr("%n days late", nullptr, -days);
    if (days > 1)
        return QObject::tr("in %n days", nullptr, days);
    return days == 0 ? QObject::tr("today") : QObject::tr("tomorrow");
}

void refuseShadowed(const budgeting::Budget &budget, const budgeting::BudgetItemDueIdentifier &id)
{
    budget.forEach([&id](const BudgetedMoney &item) {
        const budgeting::BudgetItemTypes kind = budgeting::toBudgetItemTypes(item);
        if (kind < id.type && item.source() == id.source)
            throw internal::shadowedItem(id.type, kind, id.source.name());
    });
}

PostedItem payDue(Requests &requests, const budgeting::Budget &budget,
                  const BudgetItemAmountDue &due, const accounting::AccountCode &account, QDate day)
{
    refuseShadowed(budget, due.id);
    return posted(
        requests.change(dueOutcome, &Navigator::onPostBudgetItemPosted, due, account, day));
}

bool comesToNothing(const BudgetItemAmountDue &due)
{
    return due.amount.rounded().isZero();
}

QString skippedAsNothing(const BudgetItemAmountDue &due)
{
    return QObject::tr("'%1' has an amount of zero and was skipped.").arg(due.id.source.name());
}

PostedItem payExtra(Requests &requests, const BudgetItemDueIdentifier &id,
                    const numira::Money &amount, const accounting::AccountCode &account, QDate day)
{
    return posted(requests.change(dueOutcome, &Navigator::onPostBudgetItemPostedUnexpected, id,
                                  amount, account, day));
}

void skipDue(Requests &requests, const budgeting::Budget &budget, const BudgetItemDueIdentifier &id)
{
    refuseShadowed(budget, id);
    requests.change(dueOutcome, &Navigator::onPostBudgetItemSkipped, id);
}

Deed paidDeed(const std::vector<BudgetItemIdentifier> &items)
{
    const QString names = namesOf(items);
    if (items.size() != 1) {
        const auto count = static_cast<int>(items.size());
        return {QObject::tr("Entered %n due items: %1.", nullptr, count).arg(names),
                QObject::tr("entering %n due items", nullptr, count),
                {}};
    }
    switch (items.front().type) {
    case BudgetItemTypes::Wage:
        return {
            QObject::tr("Received %1.").arg(names), QObject::tr("receiving “%1”").arg(names), {}};
    case BudgetItemTypes::Goal:
        return {
            QObject::tr("Saved for %1.").arg(names), QObject::tr("saving for “%1”").arg(names), {}};
    default:
        return {QObject::tr("Paid %1.").arg(names), QObject::tr("paying “%1”").arg(names), {}};
    }
}

Deed skippedDeed(const std::vector<BudgetItemIdentifier> &items)
{
    const QString names = namesOf(items);
    if (items.size() == 1)
        return {QObject::tr("Skipped %1.").arg(names), QObject::tr("skipping “%1”").arg(names), {}};
    const auto count = static_cast<int>(items.size());
    return {QObject::tr("Skipped %n due items: %1.", nullptr, count).arg(names),
            QObject::tr("skipping %n due items", nullptr, count),
            {}};
}

} // namespace kiv::workbench

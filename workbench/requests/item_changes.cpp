// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/item_changes.h"

#include "workbench/requests/other_day.h"

#include <stdexcept>

namespace kiv::workbench {

using banking::BankAccount;
using budgeting::Bill;
using budgeting::BudgetItem;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetSource;
using budgeting::Debt;
using budgeting::EventFrequency;
using budgeting::Goal;
using budgeting::ItemTraits;
using budgeting::Nontrack;
using budgeting::Wage;
using navigation::GuiElementIdentifier;
using navigation::Navigator;
using tagging::BudgetItemTags;

namespace {

const numira::Money &extraOf(const Debt &debt)
{
    return debt.borrowed();
}
const numira::Money &extraOf(const Goal &goal)
{
    return goal.final();
}

template <BudgetItem Item>
Item blank(const QString &name, const numira::Money &nothing, QDate day)
{
    if constexpr (budgeting::BankTiedItem<Item>)
        return Item(BudgetSource(name), nothing, EventFrequency::Monthly, day, nothing);
    else
        return Item(BudgetSource(name), nothing, EventFrequency::Monthly, day);
}

/// The item with the given values.
template <BudgetItem Item>
Item merged(const Item &present, const ItemValues &given)
{
    const numira::Money money =
        given.amount ? given.amount->in(present.amount().code()) : present.amount();
    const EventFrequency period = given.every.value_or(present.period());
    const QDate date = given.next.value_or(present.nextOccurOn());
    Item made = [&] {
        if constexpr (budgeting::BankTiedItem<Item>)
            return Item(present.source(), money, period, date,
                        given.extra ? given.extra->in(money.code()) : extraOf(present));
        else
            return Item(present.source(), money, period, date);
    }();
    // In a short month, an item keeps the day of the month that it was given.
    if (!given.next)
        made.setDayOfMonth(present.dayOfMonth());
    if (given.dayOfMonth)
        made.setDayOfMonth(*given.dayOfMonth);
    return made;
}

std::logic_error unknownKind()
{
    return std::logic_error("An item of an unknown kind cannot be changed.");
}

} // namespace

template <BudgetItem Item>
BudgetItemIdentifier addItem(Requests &requests, GuiElementIdentifier caller, const QString &name,
                             const ItemValues &given, QDate day,
                             const std::optional<QDate> &openedOn)
{
    std::optional<numira::Currency> currency;
    if (given.amount)
        currency = given.amount->currency;
    const numira::Money nothing(currency ? *currency : requests.preferredCurrency());
    const Item item = merged(blank<Item>(name, nothing, given.next.value_or(day)), given);
    BudgetItemIdentifier id{ItemTraits<Item>::type, item.source()};
    openNewOn(requests, openedOn, [&] {
        requests.change(itemOutcome, &Navigator::onAdded, caller, id.type, item, given.bankAccount,
                        BudgetItemTags::ItemTags(id, given.tags.value_or(tagging::Tags())));
    });
    return id;
}

template <BudgetItem Item>
void updateItem(Requests &requests, GuiElementIdentifier caller, const BudgetView &view,
                const Item &present, const ItemValues &given)
{
    const BudgetItemIdentifier id{ItemTraits<Item>::type, present.source()};
    const Item item = merged(present, given);
    const BudgetItemTags::ItemTags tags(id, given.tags ? *given.tags : view.tags(id));
    const auto update = [&](const std::optional<BankAccount> &tied) {
        requests.change(itemOutcome, &Navigator::onUpdated, caller, id.type, item, tied, tags);
    };
    const std::optional<BankAccount> former = view.bankAccount(id);
    // An update without the former bank account would remove the link.
    const std::optional<BankAccount> wanted =
        given.bankAccount || given.isUntied ? given.bankAccount : former;
    // A debt can have accounts at two banks; with another bank it is moved there.
    if (std::same_as<Item, Debt> && former && wanted && wanted->bank != former->bank)
        update(std::nullopt);
    update(wanted);
}

template BudgetItemIdentifier addItem<Bill>(Requests &, GuiElementIdentifier, const QString &,
                                            const ItemValues &, QDate,
                                            const std::optional<QDate> &);
template BudgetItemIdentifier addItem<Debt>(Requests &, GuiElementIdentifier, const QString &,
                                            const ItemValues &, QDate,
                                            const std::optional<QDate> &);
template BudgetItemIdentifier addItem<Goal>(Requests &, GuiElementIdentifier, const QString &,
                                            const ItemValues &, QDate,
                                            const std::optional<QDate> &);
template BudgetItemIdentifier addItem<Nontrack>(Requests &, GuiElementIdentifier, const QString &,
                                                const ItemValues &, QDate,
                                                const std::optional<QDate> &);
template BudgetItemIdentifier addItem<Wage>(Requests &, GuiElementIdentifier, const QString &,
                                            const ItemValues &, QDate,
                                            const std::optional<QDate> &);
template void updateItem(Requests &, GuiElementIdentifier, const BudgetView &, const Bill &,
                         const ItemValues &);
template void updateItem(Requests &, GuiElementIdentifier, const BudgetView &, const Debt &,
                         const ItemValues &);
template void updateItem(Requests &, GuiElementIdentifier, const BudgetView &, const Goal &,
                         const ItemValues &);
template void updateItem(Requests &, GuiElementIdentifier, const BudgetView &, const Nontrack &,
                         const ItemValues &);
template void updateItem(Requests &, GuiElementIdentifier, const BudgetView &, const Wage &,
                         const ItemValues &);

void addItem(Requests &requests, GuiElementIdentifier caller, const BudgetItemIdentifier &id,
             const ItemValues &given, QDate day, const std::optional<QDate> &openedOn)
{
    budgeting::visitItemClass(id.type, unknownKind, [&]<typename Item>(std::type_identity<Item>) {
        addItem<Item>(requests, caller, id.source.name(), given, day, openedOn);
    });
}

void updateItem(Requests &requests, GuiElementIdentifier caller, const BudgetView &view,
                const BudgetItemIdentifier &id, const ItemValues &given)
{
    budgeting::visitItemClass(id.type, unknownKind, [&]<typename Item>(std::type_identity<Item>) {
        const auto &present = dynamic_cast<const Item &>(view.find(id.source.name(), id.type));
        updateItem(requests, caller, view, present, given);
    });
}

void endItem(Requests &requests, GuiElementIdentifier caller, const BudgetView &view,
             const BudgetItemIdentifier &id)
{
    ItemValues values;
    values.every = EventFrequency::None;
    updateItem(requests, caller, view, id, values);
}

void renameItem(Requests &requests, GuiElementIdentifier caller, const BudgetItemIdentifier &id,
                const BudgetSource &name)
{
    requests.change(itemOutcome, &Navigator::onRenamed, caller, id.type, id.source, name);
}

void removeItem(Requests &requests, GuiElementIdentifier caller, const BudgetItemIdentifier &id)
{
    requests.change(itemOutcome, &Navigator::onRemoved, caller, id.type, id.source);
}

} // namespace kiv::workbench

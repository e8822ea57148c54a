// SPDX-License-Identifier: GPL-3.0-or-later
// Bills, debts, goals, non-tracked items and wages.
#include "navigation/internal/faults.h"
#include "navigation/internal/navigator_change.h"
#include "navigation/internal/undo.h"

namespace kiv::navigation {

using budgeting::BankTiedItem;
using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using budgeting::BudgetSource;
using budgeting::ItemTraits;
using internal::tell;
namespace faults = internal::faults;

namespace {

/// Refuses the tags of another item: views keep tags and items apart and may mix up two rows.
void requireTagsOf(const BudgetItemTypes &type, const budgeting::BudgetedMoney &item,
                   const tagging::BudgetItemTags::ItemTags &itemTags)
{
    if (itemTags.type() != type)
        throw faults::tagsOfOtherType();
    if (itemTags.source() != item.source())
        throw faults::tagsOfOtherSource();
}

/// The item as one of its class. A bank account for a kind of item that has none is a mistake of
/// the view's code, not of the user.
template <budgeting::BudgetItem Item>
const Item &ownItem(const budgeting::BudgetedMoney &item,
                    const std::optional<banking::BankAccount> &ba, const char *verb)
{
    if (!BankTiedItem<Item> && ba)
        throw faults::takesNoBankAccount(ItemTraits<Item>::word, verb);
    return dynamic_cast<const Item &>(item);
}

/// What all five views show besides the items.
struct ViewBasics {
    numira::Currency preferred;
    tagging::Tags possibleTags;
    tagging::BudgetItemTags associatedTags;
    std::set<numira::Currency> usableCurrencies;
    CurrencyDisplayOptions displayAs;

    ViewBasics(const UserPreferences &preferences, const tagging::BudgetTagManager &tags,
               BudgetItemTypes type)
        : preferred(preferences.preferredCurrency()),
          possibleTags(tags.possible()),
          associatedTags(tags.associated(type)),
          usableCurrencies(preferences.usableCurrencies()),
          displayAs(preferences.currenciesDisplayAs())
    {
    }
};

/// An item and its tags change together or not at all: the tags first, because
/// they can be brought back without fail.
template <typename ChangeTags, typename ChangeItem>
void changeTagged(tagging::BudgetTagManager &tags, tagging::BudgetTagManager::Memory former,
                  ChangeTags &&changeTags, ChangeItem &&changeItem)
{
    const auto putBack = [&tags](tagging::BudgetTagManager::Memory &&before) noexcept {
        tags.restore(std::move(before));
    };
    internal::Restore tagsBefore(std::move(former), putBack);
    changeTags();
    changeItem();
    tagsBefore.dismiss();
}

/// Stores an item that was added or updated, with its tags. `changeItem` gets the item's class.
template <typename UnknownType, typename ChangeItem>
void storeTagged(tagging::BudgetTagManager &tags, const BudgetItemTypes &type,
                 const budgeting::BudgetedMoney &item,
                 const tagging::BudgetItemTags::ItemTags &itemTags, UnknownType &&unknownType,
                 ChangeItem &&changeItem)
{
    requireTagsOf(type, item, itemTags);
    visitItemClass(type, unknownType, [&](auto itemClass) {
        changeTagged(
            tags, tags.remember({itemTags.identifier()}, itemTags.tags()),
            [&] { tags.changeAssociation(itemTags); }, [&] { changeItem(itemClass); });
    });
}

} // namespace

// ---- showing -----------------------------------------------------------------

void Navigator::onPrepareShowBills()
{
    const ViewBasics view(m_preferences, m_tagManager, BudgetItemTypes::Bill);
    emit showBills(internal::copied(m_budgetBankLedgers->budget().bills), view.preferred,
                   view.possibleTags, view.associatedTags, view.usableCurrencies, view.displayAs);
}

void Navigator::onPrepareShowDebts()
{
    const ViewBasics view(m_preferences, m_tagManager, BudgetItemTypes::Debt);
    emit showDebts(internal::copied(m_budgetBankLedgers->budget().debts),
                   m_budgetBankLedgers->budgetBankAccounts(BudgetItemTypes::Debt),
                   m_budgetBankLedgers->generalLedger().accountCodes(),
                   m_budgetBankLedgers->bankNames(), view.preferred, view.possibleTags,
                   view.associatedTags, view.usableCurrencies, view.displayAs);
}

void Navigator::onPrepareShowGoals()
{
    const ViewBasics view(m_preferences, m_tagManager, BudgetItemTypes::Goal);
    const numira::Money wagesTotal = m_budgetBankLedgers->budget().wages.total(
        view.preferred, budgeting::EventFrequency::Monthly);
    emit showGoals(internal::copied(m_budgetBankLedgers->budget().goals),
                   m_budgetBankLedgers->budgetBankAccounts(BudgetItemTypes::Goal),
                   m_budgetBankLedgers->generalLedger().accountCodes(),
                   m_budgetBankLedgers->bankNames(), view.preferred, view.possibleTags,
                   view.associatedTags, view.usableCurrencies, view.displayAs, wagesTotal);
}

void Navigator::onPrepareShowNontracks()
{
    const ViewBasics view(m_preferences, m_tagManager, BudgetItemTypes::Nontrack);
    emit showNontracks(internal::copied(m_budgetBankLedgers->budget().nontracks), view.preferred,
                       view.possibleTags, view.associatedTags, view.usableCurrencies,
                       view.displayAs);
}

void Navigator::onPrepareShowWages()
{
    const ViewBasics view(m_preferences, m_tagManager, BudgetItemTypes::Wage);
    emit showWages(internal::copied(m_budgetBankLedgers->budget().wages), view.preferred,
                   view.possibleTags, view.associatedTags, view.usableCurrencies, view.displayAs);
}

// ---- changing ----------------------------------------------------------------

bool Navigator::onAdded(const GuiElementIdentifier &id, const BudgetItemTypes &type,
                        const budgeting::BudgetedMoney &item,
                        const std::optional<banking::BankAccount> &ba,
                        const tagging::BudgetItemTags::ItemTags &itemTags)
{
    const auto add = [&]<typename Item>(std::type_identity<Item>) {
        const Item &own = ownItem<Item>(item, ba, "add");
        accounting::AccountCode code;
        if constexpr (BankTiedItem<Item>)
            code = m_budgetBankLedgers->add<Item>(own, ba);
        else
            code = m_budgetBankLedgers->add<Item>(own);
        internal::logDone("Budget item", ItemTraits<Item>::word, "account code:", code);
    };
    return change(
        "Failed to add budget item.",
        [&] { storeTagged(m_tagManager, type, item, itemTags, faults::unknownTypeToAdd, add); },
        [&] { tell(this, &Navigator::saveSucceeded, id, item.source()); },
        [&](const QString &why) {
            tell(this, &Navigator::saveFailed, id, std::nullopt, why, item.source());
        });
}

void Navigator::onUpdated(const GuiElementIdentifier &id, const BudgetItemTypes &type,
                          const budgeting::BudgetedMoney &item,
                          const std::optional<banking::BankAccount> &ba,
                          const tagging::BudgetItemTags::ItemTags &itemTags)
{
    const auto update = [&]<typename Item>(std::type_identity<Item>) {
        const Item &own = ownItem<Item>(item, ba, "update");
        if constexpr (BankTiedItem<Item>)
            m_budgetBankLedgers->update<Item>(own, ba);
        else
            m_budgetBankLedgers->update<Item>(own);
    };
    change(
        "Failed to update budget item.",
        [&] {
            storeTagged(m_tagManager, type, item, itemTags, faults::unknownTypeToUpdate, update);
        },
        [&] { tell(this, &Navigator::saveSucceeded, id, item.source()); },
        [&](const QString &why) {
            tell(this, &Navigator::saveFailed, id, item.source(), why, item.source());
        });
}

void Navigator::onRenamed(const GuiElementIdentifier &id, const BudgetItemTypes &type,
                          const BudgetSource &original, const BudgetSource &changed)
{
    const auto rename = [&]<typename Item>(std::type_identity<Item>) {
        m_budgetBankLedgers->rename<Item>(original, changed);
    };
    change(
        "Failed to rename budget item.",
        [&] {
            changeTagged(
                m_tagManager, m_tagManager.remember({{type, original}, {type, changed}}),
                [&] {
                    m_tagManager.renameAssociation({type, original}, changed);
                },
                [&] { visitItemClass(type, faults::unknownTypeToRename, rename); });
        },
        // The old name, on purpose: by it the view finds the row that it asked
        // to rename, and it knows the new one already.
        [&] { tell(this, &Navigator::saveSucceeded, id, original); },
        [&](const QString &why) {
            tell(this, &Navigator::saveFailed, id, original, why, changed);
        });
}

void Navigator::onRemoved(const GuiElementIdentifier &id, const BudgetItemTypes &type,
                          const BudgetSource &source)
{
    const BudgetItemIdentifier item{type, source};
    change(
        "Failed to remove budget item.",
        [&] {
            changeTagged(
                m_tagManager, m_tagManager.remember({item}),
                [&] { m_tagManager.removeAssociation(item); },
                [&] { m_budgetBankLedgers->remove(item); });
        },
        [&] { tell(this, &Navigator::saveSucceeded, id, source); },
        [&](const QString &why) { tell(this, &Navigator::saveFailed, id, source, why, source); });
}

// ---- looking up --------------------------------------------------------------

void Navigator::onLookUpBudgetItemSources(const budgeting::BudgetItemDueIdentifier &requestedBy)
{
    std::set<BudgetSource> sources;
    // A view that has chosen no kind yet is answered with nothing to choose;
    // only a change needs a kind.
    if (requestedBy.type != BudgetItemTypes::None) {
        visitItemClass(requestedBy.type, faults::unknownTypeToLookUp,
                       [&]<typename Item>(std::type_identity<Item>) {
                           sources = m_budgetBankLedgers->budget().items<Item>().sources();
                       });
    }
    tell(this, &Navigator::lookedUpBudgetItemSources, requestedBy, sources);
}

} // namespace kiv::navigation

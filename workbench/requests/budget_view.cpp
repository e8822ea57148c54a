// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/budget_view.h"

#include "workbench/entry/kind_words.h"
#include "workbench/entry/similar.h"
#include "workbench/internal/faults.h"
#include "workbench/requests/paying_account.h"

namespace kiv::workbench {

using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using budgeting::BudgetSource;

namespace {

/// The bank account that the item is linked to: a debt's own account, and of a goal the one
/// under which its own lies.
std::optional<banking::BankAccount> linkOf(const storage::BudgetStorage::Data &data,
                                           const BudgetItemIdentifier &id)
{
    const auto keptBy =
        [&data](accounting::AccountNumber number) -> std::optional<banking::BankAccount> {
        const auto bank = data.banks.find(number);
        if (!bank)
            return std::nullopt;
        return banking::BankAccount{*bank, {number, data.banks.bank(*bank).accounts().at(number)}};
    };
    const auto number = accountOf(data, id);
    if (!number || !data.generalLedger.hasLedger(*number))
        return std::nullopt;
    const auto own = keptBy(*number);
    const auto parent = data.generalLedger.ledger(*number).code().parent();
    const auto above = parent ? keptBy(*parent) : std::nullopt;
    return id.type == BudgetItemTypes::Goal ? (above ? above : own) : (own ? own : above);
}

} // namespace

BudgetView::BudgetView(const storage::BudgetStorage::Data &data) : m_budget(data.budget)
{
    budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        constexpr BudgetItemTypes kind = budgeting::ItemTraits<Item>::type;
        m_tags.emplace(kind, data.itemTags.ofType(kind));
        if constexpr (budgeting::BankTiedItem<Item>) {
            for (const auto &[source, item] : data.budget.items<Item>()) {
                if (const auto link = linkOf(data, {kind, source}))
                    m_bankAccounts.insert({kind, source, *link});
            }
        }
    });
}

BudgetView::BudgetView(Requests &requests) : BudgetView(requests.present()) {}

tagging::Tags BudgetView::tags(const BudgetItemIdentifier &id) const
{
    return m_tags.at(id.type).tags(id);
}

std::optional<banking::BankAccount> BudgetView::bankAccount(const BudgetItemIdentifier &id) const
{
    const auto found = std::ranges::find_if(m_bankAccounts, [&id](const auto &record) {
        return record.type == id.type && record.source == id.source;
    });
    return found == m_bankAccounts.end() ? std::nullopt : std::optional(found->bankAccount);
}

const budgeting::BudgetedMoney &BudgetView::find(const QString &name,
                                                 std::optional<BudgetItemTypes> kind) const
{
    std::vector<const budgeting::BudgetedMoney *> found;
    QStringList kinds;
    QStringList known;
    m_budget.forEach([&](const budgeting::BudgetedMoney &item) {
        const BudgetItemIdentifier id = identify(item);
        if (kind && id.type != *kind)
            return;
        known += id.source.name();
        if (id.source.name() != name)
            return;
        found.push_back(&item);
        kinds += kindWord(id.type);
    });
    if (found.size() > 1)
        throw internal::ambiguousItem(name, kinds);
    if (found.empty())
        throw kind ? internal::noSuchItem(*kind, name, similarTo(name, known))
                   : internal::noSuchItem(name, similarTo(name, known));
    return *found.front();
}

BudgetItemIdentifier BudgetView::findTyped(const QString &text) const
{
    const auto [kind, name] = withKind(text);
    QStringList ways;
    m_budget.forEach([&](const budgeting::BudgetedMoney &item) {
        if (item.source().name() == name)
            ways += kindWord(budgeting::toBudgetItemTypes(item)) + u':' + name;
    });
    if (!kind && ways.size() > 1)
        throw internal::ambiguousTyped(name, ways);
    return identify(find(name, kind));
}

BudgetItemIdentifier identify(const budgeting::BudgetedMoney &item)
{
    return {budgeting::toBudgetItemTypes(item), item.source()};
}

} // namespace kiv::workbench

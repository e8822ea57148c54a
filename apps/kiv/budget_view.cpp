// SPDX-License-Identifier: GPL-3.0-or-later
#include "budget_view.h"

#include "output/json.h"
#include "parsing/similar.h"
#include "parsing/values.h"

namespace kiv::app {

using budgeting::BudgetItemIdentifier;
using budgeting::BudgetItemTypes;
using budgeting::BudgetSource;

BudgetView::BudgetView(Session &session)
{
    budgeting::forEachItemClass([&]<typename Item>(std::type_identity<Item>) {
        const auto answer = session.ask(ItemView<Item>::signal, ItemView<Item>::slot);
        auto &items = m_budget.items<Item>();
        items = std::get<std::remove_cvref_t<decltype(items)>>(answer);
        m_tags.emplace(budgeting::ItemTraits<Item>::type,
                       std::get<tagging::BudgetItemTags>(answer));
        if constexpr (budgeting::BankTiedItem<Item>)
            m_bankAccounts.merge(
                std::set(std::get<std::set<navigation::BudgetBankAccount>>(answer)));
    });
}

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
        throw ambiguousItem(name, kinds);
    if (found.empty())
        throw kind ? noSuchItem(kindWord(*kind), name, similarTo(name, known))
                   : noSuchItem(name, similarTo(name, known));
    return *found.front();
}

QJsonObject BudgetView::json(const budgeting::BudgetedMoney &item) const
{
    QJsonObject json = toJson(item);
    QJsonArray tagNames;
    const BudgetItemIdentifier id = identify(item);
    for (const tagging::Tag &tag : tags(id))
        tagNames.append(tag.name());
    json.insert(QStringLiteral("tags"), tagNames);
    if (const auto account = bankAccount(id)) {
        json.insert(QStringLiteral("bankAccount"), toJson(account->account.number));
        json.insert(QStringLiteral("bank"), account->bank.institution());
    }
    return json;
}

BudgetItemIdentifier identify(const budgeting::BudgetedMoney &item)
{
    return {budgeting::toBudgetItemTypes(item), item.source()};
}

} // namespace kiv::app

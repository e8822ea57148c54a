// SPDX-License-Identifier: GPL-3.0-or-later
#include "actions/palette_sources.h"

#include "actions/part_keys.h"
#include "models/account_rows.h"
#include "pages/desk.h"

#include "workbench/entry/kind_words.h"
#include "workbench/entry/money_text.h"
#include "workbench/requests/account_groups.h"
#include "workbench/requests/budget_view.h"

namespace kiv::desktop {
namespace {

PaletteEntry entryOf(QAction *action)
{
    return {action->iconText(), action->shortcut().toString(QKeySequence::NativeText),
            ActionCollection::reason(action), [action] { action->trigger(); }};
}

} // namespace

CommandPalette::Source actionSource(const ActionCollection &actions)
{
    return [&actions] {
        std::vector<PaletteEntry> entries;
        std::ranges::transform(actions.all(), std::back_inserter(entries), entryOf);
        return entries;
    };
}

CommandPalette::Source keySource(const ActionCollection &actions)
{
    return [&actions] {
        std::vector<PaletteEntry> entries;
        std::vector<PaletteEntry> without;
        for (QAction *action : actions.all())
            (action->shortcut().isEmpty() ? without : entries).push_back(entryOf(action));
        std::ranges::move(partKeys(), std::back_inserter(entries));
        std::ranges::move(without, std::back_inserter(entries));
        return entries;
    };
}

CommandPalette::Source accountSource(Desk &desk)
{
    return [&desk] {
        std::vector<PaletteEntry> entries;
        if (desk.document().file().isEmpty())
            return entries;
        const auto displayAs = desk.requests().displayAs();
        for (const workbench::GroupedAccount &one :
             workbench::groupedAccounts(desk.document().present())) {
            const QString key = keyOf(one.account.code().number());
            entries.push_back({one.name,
                               workbench::amountText(one.account.balance(), displayAs),
                               {},
                               [&desk, key] {
                                   desk.goTo({QStringLiteral("register"), key});
                               }});
        }
        return entries;
    };
}

CommandPalette::Source itemSource(Desk &desk)
{
    return [&desk] {
        std::vector<PaletteEntry> entries;
        if (desk.document().file().isEmpty())
            return entries;
        const budgeting::Budget budget = desk.document().present().budget;
        budget.forEach([&](const budgeting::BudgetedMoney &item) {
            const budgeting::BudgetItemIdentifier id = workbench::identify(item);
            const QString place = workbench::kindWord(id.type) + u'/' + id.source.name();
            entries.push_back({id.source.name(), workbench::kindText(id.type), {}, [&desk, place] {
                                   desk.goTo({QStringLiteral("items"), place});
                               }});
        });
        return entries;
    };
}

} // namespace kiv::desktop

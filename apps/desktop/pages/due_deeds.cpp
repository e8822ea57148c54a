// SPDX-License-Identifier: GPL-3.0-or-later
#include "pages/due_deeds.h"

#include "workbench/requests/due_items.h"

namespace kiv::desktop {

using accounting::AccountCode;
using workbench::DueLine;

namespace {

std::vector<budgeting::BudgetItemIdentifier> itemsOf(const std::vector<DueLine> &lines)
{
    std::vector<budgeting::BudgetItemIdentifier> items;
    for (const DueLine &line : lines)
        items.push_back(line.due.id.item());
    return items;
}

/// With the place where it happens.
workbench::Deed placed(workbench::Deed deed, const std::vector<DueLine> &lines)
{
    deed.place = Place{QStringLiteral("due"),
                       lines.size() == 1 ? keyOf(lines.front().due.id.item()) : QString()}
                     .text();
    return deed;
}

} // namespace

AccountCode DueDeeds::payerOf(const DueLine &line) const
{
    if (!line.account)
        throw workbench::Refusal(
            QObject::tr("No account is chosen for “%1”.").arg(line.due.id.source.name()));
    return {*line.account, std::nullopt};
}

bool DueDeeds::pay(const Asked &asked, const std::vector<DueLine> &lines, QDate day)
{
    // One that comes to nothing must not stop the others.
    QStringList skipped;
    std::vector<DueLine> paid;
    for (const DueLine &line : lines) {
        if (lines.size() > 1 && workbench::comesToNothing(line.due))
            skipped += workbench::skippedAsNothing(line.due);
        else
            paid.push_back(line);
    }
    const workbench::Deed deed = placed(paid.empty() ? workbench::skippedDeed(itemsOf(lines))
                                                     : workbench::paidDeed(itemsOf(paid)),
                                        paid);
    const auto work = [&] {
        const budgeting::Budget budget = m_desk.document().present().budget;
        for (const DueLine &line : lines) {
            if (lines.size() > 1 && workbench::comesToNothing(line.due))
                workbench::skipDue(m_desk.requests(), budget, line.due.id);
            else
                workbench::payDue(m_desk.requests(), budget, line.due, payerOf(line), day);
        }
    };
    return m_desk.enter(asked.message, asked.by, deed, work, skipped);
}

bool DueDeeds::payExtra(const Asked &asked, const DueLine &line, QDate day)
{
    const workbench::Deed deed = placed(workbench::paidDeed({line.due.id.item()}), {line});
    return m_desk.enter(asked.message, asked.by, deed, [&] {
        workbench::payExtra(m_desk.requests(), line.due.id, line.due.amount, payerOf(line), day);
    });
}

bool DueDeeds::skip(const Asked &asked, const std::vector<DueLine> &lines)
{
    const workbench::Deed deed = placed(workbench::skippedDeed(itemsOf(lines)), lines);
    return m_desk.perform(asked.message, asked.by, deed, [&] {
        const budgeting::Budget budget = m_desk.document().present().budget;
        for (const DueLine &line : lines)
            workbench::skipDue(m_desk.requests(), budget, line.due.id);
    });
}

} // namespace kiv::desktop

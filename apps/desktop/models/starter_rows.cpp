// SPDX-License-Identifier: GPL-3.0-or-later
#include "models/starter_rows.h"

#include "workbench/entry/kind_words.h"

#include "foundation/clock.h"

#include <QtCore/QObject>

namespace kiv::desktop {

using navigation::BudgetWizardTemplates;
using workbench::StarterChoice;

namespace {

Cell amountIn(const std::optional<workbench::Amount> &amount, const numira::Currency &currency,
              navigation::CurrencyDisplayOptions displayAs)
{
    return amount ? amountCell(amount->in(currency), displayAs)
                  : Cell{QStringLiteral("–"), QObject::tr("none"), true};
}

} // namespace

std::vector<std::pair<BudgetWizardTemplates, QString>> households()
{
    using enum BudgetWizardTemplates;
    return {{None, QObject::tr("I add my own items later")},
            {Teenager, QObject::tr("A teenager")},
            {AdultSingle, QObject::tr("One adult")},
            {AdultMarriedSingleIncome, QObject::tr("Two adults, one income")},
            {AdultMarriedDoubleIncome, QObject::tr("Two adults, two incomes")}};
}

std::vector<StarterLine> starterLines(BudgetWizardTemplates household,
                                      const std::vector<StarterLine> &before)
{
    std::vector<StarterLine> lines;
    for (StarterChoice &choice : workbench::starterChoices(household)) {
        const auto same = std::ranges::find(
            before, keyOf(choice), [](const StarterLine &line) { return keyOf(line.choice); });
        if (same != before.end()) {
            lines.push_back(*same);
            continue;
        }
        choice.day = workbench::comingDay(choice, foundation::today()).value_or(choice.day);
        lines.push_back({std::move(choice), false});
    }
    return lines;
}

QString keyOf(const StarterChoice &choice)
{
    return workbench::kindWord(choice.kind) + u':' + choice.name;
}

QStringList starterColumns()
{
    return {QObject::tr("Item"),   QObject::tr("Wanted"), QObject::tr("Kind"),
            QObject::tr("Amount"), QObject::tr("Every"),  QObject::tr("Next"),
            QObject::tr("Target")};
}

std::vector<Row> starterRows(const std::vector<StarterLine> &lines,
                             const numira::Currency &currency,
                             navigation::CurrencyDisplayOptions displayAs)
{
    std::vector<Row> rows;
    for (const auto &[choice, isWanted] : lines) {
        const bool isGoal = choice.kind == budgeting::BudgetItemTypes::Goal;
        Cell wanted{isWanted ? QObject::tr("✓ yes") : QObject::tr("no"),
                    isWanted ? QObject::tr("wanted") : QObject::tr("not wanted")};
        if (isWanted && !choice.amount)
            wanted = {QObject::tr("no amount yet"), {}, false, Colour::Warning};
        rows.push_back({keyOf(choice),
                        {{choice.name},
                         wanted,
                         {workbench::kindText(choice.kind)},
                         amountIn(choice.amount, currency, displayAs),
                         {budgeting::presentationText(choice.every)},
                         dayCell(choice.day),
                         isGoal ? amountIn(choice.target, currency, displayAs)
                                : Cell{QStringLiteral("–"), QObject::tr("none"), true}}});
    }
    return rows;
}

} // namespace kiv::desktop

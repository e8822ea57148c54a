// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/budget_item_generator.h"

#include "navigation/internal/budget_templates.h"
#include "navigation/internal/faults.h"

#include "budgeting/budget_items.h"
#include "foundation/clock.h"

#include <QtCore/QObject>

#include <array>

namespace kiv::navigation::internal {

using budgeting::BudgetedMoney;
using budgeting::BudgetItemTypes;
using budgeting::BudgetSource;

BudgetItemGenerator::BudgetItemGenerator(const numira::Currency &currency) : m_currency(currency) {}

BudgetItemGenerator::~BudgetItemGenerator() = default;

namespace {

using Items = std::vector<GeneratedBudgetItem>;

std::unique_ptr<BudgetedMoney> makeItem(const ItemTemplate &form, const numira::Currency &currency)
{
    const BudgetSource source(QObject::tr(form.name));
    const numira::Money zero(currency);
    const QDate date = form.dayOfMonth(foundation::today());
    switch (form.type) {
    case BudgetItemTypes::Bill:
        return std::make_unique<budgeting::Bill>(source, zero, form.period, date);
    case BudgetItemTypes::Goal:
        return std::make_unique<budgeting::Goal>(source, zero, form.period, date, zero);
    case BudgetItemTypes::Nontrack:
        return std::make_unique<budgeting::Nontrack>(source, zero, form.period, date);
    case BudgetItemTypes::Wage:
        return std::make_unique<budgeting::Wage>(source, zero, form.period, date);
    case BudgetItemTypes::None:
    case BudgetItemTypes::Debt:
        break;
    }
    throw faults::unknownStarterItem();
}

void append(Items &items, std::span<const ItemTemplate> forms, const numira::Currency &currency)
{
    for (const auto &form : forms)
        items.push_back({makeItem(form, currency), form.type == BudgetItemTypes::Goal});
}

void rename(const Items &items, std::span<const ItemRename> renames)
{
    for (const auto &[item, isTied] : items) {
        const auto found =
            std::find_if(renames.begin(), renames.end(), [&](const ItemRename &candidate) {
                return QObject::tr(candidate.from) == item->source().name();
            });
        if (found != renames.end())
            item->rename(BudgetSource(QObject::tr(found->to)));
    }
}

/// A part of a starter budget: its items, and new names for some of the earlier ones.
struct Step {
    std::span<const ItemTemplate> (*items)();
    std::span<const ItemRename> (*renames)() = nullptr;
};

constexpr std::array steps{
    Step{teenagerItems},
    Step{adultSingleItems},
    Step{secondAdultItems, renamesWhenMarried},
    Step{secondIncomeItems, renamesWithSecondIncome},
};

std::span<const Step> stepsOf(BudgetWizardTemplates household)
{
    const std::span<const Step> all(steps);
    switch (household) {
    case BudgetWizardTemplates::None:
        return {};
    case BudgetWizardTemplates::Teenager:
        return all.first(1);
    case BudgetWizardTemplates::AdultSingle:
        return all.subspan(1, 1);
    case BudgetWizardTemplates::AdultMarriedSingleIncome:
        return all.subspan(1, 2);
    case BudgetWizardTemplates::AdultMarriedDoubleIncome:
        return all.subspan(1, 3);
    case BudgetWizardTemplates::Child:
        break;
    }
    throw faults::noStarterBudget();
}

class HouseholdItemGenerator final : public BudgetItemGenerator {
public:
    HouseholdItemGenerator(std::span<const Step> parts, const numira::Currency &currency)
        : BudgetItemGenerator(currency), m_steps(parts)
    {
    }
    [[nodiscard]] Items generate() const override
    {
        Items items;
        for (const Step &step : m_steps) {
            if (step.renames != nullptr)
                rename(items, step.renames());
            append(items, step.items(), currency());
        }
        return items;
    }

private:
    std::span<const Step> m_steps;
};

} // namespace

std::unique_ptr<BudgetItemGenerator> makeBudgetItemGenerator(BudgetWizardTemplates household,
                                                             const numira::Currency &currency)
{
    return std::make_unique<HouseholdItemGenerator>(stepsOf(household), currency);
}

} // namespace kiv::navigation::internal

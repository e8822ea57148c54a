// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/budget_item_generator.h"

#include "navigation/internal/budget_templates.h"
#include "navigation/internal/configuration_faults.h"

#include "budgeting/budget_items.h"
#include "foundation/clock.h"

#include <QtCore/QObject>

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

class EmptyBudgetItemGenerator final : public BudgetItemGenerator {
public:
    using BudgetItemGenerator::BudgetItemGenerator;
    [[nodiscard]] Items generate() const override { return {}; }
};

class TeenBudgetItemGenerator final : public BudgetItemGenerator {
public:
    using BudgetItemGenerator::BudgetItemGenerator;
    [[nodiscard]] Items generate() const override
    {
        Items items;
        append(items, teenagerItems(), currency());
        return items;
    }
};

class AdultSingleBudgetItemGenerator : public BudgetItemGenerator {
public:
    using BudgetItemGenerator::BudgetItemGenerator;
    [[nodiscard]] Items generate() const override
    {
        Items items;
        append(items, adultSingleItems(), currency());
        return items;
    }
};

class AdultMarriedSingleIncomeBudgetItemGenerator : public AdultSingleBudgetItemGenerator {
public:
    using AdultSingleBudgetItemGenerator::AdultSingleBudgetItemGenerator;
    [[nodiscard]] Items generate() const override
    {
        Items items = AdultSingleBudgetItemGenerator::generate();
        rename(items, renamesWhenMarried());
        append(items, secondAdultItems(), currency());
        return items;
    }
};

class AdultMarriedDoubleIncomeBudgetItemGenerator final
    : public AdultMarriedSingleIncomeBudgetItemGenerator {
public:
    using AdultMarriedSingleIncomeBudgetItemGenerator::AdultMarriedSingleIncomeBudgetItemGenerator;
    [[nodiscard]] Items generate() const override
    {
        Items items = AdultMarriedSingleIncomeBudgetItemGenerator::generate();
        rename(items, renamesWithSecondIncome());
        append(items, secondIncomeItems(), currency());
        return items;
    }
};

} // namespace

std::unique_ptr<BudgetItemGenerator> makeBudgetItemGenerator(BudgetWizardTemplates household,
                                                             const numira::Currency &currency)
{
    switch (household) {
    case BudgetWizardTemplates::None:
        return std::make_unique<EmptyBudgetItemGenerator>(currency);
    case BudgetWizardTemplates::Teenager:
        return std::make_unique<TeenBudgetItemGenerator>(currency);
    case BudgetWizardTemplates::AdultSingle:
        return std::make_unique<AdultSingleBudgetItemGenerator>(currency);
    case BudgetWizardTemplates::AdultMarriedSingleIncome:
        return std::make_unique<AdultMarriedSingleIncomeBudgetItemGenerator>(currency);
    case BudgetWizardTemplates::AdultMarriedDoubleIncome:
        return std::make_unique<AdultMarriedDoubleIncomeBudgetItemGenerator>(currency);
    case BudgetWizardTemplates::Child:
        break;
    }
    throw faults::noStarterBudget();
}

} // namespace kiv::navigation::internal

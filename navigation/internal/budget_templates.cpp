// SPDX-License-Identifier: GPL-3.0-or-later
#include "navigation/internal/budget_templates.h"

#include "foundation/dates.h"

#include <QtCore/QObject>

namespace kiv::navigation::internal {

namespace {

using Type = budgeting::BudgetItemTypes;
using Period = budgeting::EventFrequency;
using foundation::firstOfMonth;
using foundation::halfOfMonth;
using foundation::lastOfMonth;

// A bill and a goal may have one name, as "Mobile carrier" does here: items are
// told apart by kind and name.
constexpr ItemTemplate teenager[] = {
    {Type::Wage, QT_TRANSLATE_NOOP("QObject", "Allowance"), Period::Weekly, firstOfMonth},
    {Type::Wage, QT_TRANSLATE_NOOP("QObject", "Part-time Job"), Period::EveryTwoWeeks,
     firstOfMonth},
    {Type::Wage, QT_TRANSLATE_NOOP("QObject", "Gifts"), Period::Monthly, lastOfMonth},
    {Type::Wage, QT_TRANSLATE_NOOP("QObject", "Tax Refund"), Period::Yearly, lastOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Mobile carrier"), Period::Monthly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Music Subscription"), Period::Monthly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "School-related fees (clubs, sports, etc.)"),
     Period::Monthly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Clothing and accessories"), Period::Monthly,
     halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Personal care items (toiletries, haircuts)"),
     Period::Monthly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Going to movies"), Period::Weekly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Outings with friends"), Period::Weekly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Dining out"), Period::Weekly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Hobby (sports equipment, art supplies)"),
     Period::Monthly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Public transportation costs (bus or train fare)"),
     Period::Quarterly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Petrol"), Period::Weekly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Gifts for friends and family"), Period::Monthly,
     halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Donation or charity contribution"), Period::Monthly,
     halfOfMonth},
    {Type::Bill,
     QT_TRANSLATE_NOOP("QObject", "Car Maintenance (oil change, repair, washing, etc.)"),
     Period::Monthly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Pet Care"), Period::Monthly, firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Car Registration"), Period::Yearly, firstOfMonth},
    {Type::Goal, QT_TRANSLATE_NOOP("QObject", "Emergencies"), Period::Monthly, firstOfMonth},
    {Type::Goal, QT_TRANSLATE_NOOP("QObject", "Mobile carrier"), Period::Monthly, firstOfMonth},
    {Type::Goal, QT_TRANSLATE_NOOP("QObject", "Gaming Console"), Period::Monthly, firstOfMonth},
    {Type::Goal, QT_TRANSLATE_NOOP("QObject", "Car"), Period::Monthly, firstOfMonth},
    {Type::Nontrack, QT_TRANSLATE_NOOP("QObject", "Snacks"), Period::Weekly, halfOfMonth},
};

// "Inter-net" is how the item is called; users' budgets know it by that name.
constexpr ItemTemplate adultSingle[] = {
    {Type::Wage, QT_TRANSLATE_NOOP("QObject", "Job"), Period::EveryTwoWeeks, lastOfMonth},
    {Type::Wage, QT_TRANSLATE_NOOP("QObject", "Gifts"), Period::Monthly, lastOfMonth},
    {Type::Wage, QT_TRANSLATE_NOOP("QObject", "Tax Refund"), Period::Yearly, lastOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Rent or mortgage payment"), Period::Monthly,
     firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Property taxes"), Period::Yearly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Homeowners or renters insurance"), Period::Yearly,
     firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Electricity"), Period::Monthly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Water and sewage"), Period::Monthly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Gas or heating"), Period::Monthly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Inter-net and cable"), Period::Monthly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Rubbish collection"), Period::Monthly, halfOfMonth},
    {Type::Bill,
     QT_TRANSLATE_NOOP("QObject",
                       "Groceries & Household Supplies (cleaning products, toiletries, etc.)"),
     Period::EveryTwoMonths, firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Petrol"), Period::Weekly, firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Public transportation"), Period::Quarterly,
     firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Car Insurance"), Period::Quarterly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Health insurance premiums"), Period::Monthly,
     firstOfMonth},
    {Type::Bill,
     QT_TRANSLATE_NOOP(
         "QObject",
         "Medical Care (e.g. Out-of-pocket medical expenses, doctor visits, prescriptions)"),
     Period::Monthly, lastOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Gym or fitness memberships"), Period::Monthly,
     halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Mobile carrier"), Period::Monthly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Donation or charity contribution"), Period::Monthly,
     halfOfMonth},
    {Type::Bill,
     QT_TRANSLATE_NOOP("QObject", "Car Maintenance (oil change, repair, washing, etc.)"),
     Period::Monthly, lastOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Clothing and accessories"), Period::Monthly,
     lastOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Gifts for friends and family"), Period::Monthly,
     lastOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Retirement savings (401(k), IRA) contribution"),
     Period::Monthly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Travel and vacations"), Period::Yearly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Dining out"), Period::Weekly, firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Subscriptions (streaming services, magazines)"),
     Period::Monthly, halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Dating"), Period::Weekly, firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Hobbies and activities"), Period::Monthly,
     halfOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Identification Document"), Period::EveryTenYears,
     firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Pet Care"), Period::Monthly, firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Car Registration"), Period::Yearly, firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Spring Holiday Meal"), Period::Yearly, firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Winter Holiday Meal"), Period::Yearly, firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Winter Holiday Gifts"), Period::Yearly,
     firstOfMonth},
    {Type::Goal, QT_TRANSLATE_NOOP("QObject", "Unexpected (3-Months Wages)"), Period::Monthly,
     firstOfMonth},
    {Type::Goal, QT_TRANSLATE_NOOP("QObject", "Mobile"), Period::Monthly, firstOfMonth},
    {Type::Goal, QT_TRANSLATE_NOOP("QObject", "Car Down Payment"), Period::Monthly, firstOfMonth},
    {Type::Goal, QT_TRANSLATE_NOOP("QObject", "Home Down Payment"), Period::Monthly, firstOfMonth},
    {Type::Nontrack, QT_TRANSLATE_NOOP("QObject", "Free Money"), Period::Weekly, halfOfMonth},
};

constexpr ItemTemplate secondAdult[] = {
    {Type::Nontrack, QT_TRANSLATE_NOOP("QObject", "Free Money Adult 2"), Period::Weekly,
     halfOfMonth},
    {Type::Goal, QT_TRANSLATE_NOOP("QObject", "Mobile Adult 2"), Period::Monthly, firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Petrol Adult 2"), Period::Weekly, firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Public transportation Adult 2"), Period::Quarterly,
     firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Identification Document Adult 2"),
     Period::EveryTenYears, firstOfMonth},
    {Type::Bill, QT_TRANSLATE_NOOP("QObject", "Car Registration Adult 2"), Period::Yearly,
     firstOfMonth},
};

constexpr ItemTemplate secondIncome[] = {
    {Type::Wage, QT_TRANSLATE_NOOP("QObject", "Job Adult 2"), Period::EveryTwoWeeks, lastOfMonth},
};

constexpr ItemRename marriedRenames[] = {
    {QT_TRANSLATE_NOOP("QObject", "Dating"), QT_TRANSLATE_NOOP("QObject", "Date Night")},
    {QT_TRANSLATE_NOOP("QObject", "Free Money"),
     QT_TRANSLATE_NOOP("QObject", "Free Money Adult 1")},
    {QT_TRANSLATE_NOOP("QObject", "Mobile"), QT_TRANSLATE_NOOP("QObject", "Mobile Adult 1")},
    {QT_TRANSLATE_NOOP("QObject", "Petrol"), QT_TRANSLATE_NOOP("QObject", "Petrol Adult 1")},
    {QT_TRANSLATE_NOOP("QObject", "Public transportation"),
     QT_TRANSLATE_NOOP("QObject", "Public transportation Adult 1")},
    {QT_TRANSLATE_NOOP("QObject", "Identification Document"),
     QT_TRANSLATE_NOOP("QObject", "Identification Document Adult 1")},
    {QT_TRANSLATE_NOOP("QObject", "Car Registration"),
     QT_TRANSLATE_NOOP("QObject", "Car Registration Adult 1")},
};

constexpr ItemRename secondIncomeRenames[] = {
    {QT_TRANSLATE_NOOP("QObject", "Job"), QT_TRANSLATE_NOOP("QObject", "Job Adult 1")},
};

} // namespace

std::span<const ItemTemplate> teenagerItems()
{
    return teenager;
}

std::span<const ItemTemplate> adultSingleItems()
{
    return adultSingle;
}

std::span<const ItemTemplate> secondAdultItems()
{
    return secondAdult;
}

std::span<const ItemTemplate> secondIncomeItems()
{
    return secondIncome;
}

std::span<const ItemRename> renamesWhenMarried()
{
    return marriedRenames;
}

std::span<const ItemRename> renamesWithSecondIncome()
{
    return secondIncomeRenames;
}

} // namespace kiv::navigation::internal

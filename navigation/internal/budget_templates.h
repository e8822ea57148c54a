// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/event_frequency.h"
#include "budgeting/identifiers.h"

#include <QtCore/QDate>

#include <span>

/// The items with which the first-time wizard fills a new budget. Names are
/// English; the generator translates them.
namespace kiv::navigation::internal {

struct ItemTemplate {
    budgeting::BudgetItemTypes type;
    const char *name;
    budgeting::EventFrequency period;
    /// Which day of today's month is the item's first.
    QDate (*dayOfMonth)(QDate today);
};

struct ItemRename {
    const char *from;
    const char *to;
};

[[nodiscard]] std::span<const ItemTemplate> teenagerItems();
[[nodiscard]] std::span<const ItemTemplate> adultSingleItems();
/// What a married couple has besides the single adult's items, of which some
/// then get other names.
[[nodiscard]] std::span<const ItemTemplate> secondAdultItems();
[[nodiscard]] std::span<const ItemRename> renamesWhenMarried();
/// The same for a couple that has two incomes.
[[nodiscard]] std::span<const ItemTemplate> secondIncomeItems();
[[nodiscard]] std::span<const ItemRename> renamesWithSecondIncome();

} // namespace kiv::navigation::internal

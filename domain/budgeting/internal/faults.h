// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/errors.h"

#include "numira/money.h"

#include <QtCore/QDate>

/// The sentences with which items and dates are refused. Those of the item maps
/// stand in their template.
namespace kiv::budgeting::internal {

[[nodiscard]] BudgetItemError itemWithoutDate(const BudgetSource &source);
[[nodiscard]] BudgetItemError itemWithNegativeAmount(const BudgetSource &source,
                                                     const numira::Money &amount);
[[nodiscard]] BudgetItemError noDayOfMonth(const BudgetSource &source, int day);
[[nodiscard]] foundation::Error neverRecurs();
/// `frequency` is its text for people.
[[nodiscard]] foundation::Error noNextDate(const QString &frequency, QDate date);

} // namespace kiv::budgeting::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "budgeting/errors.h"

#include "numira/money.h"

#include <QtCore/QDate>

/// Every sentence with which this library refuses something: one function each, which gives the
/// exception to throw.
namespace kiv::budgeting::internal {

// ---- items ---------------------------------------------------------------------

[[nodiscard]] BudgetItemError itemWithoutDate(const BudgetSource &source);
[[nodiscard]] BudgetItemError itemWithNegativeAmount(const BudgetSource &source,
                                                     const numira::Money &amount);
[[nodiscard]] BudgetItemError noDayOfMonth(const BudgetSource &source, int day);
[[nodiscard]] BudgetItemError newSourceEmpty(const BudgetSource &source);
[[nodiscard]] BudgetItemError newSourceExists(const BudgetSource &source);
[[nodiscard]] BudgetItemError cannotRemoveMissing(const BudgetSource &source);
[[nodiscard]] BudgetItemError cannotUpdateMissing(const BudgetSource &source);
[[nodiscard]] BudgetItemError cannotRenameMissing(const BudgetSource &source);
[[nodiscard]] BudgetItemError cannotRenameOnto(const BudgetSource &source, const BudgetSource &to);

// ---- dates ---------------------------------------------------------------------

[[nodiscard]] foundation::Error neverRecurs();
/// `frequency` is its text for people.
[[nodiscard]] foundation::Error noNextDate(const QString &frequency, QDate date);

} // namespace kiv::budgeting::internal

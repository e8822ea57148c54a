// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "navigation/currency_display.h"
#include "storage/budget_storage.h"

#include <QtCore/QStringList>

namespace kiv::workbench {

/// What the user may not have meant in the transactions that a change entered or altered, each
/// a sentence: money from an account that keeps none, a day far off, an account below zero, a
/// goal or a debt beyond its end. Nothing is refused for it. `today` is the real day.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList
entryNotices(const storage::BudgetStorage::Data &before, const storage::BudgetStorage::Data &after,
             QDate today, navigation::CurrencyDisplayOptions displayAs);

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "budgeting/identifiers.h"

#include <QtCore/QString>

#include <optional>
#include <utility>

namespace kiv::workbench {

/// The word of a kind of budget item, as typed and in JSON.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString kindWord(budgeting::BudgetItemTypes kind);
/// That word in the user's language.
[[nodiscard]] KIV_WORKBENCH_EXPORT QString kindText(budgeting::BudgetItemTypes kind);
/// The kind and the name in a text such as "bill:Rent"; without a kind the whole text.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::pair<std::optional<budgeting::BudgetItemTypes>, QString>
withKind(const QString &text);

} // namespace kiv::workbench

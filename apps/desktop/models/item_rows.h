// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/envelope_rows.h"

namespace kiv::desktop {

/// What the items of one kind are called: "Bills".
[[nodiscard]] QString itemsTitle(budgeting::BudgetItemTypes kind);
/// Says that there are none of the kind.
[[nodiscard]] QString noItems(budgeting::BudgetItemTypes kind);
/// The columns of a kind; what it lacks is left out.
[[nodiscard]] QStringList itemColumns(budgeting::BudgetItemTypes kind);
/// The items of a kind. An item's key is its name.
[[nodiscard]] std::vector<Row> itemRows(workbench::Document &document,
                                        const ShownEnvelopes &envelopes,
                                        budgeting::BudgetItemTypes kind);

} // namespace kiv::desktop

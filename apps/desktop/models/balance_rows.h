// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/document/document.h"

namespace kiv::desktop {

/// The columns of the balances on the page Home, and their rows: what banks keep, as their
/// statements show it, and apart from that what else is owned, set aside or owed. An
/// account's key is its number.
[[nodiscard]] QStringList balanceColumns();
[[nodiscard]] std::vector<Row> balanceRows(workbench::Document &document);

} // namespace kiv::desktop

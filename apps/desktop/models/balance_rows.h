// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/envelope_rows.h"

namespace kiv::desktop {

/// The columns of the balances on the page Home, and their rows: what there is beside the
/// accounts that freeRows() shows. What goals hold at a bank is part of those, what is apart
/// from them is owned, set aside or owed. An account's key is its number.
[[nodiscard]] QStringList balanceColumns();
[[nodiscard]] std::vector<Row> balanceRows(workbench::Document &document,
                                           const ShownEnvelopes &envelopes);

} // namespace kiv::desktop

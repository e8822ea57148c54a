// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/requests/exchange_rates.h"

namespace kiv::desktop {

/// The columns of the page of exchange rates, and its rows. A row's key is its currency.
[[nodiscard]] QStringList rateColumns();
[[nodiscard]] std::vector<Row> rateRows(const workbench::ListedRates &listed, QDate today);

} // namespace kiv::desktop

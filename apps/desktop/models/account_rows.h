// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/document/document.h"

namespace kiv::desktop {

/// The columns of the page of accounts; with the field's terms also number, path and kind.
[[nodiscard]] QStringList accountColumns(bool showsTerms);
/// Its rows: the accounts under the headings of their groups. An account's key is its number.
[[nodiscard]] std::vector<Row> accountRows(workbench::Document &document, bool showsTerms);

/// The key of an account's row.
[[nodiscard]] QString keyOf(accounting::AccountNumber number);

} // namespace kiv::desktop

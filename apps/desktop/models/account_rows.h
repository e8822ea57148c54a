// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/document/document.h"
#include "workbench/requests/account_groups.h"

namespace kiv::desktop {

/// The columns of the page of accounts; with the field's terms also number, path and kind.
[[nodiscard]] QStringList accountColumns(bool showsTerms);
/// Its rows: the accounts under the headings of their groups. An account's key is its number.
[[nodiscard]] std::vector<Row> accountRows(workbench::Document &document,
                                           const std::vector<workbench::GroupedAccount> &accounts,
                                           bool showsTerms);

/// How far the books of accounts are from what their banks said, as "$43.22 below the bank".
/// Accounts whose books agree are not there.
[[nodiscard]] std::map<accounting::AccountNumber, QString>
differenceTexts(workbench::Document &document);

/// The key of an account's row.
[[nodiscard]] QString keyOf(accounting::AccountNumber number);

} // namespace kiv::desktop

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "models/table_model.h"

#include "workbench/document/document.h"

namespace kiv::desktop {

/// The columns of the page of banks.
[[nodiscard]] QStringList bankColumns();
/// Its rows: each bank, and below it the accounts that it keeps.
[[nodiscard]] std::vector<Row> bankRows(workbench::Document &document);

/// What a row of the page of banks is: a bank, or one of its accounts.
struct BankTarget {
    banking::BankName bank;
    std::optional<accounting::AccountNumber> account; ///< nothing for the bank itself
    banking::BankAccountTypes kind{};                 ///< of the account
    bool isClosed = false;                            ///< the bank, or the account
};
/// The target of the row with this key: "bank/First", or "account/12" for the account of this
/// number. At a second bank an account's key ends with the bank's name. Nothing if there is no
/// such row.
[[nodiscard]] std::optional<BankTarget> bankTarget(workbench::Document &document,
                                                   const QString &key);
/// The keys of a bank and of an account.
[[nodiscard]] QString keyOf(const banking::BankName &bank);
[[nodiscard]] QString bankKeyOf(accounting::AccountNumber account);

} // namespace kiv::desktop

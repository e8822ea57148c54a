// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/internal/rows.h"

#include "accounting/general_ledger.h"

#include <QtCore/QStringList>

namespace kiv::storage::internal {

/// Writes the tables of accounts and transactions.
void writeLedger(RowSink &sink, const accounting::GeneralLedger &ledger);

/// Builds the ledger again under its own rules. Throws ContentFault, and what
/// those rules throw. A closed account with a balance, as its conversion to
/// another currency can leave it, is open again; `mended` tells.
[[nodiscard]] accounting::GeneralLedger readLedger(RowSource &source, QStringList &mended);

} // namespace kiv::storage::internal

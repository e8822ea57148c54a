// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"

#include "interchange/statement_plan.h"

namespace kiv::workbench {

/// The open budget's ledger as a statement of this account is planned for. Throws what
/// the Navigator's slots throw.
[[nodiscard]] KIV_WORKBENCH_EXPORT interchange::StatementBooks
statementBooks(Requests &requests, const accounting::Account &account);

} // namespace kiv::workbench

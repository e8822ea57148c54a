// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"

#include "interchange/statement_plan.h"

namespace kiv::workbench {

/// The ledger of the open budget, in the form needed to plan a statement of this
/// account. Throws what the Navigator's slots throw.
[[nodiscard]] KIV_WORKBENCH_EXPORT interchange::StatementBooks
statementBooks(Requests &requests, const accounting::Account &account);

} // namespace kiv::workbench

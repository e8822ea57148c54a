// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "accounting/general_ledger.h"
#include "storage/notes.h"

namespace kiv::workbench {

/// The notes after a change of the books. Those that name an account by its number follow it
/// to another number, and what they say of it goes when it is removed.
[[nodiscard]] storage::Notes notesAfter(const storage::Notes &notes,
                                        const accounting::GeneralLedger &before,
                                        const accounting::GeneralLedger &after);

} // namespace kiv::workbench

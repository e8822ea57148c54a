// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/budget_storage.h"
#include "storage/notes.h"
#include "storage/version_mark.h"

#include "surveying/reconciliation.h"

namespace kiv::storage {

/// All that a budget file holds: the budget, and what is kept beside it.
struct KIV_STORAGE_EXPORT Version {
    BudgetStorage::Data data;                   ///< the budget
    surveying::Reconciliations reconciliations; ///< what its surveys left behind
    Notes notes;                                ///< what front ends remember
    VersionMark mark;                           ///< what it tells about itself

    friend bool operator==(const Version &, const Version &) = default;
};

} // namespace kiv::storage

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "storage/budget_inspection.h"

namespace kiv::workbench {

/// One version of a budget file: number 0 is the file itself, 1 the version
/// before, and so on.
struct KIV_WORKBENCH_EXPORT Version {
    unsigned number = 0;             ///< how many saves ago
    QString path;                    ///< where it lies
    storage::BudgetInspection found; ///< what a look at it found

    /// Its budget. Throws a Refusal when it is not whole.
    [[nodiscard]] const storage::BudgetStorage::Data &data() const;
};

/// That version. Throws a Refusal when it is not kept.
[[nodiscard]] KIV_WORKBENCH_EXPORT Version versionOf(const QString &file, unsigned number);
/// All that are kept, the newest first.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<Version> versionsOf(const QString &file);

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include "storage/budget_inspection.h"

namespace kiv::workbench {

/// A version of a budget file: number 0 is the file itself, 1 the version before it, and
/// so on.
struct KIV_WORKBENCH_EXPORT Version {
    unsigned number = 0;             ///< how many saves ago
    QString path;                    ///< of its file
    storage::BudgetInspection found; ///< the result of inspecting it

    /// The budget. Throws a Refusal if the file is damaged.
    [[nodiscard]] const storage::BudgetStorage::Data &data() const;
};

/// The version with this number. Throws a Refusal if it does not exist.
[[nodiscard]] KIV_WORKBENCH_EXPORT Version versionOf(const QString &file, unsigned number);
/// All versions, newest first.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<Version> versionsOf(const QString &file);

} // namespace kiv::workbench

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/versions/changes.h"

namespace kiv::workbench {

/// A change in the user's language and in plain words.
struct ChangeText {
    QString what;   ///< "item", "account", "transaction", "bank" or "survey"
    QString name;   ///< "bill Rent", "12 Checking", "17"
    QString how;    ///< "added", "changed" or "removed"
    QString detail; ///< the changed values; for something added or removed, its main values
};

/// Puts a change into words.
[[nodiscard]] KIV_WORKBENCH_EXPORT ChangeText changeText(const Change &change);

} // namespace kiv::workbench

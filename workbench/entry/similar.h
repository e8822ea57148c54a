// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include <QtCore/QStringList>

namespace kiv::workbench {

/// The number of typing errors between two words, ignoring case: missing, extra or wrong
/// letters, and swapped neighbours. This is the optimal string alignment distance.
[[nodiscard]] KIV_WORKBENCH_EXPORT int slipsBetween(const QString &one, const QString &other);

/// The known names that are similar to `word`, at most three. First those with the
/// fewest typing errors: at most one, and one more for every four letters. Without any,
/// those that begin with `word`. The word itself is never among them.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList similarTo(const QString &word,
                                                         const QStringList &known);

} // namespace kiv::workbench

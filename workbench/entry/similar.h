// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/export.h"

#include <QtCore/QStringList>

namespace kiv::workbench {

/// By how many slips two words differ, whatever their case: letters that are
/// missing, added or wrong, and neighbours that changed places. No letter is
/// edited twice (the optimal string alignment distance).
[[nodiscard]] KIV_WORKBENCH_EXPORT int slipsBetween(const QString &one, const QString &other);

/// Those of `known` for which somebody may have meant to write `word`: with the
/// fewest slips, which are at most one, and one more for every four letters of
/// the word; or, where there is none, those that begin with it. Three at most;
/// the word itself is not among them.
[[nodiscard]] KIV_WORKBENCH_EXPORT QStringList similarTo(const QString &word,
                                                         const QStringList &known);

} // namespace kiv::workbench

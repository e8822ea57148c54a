// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QStringList>

namespace kiv::app {

/// By how many slips two words differ, whatever their case: letters that are
/// missing, added or wrong, and neighbours that changed places. No letter is
/// edited twice (the optimal string alignment distance).
[[nodiscard]] int slipsBetween(const QString &one, const QString &other);

/// Those of `known` for which somebody may have meant to write `word`: with the
/// fewest slips, which are at most one, and one more for every four letters of
/// the word; or, where there is none, those that begin with it. Three at most;
/// the word itself is not among them.
[[nodiscard]] QStringList similarTo(const QString &word, const QStringList &known);

} // namespace kiv::app

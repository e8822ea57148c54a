// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QStringList>

QT_BEGIN_NAMESPACE
class QPalette;
class QWidget;
QT_END_NAMESPACE

/// Judges of what people need who use keys alone, or who cannot see, and of what is shown. Each
/// gives one line for a fault, and none when all is well.
namespace kiv::test {

/// Focusable widgets without a name, headers and cells of tables that say nothing, in a
/// shown widget and below.
[[nodiscard]] QStringList nameless(QWidget &root);
/// Letters that several labels and buttons claim with Alt.
[[nodiscard]] QStringList mnemonicsTwice(QWidget &root);
/// Widgets that Tab does not reach, beginning at `first`, or reaches twice before all were
/// reached. The window must be active.
[[nodiscard]] QStringList unreached(QWidget &root, QWidget &first);
/// How often Tab goes up on its way, beginning at `first`.
[[nodiscard]] int tabsUp(const QWidget &root, const QWidget &first);
/// Pairs of colours with less contrast than is wanted.
[[nodiscard]] QStringList pale(const QPalette &palette, double wanted);

/// What does not fit in a shown widget and below: what is smaller than it needs to be, what
/// lies over its neighbour, and buttons beyond the side of the window.
[[nodiscard]] QStringList misfits(QWidget &root);

} // namespace kiv::test

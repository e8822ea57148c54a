// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QStringList>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace kiv::test {

/// What does not fit in a shown widget and below: what is smaller than it needs to be, what
/// lies over its neighbour, and buttons beyond the side of the window. One line for each.
[[nodiscard]] QStringList misfits(QWidget &root);

} // namespace kiv::test

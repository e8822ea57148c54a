// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/terminal.h"

#include <QtCore/QStringList>

#include <vector>

namespace kiv::app {

/// A cell of a table; its text is escaped already.
struct Cell {
    QString text;
    bool isNumber = false;   ///< right-aligned, never cut
    bool isNegative = false; ///< red if colours are on
};

/// Lays out rows in columns, under their titles if there are any. There must be at least
/// one row. If the table is wider than the terminal, the widest text columns are cut.
[[nodiscard]] QString tableText(const QStringList &titles,
                                const std::vector<std::vector<Cell>> &rows,
                                const Terminal &terminal);

} // namespace kiv::app

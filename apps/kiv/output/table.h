// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "output/terminal.h"

#include <QtCore/QStringList>

#include <vector>

namespace kiv::app {

/// A text of a table that is safe to print.
struct Cell {
    QString text;
    bool isNumber = false;   ///< stands to the right, and is never cut
    bool isNegative = false; ///< red where there are colours
};

/// The rows, of which there is at least one, in columns two blanks apart, under
/// their titles if there are any.
/// Where that is wider than the terminal, the widest columns of text are cut.
[[nodiscard]] QString tableText(const QStringList &titles,
                                const std::vector<std::vector<Cell>> &rows,
                                const Terminal &terminal);

} // namespace kiv::app

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

/// Rows of cells that are laid out in columns. It keeps little more than the cells' text:
/// a table may have many thousand rows.
class Table {
public:
    /// A table with titles above its columns, unless they are empty.
    Table(const QStringList &titles, std::size_t columns);

    /// Adds the next cell of the row, or the first one of the next row.
    void add(const Cell &cell);

    /// Hands the lines to `sink`. If the table is wider than the terminal, the widest text
    /// columns are cut.
    void write(const Terminal &terminal, const Sink &sink) const;

private:
    /// A cell, whose text is in m_texts and ends where the next one begins.
    struct Kept {
        std::size_t begin;
        int width;
        bool isNumber;
        bool isNegative;
    };
    struct Layout {
        std::vector<int> widths;
        std::vector<bool> areNumbers;
    };

    [[nodiscard]] QByteArrayView textOf(std::size_t cell) const;
    static void shrinkTo(int total, Layout &layout);

    std::size_t m_titles; ///< cells at the beginning
    Layout m_natural;
    std::vector<Kept> m_cells;
    QByteArray m_texts; ///< of all cells, as UTF-8
};

} // namespace kiv::app

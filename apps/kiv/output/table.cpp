// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/table.h"

#include <algorithm>
#include <numeric>

namespace kiv::app {
namespace {

constexpr int gap = 2;
constexpr int narrowest = 4;
/// A longer text shifts the rest of its own line only.
constexpr int widestPadded = 200;

struct Layout {
    std::vector<int> widths;
    std::vector<bool> areNumbers;
};

Layout naturalLayout(const QStringList &titles, const std::vector<std::vector<Cell>> &rows)
{
    const std::size_t count = rows.front().size();
    Layout layout{std::vector<int>(count), std::vector<bool>(count)};
    for (std::size_t column = 0; column < count; ++column) {
        int width = titles.isEmpty() ? 0 : displayWidth(titles[static_cast<qsizetype>(column)]);
        for (const auto &row : rows) {
            width = std::max(width, std::min(widestPadded, displayWidth(row[column].text)));
            if (row[column].isNumber)
                layout.areNumbers[column] = true;
        }
        layout.widths[column] = width;
    }
    return layout;
}

void shrinkTo(int total, Layout &layout)
{
    const auto used = [&layout] {
        return std::accumulate(layout.widths.begin(), layout.widths.end(), 0) +
               gap * (static_cast<int>(layout.widths.size()) - 1);
    };
    while (used() > total) {
        int *widest = nullptr;
        for (std::size_t column = 0; column < layout.widths.size(); ++column) {
            int &width = layout.widths[column];
            if (!layout.areNumbers[column] && width > narrowest && (!widest || width > *widest))
                widest = &width;
        }
        if (!widest)
            return;
        --*widest;
    }
}

} // namespace

QString tableText(const QStringList &titles, const std::vector<std::vector<Cell>> &rows,
                  const Terminal &terminal)
{
    Layout layout = naturalLayout(titles, rows);
    const std::optional<int> total = terminal.width();
    if (total)
        shrinkTo(*total, layout);

    QString text;
    const auto addLine = [&](const auto &textOf, const auto &style) {
        QString line;
        for (std::size_t column = 0; column < layout.widths.size(); ++column) {
            const int width = layout.widths[column];
            const QString cell = total ? elided(textOf(column), width) : textOf(column);
            const QString blanks(std::max(0, width - displayWidth(cell)), u' ');
            if (column > 0)
                line += QString(gap, u' ');
            const QString shown = style(column, cell);
            const bool isLast = column + 1 == layout.widths.size();
            line += layout.areNumbers[column] ? blanks + shown : isLast ? shown : shown + blanks;
        }
        while (line.endsWith(u' '))
            line.chop(1);
        text += line + u'\n';
    };

    if (!titles.isEmpty()) {
        addLine([&](std::size_t column) { return titles[static_cast<qsizetype>(column)]; },
                [&](std::size_t, const QString &cell) { return terminal.bold(cell); });
    }
    for (const auto &row : rows) {
        addLine([&](std::size_t column) { return row[column].text; },
                [&](std::size_t column, const QString &cell) {
                    return row[column].isNegative ? terminal.red(cell) : cell;
                });
    }
    return text;
}

} // namespace kiv::app

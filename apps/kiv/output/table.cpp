// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/table.h"

#include <algorithm>
#include <numeric>

namespace kiv::app {
namespace {

constexpr int gap = 2;
constexpr int columnMin = 4;
/// A longer text shifts the rest of its own line only.
constexpr int widestPadded = 200;

} // namespace

Table::Table(const QStringList &titles, std::size_t columns)
    : m_titles(static_cast<std::size_t>(titles.size())),
      m_natural{std::vector<int>(columns), std::vector<bool>(columns)}
{
    for (const QString &title : titles)
        add({title});
}

void Table::add(const Cell &cell)
{
    const std::size_t column = m_cells.size() % m_natural.widths.size();
    const int width = displayWidth(cell.text);
    m_cells.push_back(
        {static_cast<std::size_t>(m_texts.size()), width, cell.isNumber, cell.isNegative});
    m_texts += cell.text.toUtf8();
    int &widest = m_natural.widths[column];
    widest = std::max(widest, m_cells.size() > m_titles ? std::min(widestPadded, width) : width);
    if (cell.isNumber)
        m_natural.areNumbers[column] = true;
}

QByteArrayView Table::textOf(std::size_t cell) const
{
    const auto begin = static_cast<qsizetype>(m_cells[cell].begin);
    const qsizetype end = cell + 1 < m_cells.size()
                              ? static_cast<qsizetype>(m_cells[cell + 1].begin)
                              : m_texts.size();
    return QByteArrayView(m_texts).sliced(begin, end - begin);
}

void Table::shrinkTo(int total, Layout &layout)
{
    const auto used = [&layout] {
        return std::accumulate(layout.widths.begin(), layout.widths.end(), 0) +
               gap * (static_cast<int>(layout.widths.size()) - 1);
    };
    while (used() > total) {
        int *widest = nullptr;
        for (std::size_t column = 0; column < layout.widths.size(); ++column) {
            int &width = layout.widths[column];
            if (!layout.areNumbers[column] && width > columnMin && (!widest || width > *widest))
                widest = &width;
        }
        if (!widest)
            return;
        --*widest;
    }
}

void Table::write(const Terminal &terminal, const Sink &sink) const
{
    Layout layout = m_natural;
    const std::optional<int> total = terminal.width();
    if (total)
        shrinkTo(*total, layout);

    QByteArray line;
    for (std::size_t at = 0; at < m_cells.size(); ++at) {
        const std::size_t column = at % layout.widths.size();
        const bool isLast = column + 1 == layout.widths.size();
        QByteArrayView shown = textOf(at);
        int width = m_cells[at].width;
        QByteArray styled;
        if (total) { // only a terminal cuts, and has colours
            const QString cut = elided(QString::fromUtf8(shown), layout.widths[column]);
            width = displayWidth(cut);
            styled = (at < m_titles            ? terminal.bold(cut)
                      : m_cells[at].isNegative ? terminal.red(cut)
                                               : cut)
                         .toUtf8();
            shown = styled;
        }
        const QByteArray blanks(std::max(0, layout.widths[column] - width), ' ');
        if (layout.areNumbers[column])
            line.append(blanks).append(shown);
        else
            line.append(shown).append(blanks);
        if (!isLast) {
            line.append(gap, ' ');
            continue;
        }
        while (line.endsWith(' '))
            line.chop(1);
        sink(line += '\n');
        line.resize(0); // keeps the memory
    }
}

} // namespace kiv::app

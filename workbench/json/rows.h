// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include <functional>

namespace kiv::workbench {

/// The rows of a table, or the elements of a list in JSON. Each is made when it is
/// written, so a long list is never whole in memory.
class Rows {
public:
    /// A short list, as it is.
    Rows(QJsonArray rows)
        : m_size(rows.size()), m_row([rows = std::move(rows)](qsizetype at) { return rows.at(at); })
    {
    }
    /// `row` makes the one at an index from 0 to `size` - 1.
    Rows(qsizetype size, std::function<QJsonObject(qsizetype)> row)
        : m_size(size), m_row(std::move(row))
    {
    }

    /// How many there are.
    [[nodiscard]] qsizetype size() const noexcept { return m_size; }
    /// Makes the one at an index.
    [[nodiscard]] QJsonValue operator[](qsizetype at) const { return m_row(at); }

private:
    qsizetype m_size;
    std::function<QJsonValue(qsizetype)> m_row;
};

} // namespace kiv::workbench

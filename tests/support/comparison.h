// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QString>

#include <compare>
#include <functional>
#include <sstream>
#include <vector>

namespace kiv::test {

/// Compares every value of a list that is sorted and without repetitions with
/// every other: == and <=> must both say what the positions say. Answers with
/// the first pair for which they do not, or with nothing. `projection` gives the
/// value of an element.
template <typename T, typename Projection = std::identity>
QString comparisonFault(const std::vector<T> &sorted, Projection projection = {})
{
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        for (std::size_t j = 0; j < sorted.size(); ++j) {
            const auto &a = std::invoke(projection, sorted[i]);
            const auto &b = std::invoke(projection, sorted[j]);
            if ((a <=> b) == (i <=> j) && (a == b) == (i == j))
                continue;
            std::ostringstream fault;
            fault << a << " (" << i << ") against " << b << " (" << j << ')';
            return QString::fromStdString(fault.str());
        }
    }
    return {};
}

/// The text that a value writes to a stream.
template <typename T>
QString dump(const T &value)
{
    std::ostringstream out;
    out << value;
    return QString::fromStdString(out.str());
}

} // namespace kiv::test

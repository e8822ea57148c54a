// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <ostream>

namespace kiv::surveying::internal {

/// Writes "(key=>value, key=>value)", each value by `streamValue`.
template <typename Map, typename StreamValue>
void streamMap(std::ostream &out, const Map &map, StreamValue streamValue)
{
    out << '(';
    const char *separator = "";
    for (const auto &[key, value] : map) {
        out << separator << key << "=>";
        streamValue(value);
        separator = ", ";
    }
    out << ')';
}

/// The same, each value by its own stream operator.
template <typename Map>
void streamMap(std::ostream &out, const Map &map)
{
    streamMap(out, map, [&](const auto &value) { out << value; });
}

} // namespace kiv::surveying::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>

namespace kiv::foundation {

/// The entry of an enumeration's table, which has one for each value from 0 on; null for a value
/// that the enumeration lacks.
template <typename Entry, std::size_t count, typename Enum>
[[nodiscard]] constexpr const Entry *entryOf(const std::array<Entry, count> &table,
                                             Enum value) noexcept
{
    const auto place = static_cast<std::size_t>(value);
    return place < count ? &table[place] : nullptr;
}

} // namespace kiv::foundation

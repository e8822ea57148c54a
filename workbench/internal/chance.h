// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <random>

namespace kiv::workbench::internal {

/// Numbers that look like chance and are always the same. The distributions of the standard
/// library are not used: they differ between systems.
class Chance {
public:
    /// A number from `lowest` to `highest`.
    [[nodiscard]] int between(int lowest, int highest)
    {
        const auto count = static_cast<unsigned>(highest - lowest + 1);
        return lowest + static_cast<int>(m_engine() % count);
    }

private:
    std::mt19937 m_engine{20260301};
};

} // namespace kiv::workbench::internal

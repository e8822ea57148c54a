// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace kiv::app {

/// What the command tells the program that called it.
struct ExitStatus {
    static constexpr int success = 0;
    static constexpr int refused = 1; ///< the call was understood
    static constexpr int misused = 2; ///< the call was not understood
};

} // namespace kiv::app

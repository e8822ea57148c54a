// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace kiv::app {

/// The exit statuses.
struct ExitStatus {
    static constexpr int success = 0;
    static constexpr int refused = 1; ///< the command refused
    static constexpr int misused = 2; ///< the call was wrong
};

} // namespace kiv::app

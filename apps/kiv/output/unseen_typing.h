// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <csignal>

namespace kiv::app {

/// While it lives, the terminal does not show what is typed, and Ctrl-C only ends the line. A
/// signal that ends the program first has the terminal show what is typed again. There is one
/// at a time.
class UnseenTyping {
public:
    UnseenTyping();
    ~UnseenTyping();
    UnseenTyping(const UnseenTyping &) = delete;
    UnseenTyping &operator=(const UnseenTyping &) = delete;

    static constexpr char interrupt = 3; ///< Ctrl-C

    /// Has the terminal as it was before, if one lives. For the moment before the program ends;
    /// a signal handler may call it.
    static void leaveTerminal();

private:
    static constexpr std::array ends{SIGHUP, SIGINT, SIGQUIT, SIGTERM};

    std::array<struct sigaction, ends.size()> m_before = {};
};

} // namespace kiv::app

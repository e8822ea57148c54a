// SPDX-License-Identifier: GPL-3.0-or-later
#include "output/unseen_typing.h"

#include <termios.h>
#include <unistd.h>

namespace kiv::app {
namespace {

// A signal handler has no other way to them.
termios before;
volatile std::sig_atomic_t isUnseen = 0;

void endSeen(int signal)
{
    UnseenTyping::leaveTerminal();
    ::raise(signal); // which by now has its usual effect
}

} // namespace

UnseenTyping::UnseenTyping()
{
    ::tcgetattr(STDIN_FILENO, &before);
    isUnseen = 1;
    struct sigaction ending = {};
    ending.sa_handler = endSeen;
    ending.sa_flags = static_cast<int>(SA_RESETHAND);
    for (std::size_t at = 0; at < ends.size(); ++at) {
        ::sigaction(ends[at], &ending, &m_before[at]);
        // What whoever started the program ignores stays ignored.
        if (m_before[at].sa_handler == SIG_IGN)
            ::sigaction(ends[at], &m_before[at], nullptr);
    }
    termios unseen = before;
    unseen.c_lflag &= ~static_cast<tcflag_t>(ECHO | ISIG);
    unseen.c_cc[VEOL] = interrupt;
    ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &unseen);
}

UnseenTyping::~UnseenTyping()
{
    leaveTerminal();
    for (std::size_t at = 0; at < ends.size(); ++at)
        ::sigaction(ends[at], &m_before[at], nullptr);
}

void UnseenTyping::leaveTerminal()
{
    if (isUnseen == 0)
        return;
    isUnseen = 0;
    // In the background the terminal is somebody else's, and setting it would stop the program.
    if (::tcgetpgrp(STDIN_FILENO) == ::getpgrp())
        ::tcsetattr(STDIN_FILENO, TCSAFLUSH, &before);
}

} // namespace kiv::app

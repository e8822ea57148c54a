// SPDX-License-Identifier: GPL-3.0-or-later
#include "program/last_write.h"

#include "output/unseen_typing.h"
#include "program/line_reader.h"

#include <unistd.h>

namespace kiv::app {

LastWrite::LastWrite(const workbench::Document &document) : m_document(document)
{
    ::sigemptyset(&m_signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        // What whoever started the program ignores stays ignored.
        struct sigaction present = {};
        if (::sigaction(signal, nullptr, &present) == 0 && present.sa_handler != SIG_IGN)
            ::sigaddset(&m_signals, signal);
    }
    ::sigaddset(&m_signals, SIGUSR2); // of the end
    ::pthread_sigmask(SIG_BLOCK, &m_signals, &m_before);
    struct sigaction ignoring = {};
    ignoring.sa_handler = SIG_IGN;
    ::sigaction(SIGPIPE, &ignoring, &m_pipeBefore);
    m_thread = std::thread([this] { wait(); });
}

LastWrite::~LastWrite()
{
    m_isEnding = true;
    ::pthread_kill(m_thread.native_handle(), SIGUSR2);
    m_thread.join();
    ::sigaction(SIGPIPE, &m_pipeBefore, nullptr);
    ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
}

void LastWrite::wait()
{
    int signal = 0;
    do {
        if (::sigwait(&m_signals, &signal) != 0 || m_isEnding)
            return;
        // The thread that reads a line holds signals back for a moment, and then an interrupt
        // that is its own comes here.
    } while (signal == SIGUSR2 || (signal == SIGINT && LineReader::giveUpLine()));
    m_document.writePending();
    LineReader::leaveTerminal();
    UnseenTyping::leaveTerminal();
    struct sigaction usual = {};
    usual.sa_handler = SIG_DFL;
    ::sigaction(signal, &usual, nullptr);
    ::pthread_sigmask(SIG_UNBLOCK, &m_signals, nullptr);
    ::kill(::getpid(), signal);
}

} // namespace kiv::app

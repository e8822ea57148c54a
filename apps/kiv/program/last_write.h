// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/document/document.h"

#include <atomic>
#include <csignal>
#include <thread>

namespace kiv::app {

/// While it lives, a signal that ends the program first lets the document be written:
/// SIGINT, SIGTERM and SIGHUP. An output that nobody reads any more is an error of
/// writing it then, and no signal.
class LastWrite {
public:
    explicit LastWrite(const workbench::Document &document);
    ~LastWrite();
    LastWrite(const LastWrite &) = delete;
    LastWrite &operator=(const LastWrite &) = delete;

private:
    void wait();

    const workbench::Document &m_document;
    sigset_t m_signals = {};
    sigset_t m_before = {};
    struct sigaction m_pipeBefore = {};
    std::atomic<bool> m_isEnding = false;
    std::thread m_thread;
};

} // namespace kiv::app

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>

namespace kiv::storage::internal {

/// Blocks the signal of a write over the process's limit of file sizes, which would
/// end the process. The write then fails with its error.
class NoFileSizeSignal {
public:
    NoFileSizeSignal() noexcept
    {
        sigemptyset(&m_signal);
        sigaddset(&m_signal, SIGXFSZ);
        pthread_sigmask(SIG_BLOCK, &m_signal, &m_before);
    }
    ~NoFileSizeSignal()
    {
        if (!sigismember(&m_before, SIGXFSZ)) {
            const timespec atOnce = {};
            sigtimedwait(&m_signal, nullptr, &atOnce);
        }
        pthread_sigmask(SIG_SETMASK, &m_before, nullptr);
    }
    NoFileSizeSignal(const NoFileSizeSignal &) = delete;
    NoFileSizeSignal &operator=(const NoFileSizeSignal &) = delete;

private:
    sigset_t m_signal{};
    sigset_t m_before{};
};

} // namespace kiv::storage::internal

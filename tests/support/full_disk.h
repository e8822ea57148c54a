// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>
#include <sys/resource.h>

/// While it lives, no file becomes longer than 4 KiB: a disk without room.
class FullDisk {
public:
    FullDisk()
    {
        std::signal(SIGXFSZ, SIG_IGN); // so that it is an error of writing
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit full{4096, m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, SIG_DFL);
    }
    FullDisk(const FullDisk &) = delete;
    FullDisk &operator=(const FullDisk &) = delete;

private:
    rlimit m_before = {};
};

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/qglobal.h>

#include <chrono>

namespace kiv::networking {

/// How much a server may ask of us.
struct HttpLimits {
    /// For one request from beginning to end, its redirects included.
    std::chrono::milliseconds timeout{30'000};
    /// Of a body, in bytes.
    qint64 bodyMax = qint64{1} << 20;
    /// How many redirects are followed.
    int redirectsMax = 3;
};

} // namespace kiv::networking

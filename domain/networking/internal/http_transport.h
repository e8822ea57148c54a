// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networking/http_limits.h"
#include "networking/request_sender.h"
#include "networking/response.h"

#include <QtCore/QUrl>

#include <functional>
#include <memory>

namespace kiv::networking::internal {

/// What speaks HTTP for a HttpRequestSender. It stands in a library of its own,
/// kiv-http, and only calls through this interface lead there.
class HttpTransport {
public:
    using Done = std::function<void(const Response &)>;

    virtual ~HttpTransport() = default;

    /// Begins a request. `done` is called once, later, unless it is cancelled.
    virtual void start(RequestNumber request, const QUrl &url, Done done) = 0;
    /// Gives a request up; an unknown number is ignored.
    virtual void cancel(RequestNumber request) = 0;
};

/// One that keeps to the limits, from the shared library of that name. When it
/// cannot be loaded, one whose requests all fail and say why.
[[nodiscard]] KIV_NETWORKING_EXPORT std::unique_ptr<HttpTransport>
loadHttpTransport(const HttpLimits &limits, const char *library);

} // namespace kiv::networking::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networking/export.h"
#include "networking/http_limits.h"
#include "networking/request_sender.h"

#include <chrono>
#include <memory>

namespace kiv::networking {

namespace internal {
class HttpTransport;
}

/// Sends requests over HTTPS. Plain HTTP goes only to a loopback address
/// written as a number, as a service on the same computer offers it.
///
/// A redirect is followed to the same host and port alone and never from HTTPS to
/// plain HTTP. Only a reply with status 200, complete in time and no larger than the
/// limit, is a success; no more than the limit is ever read. No cookie is kept
/// and nothing cached.
///
/// What speaks HTTP, Qt Network, is loaded with the first request. Where it is
/// missing, every request fails and says so.
class KIV_NETWORKING_EXPORT HttpRequestSender final : public RequestSender {
    Q_OBJECT
public:
    /// A sender that keeps to the limits.
    explicit HttpRequestSender(const HttpLimits &limits = {});
    ~HttpRequestSender() override;

    void send(kiv::networking::RequestNumber request, const QUrl &url) override;
    void cancel(kiv::networking::RequestNumber request) override;

private:
    HttpLimits m_limits;
    std::unique_ptr<internal::HttpTransport> m_transport;
};

} // namespace kiv::networking

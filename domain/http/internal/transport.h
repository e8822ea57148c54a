// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networking/internal/http_transport.h"

#include <QtNetwork/QNetworkAccessManager>

#include <map>

namespace kiv::http::internal {

class HttpExchange;

/// Sends requests with Qt Network.
class Transport final : public networking::internal::HttpTransport {
public:
    explicit Transport(const networking::HttpLimits &limits);
    ~Transport() override;

    void start(networking::RequestNumber request, const QUrl &url, Done done) override;
    void cancel(networking::RequestNumber request) override;

private:
    networking::HttpLimits m_limits;
    QNetworkAccessManager m_network;
    std::map<networking::RequestNumber, std::unique_ptr<HttpExchange>> m_exchanges;
};

} // namespace kiv::http::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "http/internal/transport.h"

#include "http/export.h"
#include "http/internal/http_exchange.h"

namespace kiv::http::internal {

using networking::RequestNumber;
using networking::Response;

Transport::Transport(const networking::HttpLimits &limits) : m_limits(limits) {}

Transport::~Transport() = default;

void Transport::start(RequestNumber request, const QUrl &url, Done done)
{
    auto exchange = std::make_unique<HttpExchange>(m_network, m_limits);
    auto &started = *exchange;
    m_exchanges.insert_or_assign(request, std::move(exchange));
    QObject::connect(&started, &HttpExchange::finished, &m_network,
                     [this, request, done = std::move(done)](const Response &response) {
                         // The exchange is still running the code that called this.
                         auto *finished = m_exchanges.extract(request).mapped().release();
                         finished->setParent(&m_network);
                         finished->deleteLater();
                         done(response);
                     });
    started.start(url);
}

void Transport::cancel(RequestNumber request)
{
    m_exchanges.erase(request);
}

} // namespace kiv::http::internal

/// What networking::HttpRequestSender looks for in this library.
extern "C" KIV_HTTP_EXPORT kiv::networking::internal::HttpTransport *
kivHttpTransport(const kiv::networking::HttpLimits &limits)
{
    return new kiv::http::internal::Transport(limits);
}

// SPDX-License-Identifier: GPL-3.0-or-later
#include "networking/http_request_sender.h"

#include "networking/internal/http_exchange.h"

#include <QtNetwork/QNetworkAccessManager>

namespace kiv::networking {

HttpRequestSender::HttpRequestSender(const HttpLimits &limits)
    : m_limits(limits), m_network(std::make_unique<QNetworkAccessManager>())
{
}

HttpRequestSender::~HttpRequestSender() = default;

void HttpRequestSender::send(RequestNumber request, const QUrl &url)
{
    auto exchange = std::make_unique<internal::HttpExchange>(*m_network, m_limits);
    auto &started = *exchange;
    m_exchanges.insert_or_assign(request, std::move(exchange));
    connect(&started, &internal::HttpExchange::finished, this,
            [this, request](const Response &response) {
                // The exchange is still running the code that called this.
                auto *done = m_exchanges.extract(request).mapped().release();
                done->setParent(this);
                done->deleteLater();
                emit answered(request, response);
            });
    started.start(url);
}

void HttpRequestSender::cancel(RequestNumber request)
{
    m_exchanges.erase(request);
}

} // namespace kiv::networking

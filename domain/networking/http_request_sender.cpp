// SPDX-License-Identifier: GPL-3.0-or-later
#include "networking/http_request_sender.h"

#include "networking/internal/http_transport.h"

namespace kiv::networking {

HttpRequestSender::HttpRequestSender(const HttpLimits &limits) : m_limits(limits) {}

HttpRequestSender::~HttpRequestSender() = default;

void HttpRequestSender::send(RequestNumber request, const QUrl &url)
{
    if (!m_transport)
        m_transport = internal::loadHttpTransport(m_limits, KIV_HTTP_LIBRARY);
    m_transport->start(request, url, [this, request](const Response &response) {
        emit answered(request, response);
    });
}

void HttpRequestSender::cancel(RequestNumber request)
{
    if (m_transport)
        m_transport->cancel(request);
}

} // namespace kiv::networking

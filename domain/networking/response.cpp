// SPDX-License-Identifier: GPL-3.0-or-later
#include "networking/response.h"

#include "foundation/streams.h"

namespace kiv::networking {

Response Response::succeeded(QByteArray body, QString contentType)
{
    Response response;
    response.m_isSuccess = true;
    response.m_body = std::move(body);
    response.m_contentType = std::move(contentType);
    return response;
}

Response Response::failed(QString reason)
{
    Response response;
    response.m_failure = std::move(reason);
    return response;
}

std::ostream &operator<<(std::ostream &out, const Response &response)
{
    if (!response.isSuccess())
        return out << "failed: " << foundation::escapedUtf8(response.failure());
    return out << response.body().size() << " bytes of "
               << foundation::escapedUtf8(response.contentType());
}

} // namespace kiv::networking

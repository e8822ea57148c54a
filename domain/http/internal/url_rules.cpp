// SPDX-License-Identifier: GPL-3.0-or-later
#include "http/internal/url_rules.h"

#include <QtNetwork/QHostAddress>

namespace kiv::http::internal {

namespace {

bool isHttps(const QUrl &url)
{
    return url.scheme() == QStringLiteral("https");
}

/// 0 for the one that the scheme has when none is named.
int portOf(const QUrl &url)
{
    const int usual = isHttps(url) ? 443 : 80;
    const int port = url.port(usual);
    return port == usual ? 0 : port;
}

} // namespace

bool isAllowed(const QUrl &url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    return isHttps(url) ||
           (url.scheme() == QStringLiteral("http") && QHostAddress(url.host()).isLoopback());
}

bool isRedirectAllowed(const QUrl &from, const QUrl &to)
{
    return isAllowed(to) && to.host() == from.host() && portOf(to) == portOf(from) &&
           (isHttps(to) || !isHttps(from));
}

} // namespace kiv::http::internal

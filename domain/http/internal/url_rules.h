// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "http/export.h"

#include <QtCore/QUrl>

namespace kiv::http::internal {

/// HTTPS, or plain HTTP to a loopback address written as a number (a name such
/// as "localhost" may be resolved to anything).
[[nodiscard]] KIV_HTTP_EXPORT bool isAllowed(const QUrl &url);

/// To an allowed address on the same host and port (another port may be another
/// one's service), and not from HTTPS to plain HTTP.
[[nodiscard]] KIV_HTTP_EXPORT bool isRedirectAllowed(const QUrl &from, const QUrl &to);

} // namespace kiv::http::internal

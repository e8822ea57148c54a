// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networking/export.h"
#include "networking/response.h"

#include <QtCore/QJsonDocument>

namespace kiv::networking {

/// The JSON document that the response brings, read strictly. Throws ReplyError
/// when the request failed, the type is neither application/json nor one that
/// ends in +json, the body is not JSON, or an object in it names a member twice
/// (readers differ in which of the two they believe).
[[nodiscard]] KIV_NETWORKING_EXPORT QJsonDocument readJson(const Response &response);

} // namespace kiv::networking

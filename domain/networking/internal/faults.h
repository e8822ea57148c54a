// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networking/errors.h"

/// The reasons for which a request fails or a reply is refused: one function each. None holds a
/// request's address.
namespace kiv::networking::internal {

[[nodiscard]] QString managerDestroyed();
[[nodiscard]] QString noSender();
[[nodiscard]] QString httpMissing(const QString &cause);

[[nodiscard]] ReplyError requestFailed(const QString &reason);
[[nodiscard]] ReplyError notJsonType(const QString &contentType);
[[nodiscard]] ReplyError notJson(const QString &reason, int offset);
[[nodiscard]] ReplyError duplicateMembers();

} // namespace kiv::networking::internal

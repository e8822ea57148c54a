// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networking/export.h"

#include "foundation/error.h"

#include <QtCore/QString>

namespace kiv::networking {

/// A reply of a server that is refused. The user finds its text in the log.
class KIV_NETWORKING_EXPORT ReplyError final : public foundation::Error {
public:
    using foundation::Error::Error;
    ~ReplyError() override;
};

/// The reasons for which a request fails or a reply is refused. None holds a
/// request's address.
namespace internal {

[[nodiscard]] QString managerDestroyed();
[[nodiscard]] QString noSender();
[[nodiscard]] QString httpMissing(const QString &cause);

[[nodiscard]] ReplyError requestFailed(const QString &reason);
[[nodiscard]] ReplyError notJsonType(const QString &contentType);
[[nodiscard]] ReplyError notJson(const QString &reason, int offset);
[[nodiscard]] ReplyError duplicateMembers();

} // namespace internal

} // namespace kiv::networking

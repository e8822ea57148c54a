// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networking/export.h"

#include "foundation/debug_stream.h"

#include <QtCore/QByteArray>
#include <QtCore/QMetaType>
#include <QtCore/QString>

#include <ostream>

namespace kiv::networking {

/// How a request ended: with a body and its content type, or with the reason
/// for which there is none. A reason is a sentence for the user, who finds it in the
/// log; it never holds the request's address, whose query may carry a secret.
class KIV_NETWORKING_EXPORT Response {
public:
    /// A failure without a reason.
    Response() = default;
    /// A response that arrived.
    [[nodiscard]] static Response succeeded(QByteArray body, QString contentType);
    /// A request that came to nothing, and why.
    [[nodiscard]] static Response failed(QString reason);

    /// Whether a response arrived.
    [[nodiscard]] bool isSuccess() const noexcept { return m_isSuccess; }
    /// What arrived; empty after a failure.
    [[nodiscard]] const QByteArray &body() const noexcept { return m_body; }
    /// As the server wrote it, such as "application/json; charset=utf-8".
    [[nodiscard]] const QString &contentType() const noexcept { return m_contentType; }
    /// Why nothing arrived; empty after a success.
    [[nodiscard]] const QString &failure() const noexcept { return m_failure; }

    friend bool operator==(const Response &, const Response &) = default;

private:
    bool m_isSuccess = false;
    QByteArray m_body;
    QString m_contentType;
    QString m_failure;
};

/// Its size and type, or the reason; never the body.
KIV_NETWORKING_EXPORT std::ostream &operator<<(std::ostream &out, const Response &response);
using foundation::operator<<;

} // namespace kiv::networking

Q_DECLARE_METATYPE(kiv::networking::Response)

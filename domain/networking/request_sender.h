// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networking/export.h"
#include "networking/response.h"

#include <QtCore/QObject>
#include <QtCore/QUrl>

#include <cstdint>

namespace kiv::networking {

/// Identifies a request between a sender and its user.
using RequestNumber = std::uint64_t;

/// What really sends requests. A front end chooses one and hands it over:
/// HttpRequestSender speaks HTTP; a test's own answers by a script.
class KIV_NETWORKING_EXPORT RequestSender : public QObject {
    Q_OBJECT
public:
    RequestSender();
    ~RequestSender() override;

    /// Begins to fetch `url`. Every request is answered by one `answered` with
    /// its number, unless it is cancelled first; the caller gives each request
    /// a number of its own.
    virtual void send(kiv::networking::RequestNumber request, const QUrl &url) = 0;
    /// Gives up a request that nobody waits for any more: it is not answered.
    /// An unknown number is ignored.
    virtual void cancel(kiv::networking::RequestNumber request) = 0;

Q_SIGNALS:
    /// The request has its response, good or bad; it comes once for each.
    void answered(kiv::networking::RequestNumber request, kiv::networking::Response response);
};

} // namespace kiv::networking

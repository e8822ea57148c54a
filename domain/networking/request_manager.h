// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networking/export.h"
#include "networking/notifying_sender.h"
#include "networking/request_sender.h"

#include "foundation/qt_ptr.h"

#include <map>

namespace kiv::networking {

/// Lets many users share one request sender: each gets the answer to its own
/// requests, and one that is destroyed while it waits is forgotten.
///
/// When the manager is destroyed, everyone who still waits is answered with a
/// failure.
class KIV_NETWORKING_EXPORT RequestManager final : public QObject, public NotifyingSender {
    Q_OBJECT
public:
    /// Takes over the sender. Without one, every request fails.
    RequestManager(foundation::UniqueQtPtr<RequestSender> sender,
                   const foundation::QtPtr<QObject> &parent);
    ~RequestManager() override;

    void get(const QUrl &url, QObject &user, Answer answer) override;

private:
    struct Waiting {
        Answer answer;
        QMetaObject::Connection userGone;
    };

    void settle(RequestNumber request, const Response &response);
    void forget(RequestNumber request);

    foundation::UniqueQtPtr<RequestSender> m_sender;
    std::map<RequestNumber, Waiting> m_waiting;
    RequestNumber m_lastRequest = 0;
};

} // namespace kiv::networking

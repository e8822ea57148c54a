// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "networking/export.h"
#include "networking/response.h"

#include <QtCore/QObject>
#include <QtCore/QUrl>

#include <functional>

namespace kiv::networking {

/// Sends requests, and hands each answer to the object that asked.
class KIV_NETWORKING_EXPORT NotifyingSender {
public:
    /// Gets the response, once for each request.
    using Answer = std::function<void(const Response &)>;

    NotifyingSender() = default;
    NotifyingSender(const NotifyingSender &) = delete;
    NotifyingSender &operator=(const NotifyingSender &) = delete;
    virtual ~NotifyingSender();

    /// Fetches `url` for `user`. `answer` is called exactly once, later and
    /// never from within this call, with the response or with a failure (also
    /// when this sender is destroyed first); it is not called any more once
    /// `user` is destroyed.
    virtual void get(const QUrl &url, QObject &user, Answer answer) = 0;
};

} // namespace kiv::networking

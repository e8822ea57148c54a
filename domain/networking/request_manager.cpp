// SPDX-License-Identifier: GPL-3.0-or-later
#include "networking/request_manager.h"

#include "networking/internal/faults.h"

namespace kiv::networking {

RequestManager::RequestManager(foundation::UniqueQtPtr<RequestSender> sender,
                               const foundation::QtPtr<QObject> &parent)
    : QObject(parent.get()), m_sender(std::move(sender))
{
    if (m_sender) {
        // Queued, so that a sender which answers at once does not surprise its
        // user in the middle of get().
        connect(m_sender.get(), &RequestSender::answered, this, &RequestManager::settle,
                Qt::QueuedConnection);
    }
}

RequestManager::~RequestManager()
{
    m_sender.reset();
    // One at a time: an answer may destroy other users that wait here.
    while (!m_waiting.empty())
        settle(m_waiting.begin()->first, Response::failed(internal::managerDestroyed()));
}

void RequestManager::get(const QUrl &url, QObject &user, Answer answer)
{
    if (!m_sender) {
        QMetaObject::invokeMethod(
            &user, [answer = std::move(answer)] { answer(Response::failed(internal::noSender())); },
            Qt::QueuedConnection);
        return;
    }
    const RequestNumber request = ++m_lastRequest;
    const auto userGone =
        connect(&user, &QObject::destroyed, this, [this, request] { forget(request); });
    m_waiting.emplace(request, Waiting{std::move(answer), userGone});
    m_sender->send(request, url);
}

void RequestManager::settle(RequestNumber request, const Response &response)
{
    auto waiting = m_waiting.extract(request);
    if (waiting.empty())
        return;
    disconnect(waiting.mapped().userGone);
    // Last, because the answer may destroy this manager.
    waiting.mapped().answer(response);
}

void RequestManager::forget(RequestNumber request)
{
    m_waiting.erase(request);
    if (m_sender)
        m_sender->cancel(request);
}

} // namespace kiv::networking

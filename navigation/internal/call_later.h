// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QTimer>

#include <chrono>

namespace kiv::navigation::internal {

/// Calls the receiver's slot once, when the delay is over. Nothing is left when
/// the receiver goes first: QTimer::singleShot would keep its timer until then.
template <typename Receiver, typename Slot>
void callLater(std::chrono::milliseconds delay, Receiver *receiver, Slot slot)
{
    auto *timer = new QTimer(receiver);
    timer->setSingleShot(true);
    QObject::connect(timer, &QTimer::timeout, receiver, slot);
    QObject::connect(timer, &QTimer::timeout, timer, &QObject::deleteLater);
    timer->start(delay);
}

} // namespace kiv::navigation::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QTimer>

#include <chrono>

namespace kiv::desktop {

/// Does a thing of its owner, whose child it is, once, a while after start() was last called.
class Delay : public QTimer {
    Q_OBJECT

public:
    /// `deed` is a function of the owner, or one that it hands over.
    template <typename Owner, typename Deed>
    Delay(std::chrono::milliseconds wait, Owner *owner, Deed deed) : QTimer(owner)
    {
        setSingleShot(true);
        setInterval(wait);
        connect(this, &QTimer::timeout, owner, deed);
    }
};

} // namespace kiv::desktop

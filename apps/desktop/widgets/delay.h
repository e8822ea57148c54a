// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QTimer>

#include <chrono>

namespace kiv::desktop {

/// Does a thing of its owner once, a while after start() was last called.
class Delay : public QTimer {
    Q_OBJECT

public:
    template <typename Owner, typename Deed>
    Delay(std::chrono::milliseconds wait, Owner *owner, Deed deed)
    {
        setSingleShot(true);
        setInterval(wait);
        connect(this, &QTimer::timeout, owner, deed);
    }
};

} // namespace kiv::desktop

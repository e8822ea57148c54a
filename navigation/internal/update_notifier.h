// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "navigation/export.h"

#include "foundation/qt_ptr.h"
#include "networking/request_manager.h"
#include "updating/release_feed.h"

#include <QtCore/QObject>
#include <QtCore/QTimer>

#include <chrono>

namespace kiv::navigation::internal {

/// Looks for a newer release once after a first delay and then at every
/// interval, counted from the beginning. When it has announced one, it stops
/// until startCheckNotifications is called: then the user has acknowledged.
///
/// Several checks can run at once. One that began before the stop may still
/// announce its release.
class KIV_NAVIGATION_EXPORT UpdateNotifier final : public QObject {
    Q_OBJECT
public:
    /// The manager must outlive the notifier's checks.
    UpdateNotifier(const std::chrono::milliseconds &interval,
                   networking::RequestManager &requestManager,
                   const std::chrono::milliseconds &firstCheckDelay,
                   const foundation::QtPtr<QObject> &parent,
                   updating::ReleaseFeed feed = updating::ReleaseFeed::builtIn());
    ~UpdateNotifier() override;

Q_SIGNALS:
    void updateReleased(const kiv::updating::SemanticVersion &latest);

private Q_SLOTS:
    void checkForUpdate();
    void notifyUpdateReleased(const kiv::updating::SemanticVersion &latest);

public Q_SLOTS:
    /// Checks at this interval from now on, whether or not checks were running.
    void startCheckNotifications(const std::chrono::milliseconds &interval);

private:
    networking::RequestManager &m_requestManager;
    foundation::QtPtr<QTimer> m_timer;
    updating::ReleaseFeed m_feed;
};

} // namespace kiv::navigation::internal

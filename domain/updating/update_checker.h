// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "updating/export.h"
#include "updating/release_feed.h"

#include "foundation/qt_ptr.h"
#include "networking/notifying_sender.h"

#include <QtCore/QObject>

namespace kiv::updating {

/// Looks once whether there is a release newer than the running one.
class KIV_UPDATING_EXPORT UpdateChecker final : public QObject {
    Q_OBJECT
public:
    /// Checks `feed` through `sender`; `parent`, if any, destroys it.
    UpdateChecker(networking::NotifyingSender &sender, const foundation::QtPtr<QObject> &parent,
                  ReleaseFeed feed = ReleaseFeed::builtIn());
    ~UpdateChecker() override;

    /// Starts the check; its signals come later, never from within this call.
    void check();

Q_SIGNALS:
    /// The newest of all releases, when it is strictly newer than the running
    /// one by Semantic Versioning (which ignores builds).
    void updateReleased(kiv::updating::SemanticVersion latest);
    /// The check is over, whatever came of it.
    void finishedCheck();

private:
    networking::NotifyingSender &m_sender;
    ReleaseFeed m_feed;
};

} // namespace kiv::updating

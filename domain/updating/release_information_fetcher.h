// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "updating/export.h"
#include "updating/release_feed.h"
#include "updating/release_information.h"

#include "foundation/error.h"
#include "foundation/qt_ptr.h"
#include "networking/notifying_sender.h"

#include <QtCore/QObject>

#include <optional>
#include <set>

namespace kiv::updating {

/// Fetches what is known of all releases.
class KIV_UPDATING_EXPORT ReleaseInformationFetcher final : public QObject {
    Q_OBJECT
public:
    /// Asks `feed` through `sender`; `parent`, if any, destroys it.
    ReleaseInformationFetcher(networking::NotifyingSender &sender,
                              const foundation::QtPtr<QObject> &parent,
                              ReleaseFeed feed = ReleaseFeed::builtIn());
    ~ReleaseInformationFetcher() override;

    /// Starts; `fetched` comes later, never from within this call.
    void fetch();
    /// Why the list was refused, in English; nothing when it was not, and before
    /// `fetched`.
    [[nodiscard]] const std::optional<foundation::Error> &failure() const noexcept
    {
        return m_failure;
    }

Q_SIGNALS:
    /// Empty when there is no feed or it was refused.
    void fetched(std::set<kiv::updating::ReleaseInformation> releases);

private:
    networking::NotifyingSender &m_sender;
    ReleaseFeed m_feed;
    std::optional<foundation::Error> m_failure;
};

} // namespace kiv::updating

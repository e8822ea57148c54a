// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "updating/export.h"
#include "updating/release_feed.h"
#include "updating/release_information.h"

#include "foundation/error.h"
#include "networking/notifying_sender.h"

#include <functional>
#include <optional>
#include <set>

namespace kiv::updating::internal {

/// What a fetch of the list came to.
struct FetchedReleases {
    std::set<ReleaseInformation> releases;
    std::optional<foundation::Error> failure; ///< why there are none
};

/// Fetches the feed's list of releases for `user` and calls `done` with it
/// once, later; with an empty set when the feed has no address, and, after one
/// warning, with the reason when the list is refused. `done` is not called any more
/// once `user` is destroyed.
void fetchReleases(networking::NotifyingSender &sender, const ReleaseFeed &feed, QObject &user,
                   std::function<void(const FetchedReleases &)> done);

} // namespace kiv::updating::internal

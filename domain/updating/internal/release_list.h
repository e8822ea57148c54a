// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "updating/export.h"
#include "updating/release_feed.h"
#include "updating/release_information.h"

#include "networking/notifying_sender.h"

#include <functional>
#include <set>

namespace kiv::updating::internal {

/// Fetches the feed's list of releases for `user` and calls `done` with it
/// once, later; with an empty set when the feed has no address, and, after one
/// warning, when the list is refused. `done` is not called any more once `user`
/// is destroyed.
void fetchReleases(networking::NotifyingSender &sender, const ReleaseFeed &feed, QObject &user,
                   std::function<void(const std::set<ReleaseInformation> &)> done);

} // namespace kiv::updating::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "updating/update_checker.h"

#include "updating/internal/release_list.h"

namespace kiv::updating {

UpdateChecker::UpdateChecker(networking::NotifyingSender &sender,
                             const foundation::QtPtr<QObject> &parent, ReleaseFeed feed)
    : QObject(parent.get()), m_sender(sender), m_feed(std::move(feed))
{
}

UpdateChecker::~UpdateChecker() = default;

void UpdateChecker::check()
{
    internal::fetchReleases(
        m_sender, m_feed, *this, [this](const internal::FetchedReleases &fetched) {
            const std::set<ReleaseInformation> &releases = fetched.releases;
            const foundation::QtPtr<UpdateChecker> self(this);
            if (!releases.empty() && releases.rbegin()->version.isNewerThan(m_feed.running))
                emit updateReleased(releases.rbegin()->version);
            // Whoever heard of the release may have dropped the checker.
            if (self)
                emit finishedCheck();
        });
}

} // namespace kiv::updating

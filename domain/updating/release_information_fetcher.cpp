// SPDX-License-Identifier: GPL-3.0-or-later
#include "updating/release_information_fetcher.h"

#include "updating/internal/release_list.h"

namespace kiv::updating {

ReleaseInformationFetcher::ReleaseInformationFetcher(networking::NotifyingSender &sender,
                                                     const foundation::QtPtr<QObject> &parent,
                                                     ReleaseFeed feed)
    : QObject(parent.get()), m_sender(sender), m_feed(std::move(feed))
{
}

ReleaseInformationFetcher::~ReleaseInformationFetcher() = default;

void ReleaseInformationFetcher::fetch()
{
    internal::fetchReleases(m_sender, m_feed, *this, [this](internal::FetchedReleases answer) {
        m_failure = std::move(answer.failure);
        emit fetched(answer.releases);
    });
}

} // namespace kiv::updating

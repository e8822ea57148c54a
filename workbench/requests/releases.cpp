// SPDX-License-Identifier: GPL-3.0-or-later
#include "workbench/requests/releases.h"

#include "workbench/internal/faults.h"

namespace kiv::workbench {
namespace {

/// Slightly longer than the time limit of a request.
constexpr std::chrono::seconds patience{40};

} // namespace

std::vector<updating::ReleaseInformation> fetchedReleases(Requests &requests)
{
    const auto [releases, failure] = requests.fetchReleases(patience);
    if (releases.empty() && failure)
        throw internal::releasesNotFetched(*failure);
    return {releases.rbegin(), releases.rend()};
}

} // namespace kiv::workbench

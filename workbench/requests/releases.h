// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "workbench/requests/requests.h"

#include <vector>

namespace kiv::workbench {

/// Fetches the releases in an event loop, and returns them, the newest first. Throws a
/// Refusal if there is no answer.
[[nodiscard]] KIV_WORKBENCH_EXPORT std::vector<updating::ReleaseInformation>
fetchedReleases(Requests &requests);

} // namespace kiv::workbench

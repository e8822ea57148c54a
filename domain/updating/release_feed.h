// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "updating/export.h"
#include "updating/semantic_version.h"

#include <QtCore/QUrl>

namespace kiv::updating {

/// Where the list of releases is, and which release is running.
///
/// The list is a JSON array with an object for each release, in any order:
///
///     [{"version": "1.2.0", "date": "2026-03-31", "notes": "What is new."},
///      {"version": "1.1.0", "date": "2026-01-15", "notes": ""}]
///
/// `version` is a version by Semantic Versioning 2.0.0, `date` a day by ISO
/// 8601, `notes` plain text. Other members are ignored. A release whose
/// members are missing or make no sense is left out, with one warning for all
/// of them; anything but such an array is refused whole.
struct KIV_UPDATING_EXPORT ReleaseFeed {
    /// Empty: there is no list, and nothing is ever asked for.
    QUrl address;
    /// The version that is running.
    SemanticVersion running;

    /// The list whose address the environment variable KIV_RELEASE_FEED names,
    /// or else the one that was given when this was built (the build option of
    /// the same name, empty by default), and the version that was built.
    [[nodiscard]] static ReleaseFeed builtIn();
};

} // namespace kiv::updating

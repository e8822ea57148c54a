// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "updating/export.h"
#include "updating/semantic_version.h"

#include "foundation/debug_stream.h"

#include <QtCore/QDate>

#include <set>

namespace kiv::updating {

/// One release of the application: its version, its day, and what is new in
/// it, as text for the user. Ordered by version, then day, then notes.
struct KIV_UPDATING_EXPORT ReleaseInformation {
    /// The release's version.
    SemanticVersion version;
    /// The day of the release.
    QDate releasedOn;
    /// What is new in it, in plain text.
    QString notes;

    friend bool operator==(const ReleaseInformation &, const ReleaseInformation &) = default;
    /// By version, then day and notes.
    friend KIV_UPDATING_EXPORT std::strong_ordering operator<=>(const ReleaseInformation &a,
                                                                const ReleaseInformation &b);
};

KIV_UPDATING_EXPORT std::ostream &operator<<(std::ostream &out, const ReleaseInformation &release);
using foundation::operator<<;

} // namespace kiv::updating

Q_DECLARE_METATYPE(kiv::updating::ReleaseInformation)
Q_DECLARE_METATYPE(std::set<kiv::updating::ReleaseInformation>)

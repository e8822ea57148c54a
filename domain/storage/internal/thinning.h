// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtCore/QDateTime>

#include <optional>
#include <set>
#include <vector>

namespace kiv::storage::internal {

/// What the thinning of former versions looks at.
struct ThinnedVersion {
    /// The order of the versions. A clock may have run backwards, so times are none.
    qint64 number = 0;
    QDateTime savedAt;
    qint64 transactions = 0;
    qint64 bytes = 0;
};

/// How many former versions stay.
struct ThinningLimits {
    /// The newest by number.
    qsizetype newest = 10;
    /// Of the older ones one an hour, of the last so many hours.
    int hours = 24;
    /// Then one a day, of the last so many days.
    int days = 30;
    /// Then one a month of thirty days, of the last so many days.
    int daysOfMonths = 730;
    /// All together; none for no limit.
    std::optional<qint64> bytes = {};
    /// So many go at once, so that one save under a wrong clock takes few with it.
    qsizetype removedAtOnce = 4;
};

/// The numbers of the versions that go, the oldest ones of those that may go.
///
/// The one with most transactions stays in each hour, day or month, the newest of equal
/// ones. Hours, days and months begin at fixed times, so that the one that stayed
/// yesterday stays today. A time that is still to come counts as `now`. Where there is too
/// little space, the oldest go first. The newest of all and the one with most transactions
/// of all always stay.
[[nodiscard]] std::set<qint64> toThin(std::vector<ThinnedVersion> versions, const QDateTime &now,
                                      const ThinningLimits &limits);

} // namespace kiv::storage::internal

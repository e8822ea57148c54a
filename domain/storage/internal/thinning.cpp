// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/internal/thinning.h"

#include <algorithm>
#include <map>
#include <tuple>

namespace kiv::storage::internal {
namespace {

constexpr qint64 hour = 3600;
constexpr qint64 day = 24 * hour;
constexpr qint64 month = 30 * day;

/// An hour, a day or a month, of which one version stays: its length and its number.
using Slot = std::pair<qint64, qint64>;

std::optional<Slot> slotOf(const QDateTime &savedAt, const QDateTime &now,
                           const ThinningLimits &limits)
{
    const qint64 time = std::min(savedAt.toSecsSinceEpoch(), now.toSecsSinceEpoch());
    const qint64 age = now.toSecsSinceEpoch() - time;
    if (age >= limits.daysOfMonths * day)
        return std::nullopt;
    const qint64 length = age < limits.hours * hour ? hour : age < limits.days * day ? day : month;
    return Slot(length, time / length);
}

/// More transactions first, then the newer one.
bool isPreferred(const ThinnedVersion &one, const ThinnedVersion &other) noexcept
{
    return std::tie(one.transactions, one.number) > std::tie(other.transactions, other.number);
}

/// The numbers of those that stay for their age, but for the largest.
std::set<qint64> stayingByAge(const std::vector<ThinnedVersion> &newestFirst, const QDateTime &now,
                              const ThinningLimits &limits)
{
    std::set<qint64> staying;
    std::map<Slot, const ThinnedVersion *> preferred;
    for (const ThinnedVersion &version : newestFirst) {
        if (std::ssize(staying) < limits.newest)
            staying.insert(version.number);
        if (const std::optional<Slot> slot = slotOf(version.savedAt, now, limits)) {
            const auto [found, isNew] = preferred.try_emplace(*slot, &version);
            if (!isNew && isPreferred(version, *found->second))
                found->second = &version;
        }
    }
    for (const auto &[slot, version] : preferred)
        staying.insert(version->number);
    return staying;
}

} // namespace

std::set<qint64> toThin(std::vector<ThinnedVersion> versions, const QDateTime &now,
                        const ThinningLimits &limits)
{
    if (versions.empty())
        return {};
    std::ranges::sort(versions, std::ranges::greater(), &ThinnedVersion::number);
    const std::set<qint64> staying = stayingByAge(versions, now, limits);
    const std::set always{versions.front().number,
                          std::ranges::min_element(versions, isPreferred)->number};
    qint64 bytes = 0;
    for (const ThinnedVersion &version : versions)
        bytes += version.bytes;

    std::set<qint64> going;
    // The oldest first: first for their age, then for the space.
    for (const bool isForSpace : {false, true}) {
        for (auto version = versions.rbegin(); version != versions.rend(); ++version) {
            const bool goes = isForSpace ? bytes > limits.bytes.value_or(bytes)
                                         : !staying.contains(version->number);
            if (!goes || always.contains(version->number) || going.contains(version->number) ||
                std::ssize(going) >= limits.removedAtOnce)
                continue;
            going.insert(version->number);
            bytes -= version->bytes;
        }
    }
    return going;
}

} // namespace kiv::storage::internal

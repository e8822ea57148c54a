// SPDX-License-Identifier: GPL-3.0-or-later
#include "updating/release_information.h"

#include "foundation/streams.h"

namespace kiv::updating {

std::strong_ordering operator<=>(const ReleaseInformation &a, const ReleaseInformation &b)
{
    if (const auto order = a.version <=> b.version; order != 0)
        return order;
    if (const auto order = a.releasedOn.toJulianDay() <=> b.releasedOn.toJulianDay(); order != 0)
        return order;
    return a.notes.compare(b.notes) <=> 0;
}

std::ostream &operator<<(std::ostream &out, const ReleaseInformation &release)
{
    return out << release.version << " of "
               << release.releasedOn.toString(Qt::ISODate).toStdString() << ": "
               << foundation::escapedUtf8(release.notes);
}

} // namespace kiv::updating

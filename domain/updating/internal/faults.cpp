// SPDX-License-Identifier: GPL-3.0-or-later
#include "updating/internal/faults.h"

#include <QtCore/QObject>

namespace kiv::updating::internal {

UpdateError notAVersion(const QString &text)
{
    return UpdateError(QObject::tr("'%1' is not a version.").arg(text));
}

UpdateError releaseMemberMalformed(const QString &member)
{
    return UpdateError(
        QObject::tr("The release's member '%1' is missing or makes no sense.").arg(member));
}

UpdateError notAListOfReleases()
{
    return UpdateError(QObject::tr("The reply is not a list of releases."));
}

} // namespace kiv::updating::internal

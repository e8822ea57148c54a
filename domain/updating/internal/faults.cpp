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
        QObject::tr("The member '%1' of the release is missing or invalid.").arg(member));
}

UpdateError notAListOfReleases()
{
    return UpdateError(QObject::tr("The reply is not a list of releases."));
}

} // namespace kiv::updating::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "networking/internal/faults.h"

#include <QtCore/QObject>

namespace kiv::networking::internal {

QString managerDestroyed()
{
    return QObject::tr("The connection was closed before the answer came.");
}

QString noSender()
{
    return QObject::tr("Requests cannot be sent.");
}

QString httpMissing(const QString &cause)
{
    return QObject::tr("Cannot load the HTTP library: %1.").arg(cause);
}

ReplyError requestFailed(const QString &reason)
{
    return ReplyError(reason);
}

ReplyError notJsonType(const QString &contentType)
{
    return ReplyError(QObject::tr("The reply is not JSON; its type is '%1'.").arg(contentType));
}

ReplyError notJson(const QString &reason, int offset)
{
    return ReplyError(
        QObject::tr("The reply is not JSON: %1 at byte %2.").arg(reason, QString::number(offset)));
}

ReplyError duplicateMembers()
{
    return ReplyError(QObject::tr("The reply contains a member twice."));
}

} // namespace kiv::networking::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "networking/internal/faults.h"

#include <QtCore/QObject>

namespace kiv::networking::internal {

QString managerDestroyed()
{
    return QObject::tr("The request manager was destroyed before the answer came.");
}

QString noSender()
{
    return QObject::tr("There is nothing to send requests with.");
}

QString httpMissing(const QString &cause)
{
    return QObject::tr("Nothing can be fetched: %1.").arg(cause);
}

ReplyError requestFailed(const QString &reason)
{
    return ReplyError(reason);
}

ReplyError notJsonType(const QString &contentType)
{
    return ReplyError(QObject::tr("The reply's type is '%1' and not JSON.").arg(contentType));
}

ReplyError notJson(const QString &reason, int offset)
{
    return ReplyError(
        QObject::tr("The reply is not JSON: %1 at byte %2.").arg(reason, QString::number(offset)));
}

ReplyError duplicateMembers()
{
    return ReplyError(QObject::tr("The reply names a member twice."));
}

} // namespace kiv::networking::internal

// SPDX-License-Identifier: GPL-3.0-or-later
#include "networking/errors.h"

#include <QtCore/QObject>

namespace kiv::networking {

ReplyError::~ReplyError() = default;

namespace internal {

QString managerDestroyed()
{
    return QObject::tr("The request manager was destroyed before the answer came.");
}

QString noSender()
{
    return QObject::tr("There is nothing to send requests with.");
}

QString addressNotAllowed()
{
    return QObject::tr("Only HTTPS is allowed, and plain HTTP to the loopback address.");
}

QString redirectNotAllowed()
{
    return QObject::tr("The server redirected to another host or to a protocol that is not "
                       "allowed.");
}

QString tooManyRedirects(int redirectsMax)
{
    return QObject::tr("The server redirected more than %1 times.").arg(redirectsMax);
}

QString timedOut(qint64 milliseconds)
{
    return QObject::tr("The reply was not complete after %1 ms.").arg(milliseconds);
}

QString bodyTooLarge(qint64 bytesMax)
{
    return QObject::tr("The reply is larger than %1 bytes.").arg(bytesMax);
}

QString statusNotOk(int status)
{
    return QObject::tr("The server answered with the status %1.").arg(status);
}

QString contentEncoded()
{
    return QObject::tr("The reply is compressed although that was not asked for.");
}

QString transferFailed(const QString &error)
{
    return QObject::tr("The transfer failed (%1).").arg(error);
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

} // namespace internal

} // namespace kiv::networking
